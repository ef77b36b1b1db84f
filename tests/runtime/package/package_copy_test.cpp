// What is started or installed from the private folder is what the package lists, even if others
// can write to the package's folder.
#include "runtime/package/package_copy.h"

#include "formats/package.h"
#include "formats/package_contents.h"
#include "helpers/windows_path.h"
#include "runtime/install/before_install.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

const Text kPackage = "D:\\Paket";
const Text kWork = "W:\\Arbete";

class PackageCopy : public SetupFixture {
protected:
    PackageCopy()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        package.manifest.state = PackageManifest::State::Whole;
        memory.files.Put("D:\\Paket\\QNREG32.BIN", "helper");
        for (const Text& name : FixedFilesOf(package.setup, package.rows))
            List(name);
        for (const Text& name : ContainerPieces(package.setup, package.rows))
            List(name);
        for (const char* name : {"QNREG32.BIN", "QNXREG2.BIN", "QNXUNIN.BIN", "QNS32X.BIN"})
            List(name);
    }
    void List(const Text& name)
    {
        const Text path = JoinPath(kPackage, name);
        if (package.manifest.Names(name))
            return;
        if (!files.FileExists(path))
            memory.files.Put(path, name);
        package.manifest.lines.push_back({name, DigestOfFile(files, path)});
        package.manifest.names.insert(LowerCase(name));
    }
    /// Right before the setup changes anything, which is when it has tested the package.
    void ExchangeOnceTested(const Text& name)
    {
        files.beforeChange = [this, name] {
            memory.files.Put(JoinPath(kPackage, name), "another one");
        };
    }
};

TEST_F(PackageCopy, HoldsWhatThePackageLists)
{
    CopyFromPackage(files, kPackage, "qnreg32.bin", "W:\\Arbete\\a.exe", package.manifest,
                    package.texts);
    EXPECT_EQ(memory.files.Get("W:\\Arbete\\a.exe"), "helper");
}

TEST_F(PackageCopy, IsRefusedWhereItsFileIsMissingOrNotListed)
{
    const auto copy = [&](const Text& name) {
        CopyFromPackage(files, kPackage, name, "W:\\Arbete\\a.exe", package.manifest,
                        package.texts);
    };
    EXPECT_THROW(copy("none.exe"), SetupFailure);
    memory.files.Put("D:\\Paket\\other.exe", "helper");
    EXPECT_THROW(copy("other.exe"), SetupFailure);
    package.manifest = {};
    EXPECT_NO_THROW(copy("other.exe"));
}

TEST_F(PackageCopy, OfEachHelperIsComparedAfterItWasMade)
{
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    for (const Text name : {"QNREG32.BIN", "QNXREG2.BIN", "QNXUNIN.BIN", "QNS32X.BIN"}) {
        const Text path = JoinPath(kPackage, name);
        const Text whole = memory.files.Get(path);
        ExchangeOnceTested(name);
        EXPECT_EQ(Install(), ExitCode::DamagedPackage) << name;
        EXPECT_THAT(Log(), HasSubstr(name));
        files.beforeChange = [] {};
        memory.files.Put(path, whole);
    }
    EXPECT_TRUE(target.programsRun.empty());
}

} // namespace
} // namespace quillon::test
