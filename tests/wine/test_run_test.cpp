// What the tool starts for a test run and for a preview: the window's words come out as the log,
// and the machine stays as it was.
#include "helpers/text.h"
#include "wine/folder_state.h"
#include "wine/package.h"
#include "wine/registry_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::Not;

/// A folder with the runtime's copy for tests and what `quillonc test` writes beside it.
fs::path MakeTestFolder(const std::string& name)
{
    const fs::path folder = WorkFolder() / name;
    const PackageOrder example = ExampleOrder();
    const fs::path quillonc = fs::path(QUILLON_BUILD_FOLDER) / "quillon" / "quillonc";
    const ProgramResult written =
        RunProgram({quillonc, "test", example.project, "--to", folder},
                   {{"QUILLON_DRIVES", "S=" + example.drive.string()},
                    {"QUILLON_DRIVE_C", WorkFolder() / "drive-of-the-tool"},
                    {"TZ", "UTC"}});
    EXPECT_EQ(written.exitCode, 0) << written.output;
    fs::copy_file(RuntimeFolder() / "Small32" / "QNS32X.EXE", folder / "Qns32x.exe");
    return folder;
}

/// One prefix for all tests, since none of them may change it.
class TestOfTheExample : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder_ = MakeTestFolder("prov");
        prefix_ = new WinePrefix;
        prefix_->Restart();
        registry_ = new RegistryText(*prefix_);
        drive_ = StateOf(prefix_->DriveC());
        files_ = StateOf(folder_);
    }
    static void TearDownTestSuite()
    {
        delete registry_;
        delete prefix_;
    }

    /// Holds afterwards that disk and registry are as they were.
    unsigned Run(const std::string& switches, const std::string& program = "Qns32x.exe") const
    {
        const unsigned code = prefix_->Run(OnZ(folder_ / program), switches);
        EXPECT_EQ(RegistryDifference(*registry_, RegistryText(*prefix_)), "");
        EXPECT_EQ(FolderDifference(drive_, StateOf(prefix_->DriveC())), "");
        EXPECT_EQ(FolderDifference(files_, StateOf(folder_)), "");
        return code;
    }
    /// The log, which it takes away again.
    static std::string TakeLog()
    {
        const fs::path path = WorkFolder() / "prov.log";
        const std::string text = ReadBytes(path);
        fs::remove(path);
        return text;
    }
    static std::string Log() { return " /LOG=\"" + OnZ(WorkFolder() / "prov.log") + '"'; }

    static fs::path folder_;
    static WinePrefix* prefix_;
    static RegistryText* registry_;
    static FolderState drive_;
    static FolderState files_;
};

fs::path TestOfTheExample::folder_;
WinePrefix* TestOfTheExample::prefix_ = nullptr;
RegistryText* TestOfTheExample::registry_ = nullptr;
FolderState TestOfTheExample::drive_;
FolderState TestOfTheExample::files_;

TEST_F(TestOfTheExample, NamesTheProjectAndItsPages)
{
    EXPECT_EQ(Run("/TEST /S" + Log()), 0U);
    const std::string log = TakeLog();
    EXPECT_THAT(log, HasSubstr("Test av Hej\r\n"));
    EXPECT_THAT(log, HasSubstr("Ingenting installeras."));
    EXPECT_THAT(log, HasSubstr("1. "));
}

TEST_F(TestOfTheExample, NamesTheScreenOfAPreview)
{
    EXPECT_EQ(Run("/PREVIEW /S" + Log()), 0U);
    const std::string log = TakeLog();
    EXPECT_THAT(log, HasSubstr("Förhandsgranskning av Hej\r\n"));
    EXPECT_THAT(log, HasSubstr("Storlek: 640 x 480 bildpunkter"));
    EXPECT_THAT(log, Not(HasSubstr("1. ")));
}

TEST_F(TestOfTheExample, EndsAtOnceWhereItIsSilent)
{
    EXPECT_EQ(Run("/TEST /S"), 0U);
    EXPECT_EQ(Run("/S /PREVIEW"), 0U);
}

TEST_F(TestOfTheExample, RefusesWhatItCanNotShow)
{
    EXPECT_EQ(Run("/TEST /S /FEL"), 1639U);
    EXPECT_EQ(Run("/TEST /PREVIEW /S"), 1639U);
    const fs::path empty = WorkFolder() / "tom";
    fs::create_directory(empty);
    EXPECT_EQ(Run("/TEST /S /PACKAGE=\"" + OnZ(empty) + '"'), 1603U);
}

TEST_F(TestOfTheExample, InstallsNothingWithoutTheSwitchEither)
{
    // Started by hand: the sources are not beside it.
    EXPECT_EQ(Run("/S"), 20001U);
}

TEST_F(TestOfTheExample, ShowsAFinishedPackageToo)
{
    const fs::path package = MakePackage(ExampleOrder());
    const FolderState before = StateOf(package);
    EXPECT_EQ(prefix_->Run(OnZ(package / "SETUP.EXE"), "/TEST /S" + Log()), 0U);
    EXPECT_THAT(TakeLog(), HasSubstr("Test av Hej\r\n"));
    EXPECT_EQ(RegistryDifference(*registry_, RegistryText(*prefix_)), "");
    EXPECT_EQ(FolderDifference(drive_, StateOf(prefix_->DriveC())), "");
    EXPECT_EQ(FolderDifference(before, StateOf(package)), "");
}

} // namespace
} // namespace quillon::test
