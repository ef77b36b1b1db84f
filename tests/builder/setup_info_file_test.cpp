#include "builder/setup_info_file.h"

#include "formats/scramble.h"
#include "formats/setup_information.h"
#include "full_project.h"
#include "project/new_project.h"
#include "support/golden.h"
#include "support/memory_host.h"
#include "support/program_file.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon {

using test::FullProject;
using test::GoldenFile;
using test::Row;
using test::SameBytes;

namespace {

const Text kPath = "C:\\Ut\\QNSETUP.INF";

class WriteSetupInfo : public testing::Test {
protected:
    WriteSetupInfo() { machine.files.PutFolder("C:\\Ut"); }

    int Write(SetupInfoMode mode = SetupInfoMode::Create)
    {
        SetupInfoInput input{project, machine.host, ask, options, surface, filesInList};
        return WriteSetupInfoFile(kPath, input, mode);
    }
    std::string Written(SetupInfoMode mode = SetupInfoMode::Create)
    {
        EXPECT_EQ(Write(mode), 0);
        return machine.files.Get(kPath);
    }
    SetupInformation ReadBack() { return ReadSetupInformation(Written()); }

    test::MemoryHost machine;
    test::ScriptedAsk ask;
    Project project;
    CreateOptions options = DefaultCreateOptions("C:\\Quillon");
    DesignSurface surface;
    Long filesInList = 0;
};

class FullSetupInfo : public WriteSetupInfo {
protected:
    FullSetupInfo()
    {
        project = FullProject();
        project.Files.rows = {Row("a", "b", "c"), Row("oleaut32.dll", "b", "c")};
        project.Files.rows[0][Size] = "7,5";
        project.Files.rows[1][Size] = "4,0";
        surface.width = 800;
        surface.height = 600;
        options.PlaceCompressedFilesInFolderSetupFiles = kOff;
        options.CreateFolderStructureInFolderSetupFiles = kOn;
        filesInList = 7;
        machine.files.Put("C:\\Data\\App\\räkna.exe",
                          test::MakeProgramFile({.languages = {{{"FileVersion", "2,1,0,7"}}}}));
    }
};

bool Holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(WriteSetupInfo, HasSizeAndPlaceOfChangingPicturesWhereThereAreNone)
{
    project.DesPicturesAnim = {
        .PictureWidth = 310, .PictureHeight = 170, .PictureXPos = 900, .PictureYPos = 1500};
    EXPECT_TRUE(Holds(Written(), "[DesPicturesAnim]\r\nNrAnimPictures = 0\r\n"
                                 "StretchPicture = 0\r\nPictureWidth = 310\r\n"
                                 "PictureHeight = 170\r\nPictureXPos = 60\r\n"
                                 "PictureYPos = 100\r\n"));
}

TEST_F(FullSetupInfo, IsWrittenToTheByteForCreate)
{
    EXPECT_TRUE(SameBytes(Written(), GoldenFile("builder/full_project/QNSETUP.INF")));
}

TEST_F(FullSetupInfo, IsWrittenToTheByteForATestRun)
{
    EXPECT_TRUE(SameBytes(Written(SetupInfoMode::TestRun),
                          GoldenFile("builder/full_project/QNSETUP_test_run.INF")));
}

TEST_F(FullSetupInfo, IsWrittenToTheByteForAPreview)
{
    EXPECT_TRUE(SameBytes(Written(SetupInfoMode::Preview),
                          GoldenFile("builder/full_project/QNSETUP_preview.INF")));
}

TEST_F(FullSetupInfo, ComesBackFromItsReader)
{
    const SetupInformation info = ReadBack();
    const Project& back = info.project;
    EXPECT_TRUE(info.isWhole);
    EXPECT_EQ(info.XProductVersion, "2.1.0.7");
    EXPECT_EQ(info.Files, 7);
    EXPECT_EQ(info.TotalSize, 12);
    EXPECT_EQ(info.DesWidth, 800);
    EXPECT_EQ(info.UseComponents, kOn);
    EXPECT_EQ(back.ProjectName.ProjectName, "Räkna");
    EXPECT_EQ(back.RunAppSelfX.Param, "/x \"a b\"");
    EXPECT_EQ(back.DialogBoxData.WelcomeDlgText, project.DialogBoxData.WelcomeDlgText);
    EXPECT_EQ(back.DialogBoxData.CorrectPassword, "två ord");
    EXPECT_EQ(back.DesPictures.Pictures[2].PictureXPos, 75);
    EXPECT_EQ(back.DesPicturesAnim.P[1], "a2.bmp");
    EXPECT_EQ(back.Lists.RunScriptBefore, project.Lists.RunScriptBefore);
    EXPECT_EQ(back.Lists.INIFiles, "%WINDIR\\firma.ini\r\n\r\n[Mapp]");
    EXPECT_EQ(back.FileComponents[1].CompText, "rad 1\r\nrad 2");
    EXPECT_EQ(back.FileComponents[1].CompAdvUpdateInfoBoxText, "Installera först");
}

TEST_F(FullSetupInfo, GivesTheSameFileWhenWhatWasReadIsWrittenAgain)
{
    const std::string first = Written();
    Project again = ReadSetupInformation(first).project;
    again.Version.XProductVersionFName = project.Version.XProductVersionFName;
    again.Files = project.Files;
    project = again;
    EXPECT_TRUE(SameBytes(Written(), first));
}

TEST_F(WriteSetupInfo, WritesANewProjectForFloppiesToTheByte)
{
    OpenProjectState state;
    ResetToNewProject(project, state, "C:\\Quillon");
    project.ProjectName.ProjectName = "Demo";
    project.InstallDirectories.DestinationDirectory = "%PROGDIR\\Demo";
    project.Media.TargetMedia = 1;
    project.Files.rows = {Row("a.txt", "%DESTDIR", "c:\\a.txt")};
    project.Files.rows[0][Size] = "2,0";
    filesInList = 1;
    EXPECT_TRUE(SameBytes(Written(), GoldenFile("builder/new_project/QNSETUP.INF")));
}

TEST_F(WriteSetupInfo, HasTheDiskCountOnFloppiesAlone)
{
    for (const Integer medium : std::initializer_list<Integer>{1, 2, 3, 4, 0}) {
        project.Media.TargetMedia = medium;
        EXPECT_EQ(Holds(Written(), "Floppies"), medium == 1) << medium;
    }
}

TEST_F(WriteSetupInfo, StartsAProgramFromTheInternetMediumAlone)
{
    project.RunAppSelfX.ProgramFilename = "C:\\x.exe";
    for (const Integer medium : std::initializer_list<Integer>{1, 2, 3, 4}) {
        project.Media.TargetMedia = medium;
        EXPECT_EQ(Holds(Written(), "[RunAppSelfX]"), medium == 4) << medium;
    }
    project.RunAppSelfX.ProgramFilename = "";
    EXPECT_FALSE(Holds(Written(), "[RunAppSelfX]"));
}

TEST_F(WriteSetupInfo, FillsAnEmptyProgramGroupInTheProjectToo)
{
    project.ProjectName.ProjectName = "Demo";
    EXPECT_TRUE(Holds(Written(), "\r\nProgramGroup = Demo\r\n"));
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "Demo");

