#include "builder/runtime_files.h"

#include "create_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::CreateDesk;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using StepFunction = Step (*)(CreateRun&);

struct Copied {
    StepFunction step;
    const char* source;
    const char* target;
    const char* line;
    const char* failure;
};

constexpr Copied kCopies[] = {
    {CopySetupExe, "SETUP32.EXE", "SETUP.EXE", "Kopierar SETUP.EXE",
     "Fel! Kan ej kopiera SETUP.EXE!"},
    {CopyRuntimeExe, "Small32\\QNS32X.EXE", "QNS32X.BIN", "Kopierar QNS32X.EXE  (Small Version)",
     "Fel! Kan ej kopiera QNS32X.EXE!"},
    {CopyUnzipLibrary, "DUNZIP32.DLL", "DUNZIP32.DLL", "Kopierar DUNZIP32.DLL",
     "Fel! Kan ej kopiera DUNZIP32.DLL!"},
    {CopyRegistryHelper, "QNREG32.EXE", "QNREG32.BIN", "Kopierar QNREG32.EXE",
     "Fel! Kan ej kopiera QNREG32.EXE!"},
    {CopySecondRegistryHelper, "QNXREG2.EXE", "QNXREG2.BIN", "Kopierar QNXREG2.EXE",
     "Fel! Kan ej kopiera QNXREG2.EXE!"},
    {CopyUninstaller, "QNXUNIN.EXE", "QNXUNIN.BIN", "Kopierar QNXUNIN.EXE",
     "Fel! Kan ej kopiera QNXUNIN.EXE!"},
};

void NeedAllOfThem(CreateDesk& desk)
{
    desk.project.InstallOptions.UninstallSupport = kOn;
    desk.project.Files.rows[0][CopyOptions] = "VRA";
}

} // namespace

TEST(RuntimeFiles, AreCopiedUnderTheNamesOfThePackage)
{
    for (const Copied& copied : kCopies) {
        CreateDesk desk;
        NeedAllOfThem(desk);
        EXPECT_EQ(desk.With(copied.step), Step::GoOn) << copied.source;
        EXPECT_THAT(desk.statusLines, ElementsAre(copied.line));
        EXPECT_EQ(desk.Get(copied.target), copied.source);
    }
}

TEST(RuntimeFiles, ReadASolidContainerByALibraryOfItsOwn)
{
    CreateDesk desk;
    desk.form.SmallContainer = 1;
    EXPECT_EQ(desk.With(CopyUnzipLibrary), Step::GoOn);
    EXPECT_THAT(desk.statusLines, ElementsAre("Kopierar DUNZIP32.DLL"));
    EXPECT_EQ(desk.Get("DUNZIP32.DLL"), "Solid\\DUNZIP32.DLL");
    desk.form.TargetMedia = Medium::Internet;
    EXPECT_EQ(desk.With(CopyUnzipLibrary), Step::GoOn);
    EXPECT_EQ(desk.Get("DUNZIP32.DLL"), "DUNZIP32.DLL");
}

TEST(RuntimeFiles, EndThePipelineWhereOneIsMissing)
{
    for (const Copied& copied : kCopies) {
        CreateDesk desk;
        NeedAllOfThem(desk);
        const Text source = Text("C:\\Quillon\\Release\\") + copied.source;
        desk.machine.files.RemoveFile(source);
        EXPECT_EQ(desk.With(copied.step), Step::Stop) << copied.source;
        EXPECT_THAT(desk.statusLines, ElementsAre(copied.line, copied.failure));
        EXPECT_EQ(desk.failure->Path(), source);
        EXPECT_THAT(desk.Package(), IsEmpty());
    }
}

TEST(RuntimeFiles, EndThePipelineWhereOneCannotBeWritten)
{
    for (const Copied& copied : kCopies) {
        CreateDesk desk;
        NeedAllOfThem(desk);
        desk.machine.files.RefuseOutput(Text("C:\\Ut\\") + copied.target, 75);
        EXPECT_EQ(desk.With(copied.step), Step::Stop) << copied.source;
        EXPECT_THAT(desk.statusLines, ElementsAre(copied.line, copied.failure));
    }
}

TEST(RuntimeFiles, StopTheWholeCommandAtTheFirstThatFails)
{
    CreateDesk desk;
    desk.machine.files.RemoveFile("C:\\Quillon\\Release\\DUNZIP32.DLL");
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Fel! Kan ej kopiera DUNZIP32.DLL!");
    EXPECT_EQ(desk.beeps, 1);
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
    EXPECT_THAT(desk.Package(),
                testing::UnorderedElementsAre("PACKAGE.SHA256", "SETUP.EXE", "QNS32X.BIN"));
}

