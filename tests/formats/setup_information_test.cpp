#include "formats/setup_information.h"

#include "formats/scramble.h"
#include "support/golden.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

const Text kHeader = "[Origin]\r\nInfo = This file is created by Tavrell Quillon 2004\r\n\r\n"
                     "[ID]\r\nApp = Quillon\r\nVer = 6.5.6\r\nFileType = Options\r\n\r\n";
const Text kTail = "-(EOF)-\r\n\r\n";

SetupInformation ReadSections(const Text& sections)
{
    return ReadSetupInformation(kHeader + sections + kTail);
}

} // namespace

TEST(ReadSetupInformation, ReadsTheHeader)
{
    SetupInformation info = ReadSections("");
    EXPECT_TRUE(info.isWhole);
    EXPECT_FALSE(info.isPreview);
    EXPECT_EQ(info.toolVersion, "6.5.6");

    info = ReadSetupInformation(
        ReplaceAll(kHeader, "= Options", "= Options\r\nFileSubType = PreviewFile") + kTail);
    EXPECT_TRUE(info.isWhole);
    EXPECT_TRUE(info.isPreview);
}

TEST(ReadSetupInformation, IsNotWholeWithoutTypeMarkOrEnd)
{
    EXPECT_FALSE(ReadSetupInformation("").isWhole);
    EXPECT_FALSE(ReadSetupInformation(kHeader).isWhole);
    EXPECT_FALSE(ReadSetupInformation(kTail).isWhole);
    EXPECT_FALSE(
        ReadSetupInformation(ReplaceAll(kHeader, "= Options", "= FileList") + kTail).isWhole);
}

TEST(ReadSetupInformation, IsNotWholeWithAListThatDoesNotEnd)
{
    EXPECT_TRUE(ReadSections("[Registry]\r\n\r\n....\r\n\r\n").isWhole);
    EXPECT_FALSE(ReadSections("[Registry]\r\n\r\n\r\n").isWhole);
    EXPECT_FALSE(ReadSections("[INIFiles]\r\n>a\r\n").isWhole);
}

TEST(ReadSetupInformation, IsNotWholeWhereverTheFileIsCut)
{
    const std::string whole = test::GoldenFile("builder/full_project/QNSETUP.INF");
    const std::size_t lastMark = whole.find("-(EOF)-") + 7;
    for (std::size_t length = 0; length < lastMark; ++length)
        ASSERT_FALSE(ReadSetupInformation(whole.substr(0, length)).isWhole) << length;
    EXPECT_TRUE(ReadSetupInformation(whole.substr(0, lastMark)).isWhole);
}

TEST(ReadSetupInformation, TakesAValueAsItStands)
{
    const SetupInformation info =
        ReadSections("[RunAppAfter]\r\nAppParam1 = \"a b\" \"c d\" \r\nappparam2=x=y\r\n\r\n");
    EXPECT_EQ(info.project.RunAppAfter.AppParam1, "\"a b\" \"c d\" ");
    EXPECT_EQ(info.project.RunAppAfter.AppParam2, "x=y");
}

TEST(ReadSetupInformation, TakesTheFirstOfSeveralKeys)
{
    EXPECT_EQ(ReadSections("[ProjectName]\r\nProjectName = A\r\nProjectName = B\r\n")
                  .project.ProjectName.ProjectName,
              "A");
}

TEST(ReadSetupInformation, ReadsTheDiskCount)
{
    EXPECT_EQ(ReadSections("[Media]\r\nTargetMedia = 1\r\nFloppies = xxxx\r\n").Floppies, 0);
    EXPECT_EQ(ReadSections("[Media]\r\nTargetMedia = 1\r\nFloppies=12\r\n").Floppies, 12);
    EXPECT_EQ(ReadSections("[Media]\r\nTargetMedia = 2\r\n").Floppies, 0);
}

TEST(ReadSetupInformation, TakesNumbersBeyondTheTypeAtItsEnd)
{
    const Project project = ReadSections("[Media]\r\nTargetMedia = 99999\r\n"
                                         "[DesTextBox]\r\nBoxXPos = -99999\r\n"
                                         "BoxYPos = 99999999999999999999\r\n"
                                         "[DesTitle]\r\nTitleForeColor = 99999999999999999999\r\n")
                                .project;
    EXPECT_EQ(project.Media.TargetMedia, 32767);
    EXPECT_EQ(project.DesTextBox.BoxXPos, -32768);
    EXPECT_EQ(project.DesTextBox.BoxYPos, 32767);
    EXPECT_EQ(project.DesTitle.TitleForeColor, 2147483647);
}

TEST(ReadSetupInformation, ReadsOneAlonAsTrue)
{
    const Project project = ReadSections("[InstallOptions]\r\nUninstallSupport = 1\r\n"
                                         "CreateAutorunFile = -1\r\n"
                                         "ExpandVariablesInRegistryKeys = 0\r\n"
                                         "ExpandVariablesInDialogBoxes = 1\r\n")
                                .project;
    EXPECT_EQ(project.InstallOptions.UninstallSupport, kOn);
    EXPECT_EQ(project.InstallOptions.CreateAutorunFile, kOff);
    EXPECT_FALSE(IsTrueText(project.InstallOptions.ExpandVariablesInRegistryKeys));
    EXPECT_TRUE(IsTrueText(project.InstallOptions.ExpandVariablesInDialogBoxes));
}