    project.ProjectName.ProjectName = "Annat";
    EXPECT_TRUE(Holds(Written(), "\r\nProgramGroup = Demo\r\n"));
}

TEST_F(WriteSetupInfo, PutsABareDocumentIntoTheDestinationFolder)
{
    const std::pair<const char*, const char*> cases[] = {{"a.txt", "%DESTDIR\\a.txt"},
                                                         {"%SYSDIR\\a.txt", "%SYSDIR\\a.txt"},
                                                         {"\\a.txt", "\\a.txt"},
                                                         {"", ""}};
    for (const auto& [name, written] : cases) {
        project.ShowDocAfter.DocFileName = name;
        EXPECT_EQ(ReadBack().project.ShowDocAfter.DocFileName, written);
        EXPECT_EQ(project.ShowDocAfter.DocFileName, name);
    }
}

TEST_F(WriteSetupInfo, HasNoComponentKeysWithoutAComponentInUse)
{
    project.FileComponents[3].CompName = "unused";
    EXPECT_TRUE(Holds(Written(), "[FileComponents]\r\nUseComponents = 0\r\n\r\n[FileListInfo]"));
    project.FileComponents[8].Comp = 1;
    EXPECT_TRUE(Holds(Written(), "UseComponents = 1\r\nComp1 = 0\r\n"));
    EXPECT_TRUE(Holds(Written(), "\r\nComp9 = 1\r\n"));
}

TEST_F(WriteSetupInfo, NeverNamesTheDefaultDialogBitmap)
{
    for (const char* bitmap :
         {"C:\\Quillon\\Res\\SetupDef.bmp", "setupdef.bmp", "X:\\SETUPDEF.BMP"})
        for (const SetupInfoMode mode :
             {SetupInfoMode::Create, SetupInfoMode::TestRun, SetupInfoMode::Preview}) {
            project.DialogBoxes.DlgBitmap = bitmap;
            project.DialogBoxData.NameCompanyDlgBitmap = bitmap;
            const std::string written = Written(mode);
            EXPECT_TRUE(Holds(written, "\r\nDlgBitmap = \r\n"));
            EXPECT_TRUE(Holds(written, "\r\nNameCompanyDlgBitmap = \r\n"));
        }
}