TEST(CopySetupExe, KeepsTheReleaseDateUnlessTheOptionSaysNow)
{
    const LocalTime released{1999, 12, 31, 23, 58, 0};
    CreateDesk desk;
    desk.machine.files.Put("C:\\Quillon\\Release\\SETUP32.EXE", "x", released);
    EXPECT_EQ(desk.With(CopySetupExe), Step::GoOn);
    EXPECT_EQ(desk.machine.files.Status("C:\\Ut\\SETUP.EXE").modified, released);
    desk.options.UpdateSetupExeDateTime = kOn;
    EXPECT_EQ(desk.With(CopySetupExe), Step::GoOn);
    EXPECT_EQ(desk.machine.files.Status("C:\\Ut\\SETUP.EXE").modified, desk.machine.machine.now);
}

TEST(CopyRuntimeExe, TakesTheFullVersionForAJpegPicture)
{
    CreateDesk desk;
    desk.project.DesLogotype.LogotypeFilename = "C:\\LOGO.JPG";
    EXPECT_EQ(desk.With(CopyRuntimeExe), Step::GoOn);
    EXPECT_THAT(desk.statusLines, ElementsAre("Kopierar QNS32X.EXE  (Full Version)"));
    EXPECT_EQ(desk.Get("QNS32X.BIN"), "Full32\\QNS32X.EXE");
}

struct OptionsCase {
    std::vector<Text> options; // of the rows
    bool first;
    bool second;
};

TEST(RegistryHelpers, AreNeededByTheRowsOptions)
{
    const OptionsCase cases[] = {
        {{"D"}, false, false},
        {{"VA"}, false, false},
        {{"R"}, true, false},
        {{"VRAW"}, true, true},
        {{"AR"}, true, true},
        {{"R", "A"}, true, false},
        {{"VR", "VA", "RA"}, true, true},
        {{""}, false, false},
        {{"r"}, false, false},
    };
    for (const OptionsCase& expected : cases) {
        CreateDesk desk;
        desk.project.Files.rows.clear();
        for (const Text& options : expected.options)
            desk.AddFile("a.txt")[CopyOptions] = options;
        EXPECT_EQ(desk.With(CopyRegistryHelper), Step::GoOn);
        EXPECT_EQ(desk.Has("QNREG32.BIN"), expected.first) << expected.options[0];
        EXPECT_EQ(desk.With(CopySecondRegistryHelper), Step::GoOn);
        EXPECT_EQ(desk.Has("QNXREG2.BIN"), expected.second) << expected.options[0];
    }
}

TEST(RegistryHelpers, AreNeededByAScript)
{
    for (Text section::Lists::*script :
         {&section::Lists::RunScriptBefore, &section::Lists::RunScriptAfter}) {
        CreateDesk desk;
        desk.project.Lists.*script = "x";
        EXPECT_EQ(desk.With(CopyRegistryHelper), Step::GoOn);
        EXPECT_TRUE(desk.Has("QNREG32.BIN"));
        EXPECT_EQ(desk.With(CopySecondRegistryHelper), Step::GoOn);
        EXPECT_FALSE(desk.Has("QNXREG2.BIN"));
    }
}

TEST(CopyUninstaller, IsForProjectsWithUninstallSupport)
{
    CreateDesk desk;
    EXPECT_EQ(desk.With(CopyUninstaller), Step::GoOn);
    EXPECT_THAT(desk.statusLines, IsEmpty());
    EXPECT_FALSE(desk.Has("QNXUNIN.BIN"));
}

TEST(CopyLicenseRtf, NeedsThePageAndAFile)
{
    CreateDesk desk;
    desk.machine.files.Put("C:\\Data\\licens.rtf", "{\\rtf1}");
    const auto copies = [&](Integer page, const Text& file) {
        desk.project.DialogBoxes.LicenseInfoRtfDlg = page;
        desk.project.DialogBoxData.LicenseFilenameRtf = file;
        EXPECT_EQ(desk.With(CopyLicenseRtf), Step::GoOn);
        return desk.Has("LICENSE.RTF");
    };
    EXPECT_FALSE(copies(0, "C:\\Data\\licens.rtf"));
    EXPECT_FALSE(copies(1, ""));
    EXPECT_TRUE(copies(1, "C:\\Data\\licens.rtf"));
    EXPECT_THAT(desk.statusLines, ElementsAre("Kopierar LICENSE.RTF"));
    EXPECT_EQ(desk.Get("LICENSE.RTF"), "{\\rtf1}");

    desk.project.DialogBoxData.LicenseFilenameRtf = "C:\\Data\\saknas.rtf";
    EXPECT_EQ(desk.With(CopyLicenseRtf), Step::Stop);
    EXPECT_THAT(desk.statusLines,
                ElementsAre("Kopierar LICENSE.RTF", "Fel! Kan ej kopiera LICENSE.RTF!"));
}

} // namespace quillon
