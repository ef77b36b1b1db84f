// Packages that were made to reach outside: what `verify` and the setup say of a row is the same,
// and neither reads a file outside the package.
#include "packages/packaged_product.h"

#include "formats/install_row.h"
#include "formats/row_safety.h"
#include "helpers/ansi_text.h"

namespace quillon::test {
namespace {

using testing::IsEmpty;
using testing::Not;

struct HostileRow {
    const char* what;
    Text name = "prog.exe";
    Text destination = "%DESTDIR";
    Text sourceFolder = "data";
};

const HostileRow kHostileRows[] = {
    {"a name that climbs", "..\\..\\WINDOWS\\ond.exe"},
    {"a name that is only the climb", ".."},
    {"a name with a slash", "../ond.exe"},
    {"a name with a drive", "C:\\ond.exe"},
    {"a stream", "prog.exe:dold"},
    {"a device", "CON"},
    {"a device with an extension", "nul.txt"},
    {"a port", "COM1"},
    {"a name with a NUL", Text("prog\0.exe", 9)},
    {"a name that Windows shortens", "prog.exe."},
    {"a destination that climbs", "prog.exe", "%DESTDIR\\..\\..\\WINDOWS"},
    {"a destination that climbs by slashes", "prog.exe", "%DESTDIR/../../WINDOWS"},
    {"a destination that is a stream", "prog.exe", "%DESTDIR\\a:b"},
    {"a destination that is a device", "prog.exe", "%DESTDIR\\AUX"},
    {"a destination with a NUL", "prog.exe", Text("%DESTDIR\\a\0b", 12)},
    {"a destination with a second drive", "prog.exe", "%DESTDIR\\C:\\WINDOWS"},
    {"a destination relative to a drive", "prog.exe", "C:Data"},
    {"an unknown variable", "prog.exe", "%DESTDR"},
};

class HostilePackage : public testing::TestWithParam<ProductMedium> {
protected:
    PackageFiles files = MakeProductPackage(GetParam());

    // Everything else of the package is in order, its manifest too.
    void ChangeFirstRow(const HostileRow& hostile)
    {
        InstallFileList list = ReadInstallFileList(files.at("FILELIST.INF"));
        InstallRow& row = list.rows.at(0);
        const Text line = InstallRowLine(row);
        row.name = hostile.name;
        row.destination = hostile.destination;
        if (hostile.sourceFolder != "data")
            row.sourceFolder = hostile.sourceFolder;
        std::string& bytes = files["FILELIST.INF"];
        const std::string before = AnsiText::ToBytes(line);
        bytes.replace(bytes.find(before), before.size(), AnsiText::ToBytes(InstallRowLine(row)));
        ListAgain(files);
    }
    // With its manifest, and without one, where nothing else can refuse it.
    void ExpectRefused(const char* what)
    {
        for (const bool hasManifest : {true, false}) {
            if (!hasManifest)
                files.erase("PACKAGE.SHA256");
            EXPECT_THAT(VerifyProduct(files), Not(IsEmpty())) << what;
            const InstalledProduct run = InstallProduct(files);
            EXPECT_EQ(run.code, ExitCode::DamagedPackage) << what;
            EXPECT_EQ(run.machine == EmptyMachine(), true) << what << "\n" << run.log;
        }
    }
};

TEST_P(HostilePackage, IsRefusedByVerifyAndBySetup)
{
    const PackageFiles whole = files;
    for (const HostileRow& hostile : kHostileRows) {
        files = whole;
        ChangeFirstRow(hostile);
        ExpectRefused(hostile.what);
    }
}

INSTANTIATE_TEST_SUITE_P(OnEveryMedium, HostilePackage,
                         testing::Values(ProductMedium{"Cd", Medium::CompressedCd},
                                         ProductMedium{"OneByOne", Medium::CompressedCd, true},
                                         ProductMedium{"Tree", Medium::CdTree}),
                         [](const auto& medium) { return medium.param.name; });

class HostileTree : public HostilePackage {};

TEST_P(HostileTree, LooksAtNothingOutsideThePackage)
{
    const PackageFiles whole = files;
    for (const char* folder : {"..", "..\\data", "data\\..\\..\\hemligt", "C:\\hemligt", "c:"}) {
        files = whole;
        // The file that the row would reach exists, and has the right size.
        files["..\\prog.exe"] = files["..\\data\\prog.exe"] = whole.at("data\\prog.exe");
        ChangeFirstRow({"a source folder", "prog.exe", "%DESTDIR", folder});
        ExpectRefused(folder);
    }
}

INSTANTIATE_TEST_SUITE_P(, HostileTree, testing::Values(ProductMedium{"Tree", Medium::CdTree}),
                         [](const auto& medium) { return medium.param.name; });

TEST(HostileInformation, NamesNoLanguageFileOutsideThePackage)
{
    PackageFiles files = MakeProductPackage({"Cd", Medium::CompressedCd});
    std::string& bytes = files["QNSETUP.INF"];
    const std::string key = "LanguageFile = SWEDISH.LNG";
    bytes.replace(bytes.find(key), key.size(), "LanguageFile = ..\\OND.LNG");
    ListAgain(files);
    EXPECT_THAT(VerifyProduct(files),
                testing::Contains(testing::StartsWith("Namnet '..\\OND.LNG' fungerar inte")));
    EXPECT_EQ(InstallProduct(files).code, ExitCode::DamagedPackage);
}

} // namespace
} // namespace quillon::test