TEST_F(WriteSetupInfo, MarksTheLinesOfTheIniList)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", "[INIFiles]\r\n....\r\n"},
        {"a", "[INIFiles]\r\n>a\r\n....\r\n"},
        {"a\r\n", "[INIFiles]\r\n>a\r\n....\r\n"},
        {"a\r\n\r\n", "[INIFiles]\r\n>a\r\n>\r\n....\r\n"},
        {"\r\n", "[INIFiles]\r\n>\r\n....\r\n"}};
    for (const auto& [text, written] : cases) {
        project.Lists.INIFiles = text;
        EXPECT_TRUE(Holds(Written(), written)) << text;
    }
}

TEST_F(WriteSetupInfo, GivesAnEmptyListOneEmptyLine)
{
    for (const char* name : {"RunScriptBefore", "RunScriptAfter", "Registry", "AutoexecBat",
                             "ConfigSys", "RegisterFileList"})
        EXPECT_TRUE(Holds(Written(), Text("[") + name + "]\r\n\r\n....\r\n\r\n")) << name;
}

TEST_F(WriteSetupInfo, ScramblesThePasswordByTheClock)
{
    project.DialogBoxData.CorrectPassword = "Hemligt1";
    machine.machine.now = {2004, 3, 1, 14, 25, 36};
    const std::string first = Written();
    EXPECT_FALSE(Holds(first, "Hemligt1"));
    EXPECT_TRUE(Holds(first, "CorrectPassword = Qsv"));
    EXPECT_EQ(ReadSetupInformation(first).project.DialogBoxData.CorrectPassword, "Hemligt1");

    machine.machine.now.second = 37;
    const std::string second = Written();
    EXPECT_NE(first, second);
    EXPECT_EQ(ReadSetupInformation(second).project.DialogBoxData.CorrectPassword, "Hemligt1");
}

TEST_F(WriteSetupInfo, RoundsPixelsHalfwayToTheEvenNeighbour)
{
    surface.screen.TPPX = 12;
    surface.screen.TPPY = 20;
    project.DesTextBox.BoxXPos = 18;
    project.DesTextBox.BoxYPos = 30;
    EXPECT_TRUE(Holds(Written(), "BoxXPos = 2\r\nBoxYPos = 2\r\n"));
    project.DesTextBox.BoxXPos = 30;
    project.DesTextBox.BoxYPos = 50;
    EXPECT_TRUE(Holds(Written(), "BoxXPos = 2\r\nBoxYPos = 2\r\n"));
}

TEST_F(WriteSetupInfo, LeavesOutWhatNewWindowsHasInTheTotal)
{
    project.Files.rows = {Row("a", "b", "c"), Row("OLEAUT32.DLL", "b", "c")};
    project.Files.rows[0][Size] = "7,0";
    project.Files.rows[1][Size] = "4,0";
    EXPECT_EQ(ReadBack().TotalSize, 11);
    project.OperatingSystem.TargetOperatingSystem = 1;
    EXPECT_EQ(ReadBack().TotalSize, 7);
}

TEST_F(WriteSetupInfo, HasAnEmptyVersionForAFileWithoutOne)
{
    EXPECT_FALSE(Holds(Written(), "XProductVersion"));
    project.Version.XProductVersionFName = "C:\\missing.exe";
    EXPECT_TRUE(Holds(Written(), "\r\nXProductVersion = \r\n"));
}

TEST_F(WriteSetupInfo, ReplacesAnExistingFile)
{
    machine.files.Put(kPath, std::string(100'000, 'x'));
    EXPECT_TRUE(Written().ends_with("-(EOF)-\r\n\r\n"));
    EXPECT_FALSE(Holds(Written(), "xxx"));
}

TEST_F(WriteSetupInfo, ReturnsTheNumberOfAFailedWrite)
{
    machine.files.FailFromWrite(1, 61);
    EXPECT_EQ(Write(), 61);
}

TEST_F(WriteSetupInfo, ReturnsTheNumberOfARefusedFile)
{
    machine.files.RefuseOutput(kPath, 75);
    EXPECT_EQ(Write(), 75);
}

TEST_F(WriteSetupInfo, RefusesMoreAnimationPicturesThanThereAre)
{
    project.DesPicturesAnim.NrAnimPictures = 22;
    EXPECT_EQ(Write(), 9);
    project.DesPicturesAnim.NrAnimPictures = 21;
    EXPECT_TRUE(Holds(Written(), "\r\nP21 = \r\n"));
    project.DesPicturesAnim.NrAnimPictures = -1;
    EXPECT_FALSE(Holds(Written(), "\r\nP1 = "));
}

} // namespace quillon
