// What the uninstaller consists of: how it comes, what it replaces, and how it goes.
#include "runtime/support/setup_fixture.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "runtime/install/uninstaller_files.h"

namespace quillon {
namespace {

using testing::ElementsAre;

using test::kMain;
const Text kStarter = kMain + "\\QNXUNIN.EXE";
const Text kSetup = kMain + "\\QNS32X.BIN";
const Text kManifest = kMain + "\\QNXUNIN.SHA256";

class UninstallerFilesTest : public test::SetupFixture {
protected:
    UninstallerFilesTest() { AddFile("prog.exe", "%DESTDIR", "program"); }

    void ExpectWhole(const Text& starter, const Text& setup)
    {
        EXPECT_EQ(memory.files.Get(kStarter), starter);
        EXPECT_EQ(memory.files.Get(kSetup), setup);
        EXPECT_EQ(memory.files.Get(kManifest),
                  DigestText(DigestOfFile(memory.files, kSetup)) + "  QNS32X.BIN\n");
    }
};

TEST_F(UninstallerFilesTest, ComeTogetherAndGoTogether)
{
    const test::MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    ExpectWhole("uninstaller", "setup");
    EXPECT_THAT(FilesOfUninstaller(kMain), ElementsAre(kSetup, kManifest));
    // The record names none of them.
    const auto records = ReadInstallJournal(memory.files.Get(kMain + "\\QNXUNIN.LOG"));
    for (const JournalRecord& record : records.value())
        EXPECT_NE(SubjectOf(record), kSetup);
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(State(), before);
}

TEST_F(UninstallerFilesTest, TakeThePlaceOfAnUninstallerThatWasOneProgram)
{
    const test::MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kStarter, "the whole uninstaller of an earlier version");
    memory.files.RemoveFile(kSetup);
    memory.files.RemoveFile(kManifest);
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    ExpectWhole("uninstaller", "setup");
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(State(), before);
}

TEST_F(UninstallerFilesTest, AreReplacedByThoseOfANewVersion)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put("D:\\Paket\\QNXUNIN.BIN", "newer uninstaller");
    memory.files.Put("D:\\Paket\\QNS32X.BIN", "newer setup");
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    ExpectWhole("newer uninstaller", "newer setup");
}

TEST_F(UninstallerFilesTest, StayWhereAnotherProductNeedsThem)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    project.ProjectName.ProjectName = "Annat";
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    ExpectWhole("uninstaller", "setup");
    ASSERT_EQ(UninstallProduct(kMain + "\\QNXUNIN2.LOG"), ExitCode::Done);
    for (const Text& path : {kStarter, kSetup, kManifest})
        EXPECT_FALSE(memory.files.FileExists(path)) << path;
}

// A user who starts it until then is told that the product has been removed already.
TEST_F(UninstallerFilesTest, GoAtTheNextStartWhereTheProgramCantGoBefore)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    files.inUse.insert(kStarter);
    EXPECT_EQ(UninstallProduct(), ExitCode::RestartNeeded);
    for (const Text& path : {kStarter, kSetup, kManifest}) {
        EXPECT_TRUE(memory.files.FileExists(path)) << path;
        EXPECT_THAT(Log(), testing::HasSubstr(path + " används och tas bort när datorn startas om"))
            << path;
    }
}

TEST_F(UninstallerFilesTest, AreNotThereWithoutAnUninstaller)
{
    project.InstallOptions.UninstallSupport = kOff;
    ASSERT_EQ(Install(), ExitCode::Done);
    for (const Text& path : {kStarter, kSetup, kManifest})
        EXPECT_FALSE(memory.files.FileExists(path)) << path;
}

} // namespace
} // namespace quillon