TEST(ReadSetupInformation, GivesPositionsInTwips)
{
    const Project project =
        ReadSections("[DesPictures]\r\nPictureXPos2 = 23\r\nPictureWidth2 = 40\r\n").project;
    EXPECT_EQ(project.DesPictures.Pictures[1].PictureXPos, 345);
    EXPECT_EQ(project.DesPictures.Pictures[1].PictureWidth, 40);
}

TEST(ReadSetupInformation, GivesThePasswordInPlain)
{
    const Text scrambled = ScrambleString("Hemligt1", {36, 25, [](std::uint32_t) { return 0u; }});
    const Text sections = "[DialogBoxData]\r\nCorrectPassword = ";
    EXPECT_EQ(ReadSections(sections + scrambled + "\r\n").project.DialogBoxData.CorrectPassword,
              "Hemligt1");
    EXPECT_EQ(ReadSections(sections + "a b\r\n").project.DialogBoxData.CorrectPassword, "a b");
}

TEST(ReadSetupInformation, DecodesLineBreaksWhereTheyAreEncoded)
{
    const Project project = ReadSections("[DialogBoxData]\r\nWelcomeDlgText = a\x9D\x9E"
                                         "b\r\nLicenseFootText = c\x9D\x9E"
                                         "d\r\n")
                                .project;
    EXPECT_EQ(project.DialogBoxData.WelcomeDlgText, "a\r\nb");
    EXPECT_EQ(project.DialogBoxData.LicenseFootText, "c\u009Dž"
                                                     "d");
}

TEST(ReadSetupInformation, ReadsListsWithLinesThatLookLikeSections)
{
    const Project project =
        ReadSections("[RunScriptBefore]\r\n[Registry]\r\n-(EOF)-\r\n....\r\n\r\n"
                     "[Registry]\r\nHKLM;[Media]\r\n\r\n....\r\n\r\n"
                     "[INIFiles]\r\n>[Media]\r\n>\r\n>....\r\n....\r\n\r\n"
                     "[AutoexecBat]\r\n\r\n....\r\n\r\n")
            .project;
    EXPECT_EQ(project.Lists.RunScriptBefore, "[Registry]\r\n-(EOF)-");
    EXPECT_EQ(project.Lists.Registry, "HKLM;[Media]\r\n");
    EXPECT_EQ(project.Lists.INIFiles, "[Media]\r\n\r\n....");
    EXPECT_EQ(project.Lists.AutoexecBat, "");
}

TEST(ReadSetupInformation, ReadsComponentTextsOfSeveralLines)
{
    const SetupInformation info =
        ReadSections("[Registry]\r\n\r\n....\r\n\r\n[FileComponents]\r\nUseComponents = 1\r\n"
                     "Comp2 = 1\r\nCompName2 = Hjälp\r\n"
                     "CompText2 = rad 1\r\n\r\n[Registry]\r\n"
                     "CompDefault2 = 0\r\nCompAdvOnlyUpdate2 = 1\r\n"
                     "CompAdvUpdateRefFile2 = %DESTDIR\\a\r\n\r\n"
                     "[FileListInfo]\r\nFiles = 3\r\nTotalSize = 70\r\n");
    const section::FileComponent& component = info.project.FileComponents[1];
    EXPECT_EQ(info.UseComponents, kOn);
    EXPECT_EQ(component.Comp, 1);
    EXPECT_EQ(component.CompText, "rad 1\r\n\r\n[Registry]");
    EXPECT_EQ(component.CompAdvOnlyUpdate, 1);
    EXPECT_EQ(component.CompAdvUpdateRefFile, "%DESTDIR\\a");
    EXPECT_EQ(component.CompDefault, 0);
    EXPECT_EQ(info.project.FileComponents[0].CompDefault, 1);
    EXPECT_EQ(info.Files, 3);
    EXPECT_EQ(info.TotalSize, 70);
}

TEST(ReadSetupInformation, HoldsNoMoreAnimationPicturesThanAProject)
{
    Text section = "[DesPicturesAnim]\r\nNrAnimPictures = 30\r\n";
    for (int n = 1; n <= 30; ++n)
        section.append("P")
            .append(NumberText(n))
            .append(" = ")
            .append(NumberText(n))
            .append(".bmp\r\n");
    const Project project = ReadSections(section).project;
    EXPECT_EQ(project.DesPicturesAnim.P.front(), "1.bmp");
    EXPECT_EQ(project.DesPicturesAnim.P.back(), "21.bmp");
    EXPECT_EQ(ReadSections("[DesPicturesAnim]\r\nNrAnimPictures = -4\r\nP1 = a\r\n")
                  .project.DesPicturesAnim.P[0],
              "");
}

} // namespace quillon
