#include "project/new_project.h"

#include "project/project_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon {

namespace {

struct NewProject : testing::Test {
    NewProject() { ResetToNewProject(project, state, "c:\\PROGRAM\\quillon"); }

    const Text bitmap = "C:\\Program\\Quillon\\Res\\SetupDef.bmp";
    Project project;
    OpenProjectState state;
};

} // namespace

TEST_F(NewProject, HasNoNameYetAndIsClean)
{
    EXPECT_EQ(state.ProjectFileName, "noname");
    EXPECT_EQ(state.ProjectIsDirty, kOff);
    EXPECT_EQ(state.LastAddDirectory, "C:\\");
    EXPECT_THAT(state.DestinationDirectoryChoices, testing::Each(""));
}

TEST_F(NewProject, KnowsNothingOfTheProduct)
{
    EXPECT_EQ(project.LastDirectories.CreatationDestDir, "");
    EXPECT_EQ(project.LastDirectories.LastDir_Create_CdCompress, "");
    EXPECT_EQ(project.LastDirectories.LastDir_Create_CdTree, "");
    EXPECT_EQ(project.LastDirectories.LastDir_Create_Internet, "");
    EXPECT_EQ(project.ProjectName.ProjectName, "");
    EXPECT_EQ(project.Version.CompanyName, "");
    EXPECT_EQ(project.Version.ProductName, "");
    EXPECT_EQ(project.Version.Description, "");
    EXPECT_EQ(project.Version.ProductVersion, "");
    EXPECT_EQ(project.Version.XProductVersionFName, "");
    EXPECT_EQ(project.InstallDirectories.DestinationDirectory, "");
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "");
}

TEST_F(NewProject, IsForACompressedCdOnEverySystem)
{
    EXPECT_EQ(project.Media.TargetMedia, 2);
    EXPECT_EQ(project.OperatingSystem.TargetOperatingSystem, 0);
    EXPECT_EQ(project.Compression.CompressFiles, kOn);
    EXPECT_EQ(project.Compression.KeepCompressedFilesOneAndOne, 0);
    EXPECT_EQ(project.ProgramGroup.ProgramGroup_CurrentUser, kOn);
    EXPECT_EQ(project.ProgramGroup.ProgramGroup_AllUsers, kOff);
    const section::TargetOS& systems = project.TargetOS;
    EXPECT_EQ(systems.TargetOS_Win95, kOn);
    EXPECT_EQ(systems.TargetOS_Win95OSR2, kOn);
    EXPECT_EQ(systems.TargetOS_Win98, kOn);
    EXPECT_EQ(systems.TargetOS_WinME, kOn);
    EXPECT_EQ(systems.TargetOS_WinNT4, kOn);
    EXPECT_EQ(systems.TargetOS_WinNT4SP3, kOn);
    EXPECT_EQ(systems.TargetOS_Win2000, kOn);
    EXPECT_EQ(systems.TargetOS_WinXP, kOn);
    EXPECT_EQ(systems.TargetOS_WarnIfWrong, kOn);
    EXPECT_EQ(systems.TargetOS_StopIfWrong, kOff);
}

TEST_F(NewProject, HasTheUsualInstallOptions)
{
    const section::InstallOptions& options = project.InstallOptions;
    EXPECT_EQ(options.SetupName, "SETUP.EXE");
    EXPECT_EQ(options.DeleteProgGroup, kOn);
    EXPECT_EQ(options.RestartWindows, kOff);
    EXPECT_EQ(options.NeverRestartWindows, kOff);
    EXPECT_EQ(options.CreateAutorunFile, kOff);
    EXPECT_EQ(options.UninstallSupport, kOff);
    EXPECT_EQ(options.CreateUninstallIcon, kOff);
    EXPECT_EQ(options.DontInstallSysFilesOnNewWin, kOn);
    EXPECT_EQ(options.ExpandVariablesInRegistryKeys, "True");
    EXPECT_EQ(options.ExpandVariablesInDialogBoxes, "True");
    EXPECT_EQ(project.InstallOptionsInternet.SelfExtractFilename, "self.exe");
    EXPECT_EQ(project.InstallOptionsInternet.SelfExtractIconFilename, "");
    EXPECT_EQ(project.InstallOptionsInternet.ExpandEXEInWinTempMap, kOn);
    EXPECT_EQ(project.Sign.SignSelfExtractFile, kOff);
    EXPECT_EQ(project.Sign.SignDescription, "");
    EXPECT_EQ(project.Sign.SignURL, "");
    EXPECT_EQ(project.Sign.SignSPCFilename, "");
    EXPECT_EQ(project.Sign.SignPVKFilename, "");
    EXPECT_EQ(project.Sign.SignTimeStampSystem, 0);
    EXPECT_EQ(project.NET.NET_TestIfInstalled, kOff);
    EXPECT_EQ(project.NET.NET_ver10, kOn);
    EXPECT_EQ(project.NET.NET_ver11, kOff);
    EXPECT_EQ(project.NET.NET_WarnIfNoNET, kOn);
    EXPECT_EQ(project.NET.NET_StopIfNoNET, kOff);
    EXPECT_EQ(project.Language.LanguageFile, "SWEDISH.LNG");
    EXPECT_EQ(project.Databases.MDAHiddenInstall, kOn);
    EXPECT_EQ(project.Databases.MDAAskUser, kOff);
    EXPECT_EQ(project.FontOptions.NeverReplaceExistingFonts, 1);
}

TEST_F(NewProject, RunsAndShowsNothing)
{
    EXPECT_EQ(project.RunAppSelfX.ProgramFilename, "");
    EXPECT_EQ(project.RunAppSelfX.Param, "");
    EXPECT_EQ(project.RunAppSelfX.ReturnValueExit, "");
    EXPECT_EQ(project.RunAppSelfX.ReturnValueBack, "");
    EXPECT_EQ(project.RunAppSelfX.ReturnValueDD, "");
    EXPECT_EQ(project.RunAppSelfX.DD_iHKEYIndex, "0");
    EXPECT_EQ(project.RunAppSelfX.DD_sSubKey, "");
    EXPECT_EQ(project.RunAppSelfX.DD_sValueName, "");
    EXPECT_EQ(project.RunAppSelfX.VisibleWin, kOff);
    EXPECT_EQ(project.RunAppAfter.AppFileName1, "");
    EXPECT_EQ(project.RunAppAfter.AppParam1, "");
    EXPECT_EQ(project.RunAppAfter.AppFileName2, "");
    EXPECT_EQ(project.RunAppAfter.AppParam2, "");
    EXPECT_EQ(project.ShowDocAfter.DocFileName, "");
    EXPECT_EQ(project.ShowDocAfter.ShowCheckBox, kOff);
    EXPECT_EQ(project.ShowDocAfter.CheckBoxText, "&Läs dokumentet 'Viktig Information'");
    EXPECT_EQ(project.ShowDocAfter.UseInternalRTFBox, kOff);
    EXPECT_EQ(project.ShowDocAfter.InternalRTFBoxDlgTitle, "");
}

TEST_F(NewProject, ShowsThreeDialogPages)
{
    const section::DialogBoxes& dialogs = project.DialogBoxes;
    EXPECT_EQ(dialogs.WelcomeDlg, 1);
    EXPECT_EQ(dialogs.GeneralInfoDlg, 0);
    EXPECT_EQ(dialogs.GeneralInfoDlg2, 0);
    EXPECT_EQ(dialogs.LicenseInfoDlg, 0);
    EXPECT_EQ(dialogs.LicenseInfoRtfDlg, 0);
    EXPECT_EQ(dialogs.PasswordDlg, 0);
    EXPECT_EQ(dialogs.NameCompanyDlg, 0);
    EXPECT_EQ(dialogs.DestinationDlg, 1);
    EXPECT_EQ(dialogs.DestinationDriveDlg, 0);
    EXPECT_EQ(dialogs.ProgramGroupDlg, 0);
    EXPECT_EQ(dialogs.StartInstallDlg, 0);
    EXPECT_EQ(dialogs.InstallCompletedDlg, 1);
    EXPECT_EQ(dialogs.DlgBitmap, bitmap);
}

TEST_F(NewProject, HasTextsAndPicturesForItsDialogs)
{
    const section::DialogBoxData& data = project.DialogBoxData;
    EXPECT_EQ(data.WelcomeDlgTitle, "Välkommen");
    EXPECT_EQ(data.GeneralDlgTitle, "Generell information");
    EXPECT_EQ(data.GeneralDlgTitle2, "Generell information 2");
    EXPECT_EQ(data.StartInstallDlgTitle, "Starta installation");
    EXPECT_EQ(data.InstallCompleteDlgTitle, "Installationen avslutad");
    for (const Text& text : {data.WelcomeDlgText, data.GeneralDlgText, data.GeneralDlgText2,
                             data.StartInstallDlgText, data.InstallCompleteDlgText})
        EXPECT_EQ(text, "");
    for (const Text& picture :
         {data.WelcomeDlgBitmap, data.GeneralDlgBitmap, data.GeneralDlgBitmap2,
          data.StartInstallDlgBitmap, data.InstallCompleteDlgBitmap, data.NameCompanyDlgBitmap})
        EXPECT_EQ(picture, bitmap);
    EXPECT_EQ(data.LicenseTitle, "Licensinformation");
    EXPECT_EQ(data.LicenseText, "");
    EXPECT_EQ(data.LicenseFootText, "");
    EXPECT_EQ(data.LicenseTitleRtf, "Licensinformation");
    EXPECT_EQ(data.LicenseFootTextRtf, "");
    EXPECT_EQ(data.LicenseFilenameRtf, "");
    EXPECT_EQ(data.PasswordDialogText,
              "Skriv in korrekt lösenord. Det krävs för att programmet ska kunna installeras.");
    EXPECT_EQ(data.CorrectPassword, "");
    EXPECT_EQ(data.NameCompanyExtendedInfo, kOff);
    EXPECT_EQ(data.GetNameCompanyFromRegistry, kOff);
    EXPECT_EQ(data.DestDirShowSizeInfo, kOff);
    EXPECT_EQ(data.DestDirShowSizeInfoButton, kOn);
    EXPECT_EQ(data.DestDriveShowSizeInfo, kOff);
    EXPECT_EQ(data.DestDriveShowSizeInfoButton, kOn);
    EXPECT_EQ(data.WarnIfDestDirExists, kOff);
}

TEST_F(NewProject, HasNoUserValuesAndNoUpdating)
{
    const section::LicenseData& user = project.LicenseData;
    for (const Text& value : {user.UserCompany, user.UserName, user.UserAddress, user.UserPhone,
                              user.UserFax, user.Useremail, project.RegPrivateVar.Reg1,
                              project.RegPrivateVar.Reg2, project.RegPrivateVar.Reg3})
        EXPECT_EQ(value, "");
    EXPECT_EQ(project.Updates.HandleUpdate, kOff);
    EXPECT_EQ(project.Updates.UpdateReferenceFile, "");
    EXPECT_EQ(project.Updates.AdvUpdateRegHKEYIndex, 0);
    EXPECT_EQ(project.Updates.AdvUpdateRegSubKey, "");
    EXPECT_EQ(project.Updates.AdvUpdateRegValueName, "");
    EXPECT_EQ(project.Updates.AdvUpdateRegAlwaysUseUserDefKey, kOff);
}

TEST_F(NewProject, HasABlueBackgroundWithAYellowTitle)
{
    const section::DesBackground& background = project.DesBackground;
    EXPECT_EQ(background.Type, 1);
    EXPECT_EQ(background.BackColor1, 16711680);
    EXPECT_EQ(background.BackColor2, 0);
    EXPECT_EQ(background.BlendDirection, 4);
    EXPECT_EQ(background.BlendDepth, "");
    EXPECT_EQ(background.PictureFilename, "");
    EXPECT_EQ(background.StretchPicture, kOn);
    const section::DesTitle& title = project.DesTitle;
    EXPECT_EQ(title.TitleText, "Titel");
    EXPECT_EQ(title.TitleForeColor, 65535);
    EXPECT_EQ(title.TitleAlignment, 1);
    EXPECT_EQ(title.TitleShadow, kOn);
    EXPECT_EQ(title.TitleCharInterSpace, "0");
    EXPECT_EQ(title.TitleFontName, "Times New Roman");
    EXPECT_EQ(title.TitleFontSize, 26);
    EXPECT_EQ(title.TitleFontBold, kOn);
    EXPECT_EQ(title.TitleFontItalic, kOn);
    const section::DesTitleUnderline& underline = project.DesTitleUnderline;
    EXPECT_EQ(underline.UnderlineType, 0);
    EXPECT_EQ(underline.UnderlineColor1, 0);
    EXPECT_EQ(underline.UnderlineColor2, 0);
    EXPECT_EQ(underline.UnderlineHeight, 3);
    EXPECT_EQ(underline.UnderlineTextOnly, 1);
    EXPECT_EQ(project.DesSubTitle.SubTitleText, "");
}

TEST_F(NewProject, HasItsBoxesHidden)
{
    const section::DesTextBox& box = project.DesTextBox;
    EXPECT_EQ(box.BoxTitle, "Titel");
    EXPECT_EQ(box.BoxText, "Text");
    EXPECT_EQ(box.BoxTitleColor, 0);
    EXPECT_EQ(box.BoxTextColor, 0);
    EXPECT_EQ(box.BoxBackColor, 16776960);
    EXPECT_EQ(box.BoxUseBackColor, kOn);
    EXPECT_EQ(box.ShowTextBox, kOff);
    EXPECT_EQ(box.BoxCenter, kOff);
    EXPECT_EQ(box.BoxPlaceBelowTitle, kOff);
    EXPECT_EQ(box.BoxWidth, 200);
    EXPECT_EQ(box.BoxHeight, 100);
    EXPECT_EQ(box.BoxXPos, 400);
    EXPECT_EQ(box.BoxYPos, 2950);
    EXPECT_EQ(box.BoxTitleFontName, "Arial");
    EXPECT_EQ(box.BoxTitleFontSize, 12);
    EXPECT_EQ(box.BoxTitleFontBold, kOn);
    EXPECT_EQ(box.BoxTitleFontItalic, kOff);
    EXPECT_EQ(box.BoxTextFontName, "Arial");
    EXPECT_EQ(box.BoxTextFontSize, 9);
    EXPECT_EQ(box.BoxTextFontBold, kOff);
    EXPECT_EQ(box.BoxTextFontItalic, kOff);
    const section::DesRTFbox& rtf = project.DesRTFbox;
    EXPECT_EQ(rtf.RTFfilename, "");
    EXPECT_EQ(rtf.RTFboxBackColor, 16777215);
    EXPECT_EQ(rtf.ShowRTFbox, kOff);
    EXPECT_EQ(rtf.RTFboxWidth, 200);
    EXPECT_EQ(rtf.RTFboxHeight, 110);
    EXPECT_EQ(rtf.RTFboxXPos, 400);
    EXPECT_EQ(rtf.RTFboxYPos, 2800);
}

TEST_F(NewProject, HasThreeEmptyPicturesSideBySide)
{
    Integer x = 240;
    Integer y = 1140;
    for (const section::DesPicture& picture : project.DesPictures.Pictures) {
        EXPECT_EQ(picture.PictureFilename, "");
        EXPECT_EQ(picture.UseTransparentBkg, kOff);
        EXPECT_EQ(picture.StretchPicture, kOff);
        EXPECT_EQ(picture.PictureWidth, 200);
        EXPECT_EQ(picture.PictureHeight, 100);
        EXPECT_EQ(picture.PictureXPos, x);
        EXPECT_EQ(picture.PictureYPos, y);
        x = static_cast<Integer>(x + 100);
        y = static_cast<Integer>(y + 100);
    }
    EXPECT_EQ(project.DesPictures.TransparentColorNr, 8);
    EXPECT_EQ(project.DesPictures.HidePicturesWhenDialogsShowed, 1);
}

TEST_F(NewProject, HasNoSlideShowNoLogotypeAndNoSound)
{
    const section::DesPicturesAnim& show = project.DesPicturesAnim;
    EXPECT_EQ(show.NrAnimPictures, 0);
    EXPECT_EQ(show.StretchPicture, kOff);
    EXPECT_EQ(show.PictureWidth, 200);
    EXPECT_EQ(show.PictureHeight, 100);
    EXPECT_EQ(show.PictureXPos, 540);
    EXPECT_EQ(show.PictureYPos, 1440);
    EXPECT_EQ(show.IntervalSeconds, 5);
    EXPECT_EQ(show.P.size(), 21U);
    const section::DesLogotype& logotype = project.DesLogotype;
    EXPECT_EQ(logotype.LogotypeFilename, "");
    EXPECT_EQ(logotype.UseTransparentBkg, kOff);
    EXPECT_EQ(logotype.TransparentColorNr, 8);
    EXPECT_EQ(logotype.LogotypeAlignment, 3);
    EXPECT_EQ(logotype.LogotypeWMFWidth, 200);
    EXPECT_EQ(logotype.LogotypeWMFHeight, 50);
    EXPECT_EQ(project.DesPercentGauge.GaugeAlignmentH, 2);
    EXPECT_EQ(project.DesPercentGauge.GaugeAlignmentV, 2);
    EXPECT_EQ(project.DesSound.BackSoundFilename, "");
}

TEST_F(NewProject, HasEmptyListsAndNineUnusedComponents)
{
    const section::Lists& lists = project.Lists;
    for (const Text& list :
         {lists.RunScriptBefore, lists.RunScriptAfter, lists.Registry, lists.INIFiles,
          lists.AutoexecBat, lists.ConfigSys, lists.RegisterFileList})
        EXPECT_EQ(list, "");
    EXPECT_EQ(project.FileComponents.size(), 9U);
    for (const section::FileComponent& component : project.FileComponents) {
        EXPECT_EQ(component.Comp, 0);
        EXPECT_EQ(component.CompName, "");
        EXPECT_EQ(component.CompDir, "");
        EXPECT_EQ(component.CompText, "");
        EXPECT_EQ(component.CompDefault, 1);
        EXPECT_EQ(component.CompCanChangeDir, 0);
        EXPECT_EQ(component.CompMustAlwaysBeInstalled, 0);
        EXPECT_EQ(component.CompAdvOnlyUpdate, 0);
        EXPECT_EQ(component.CompAdvUpdateRefFile, "");
        EXPECT_EQ(component.CompAdvUpdateInfoBoxTitle, "");
        EXPECT_EQ(component.CompAdvUpdateInfoBoxText, "");
    }
}

TEST_F(NewProject, HasAnEmptyFileListSortedByName)
{
    EXPECT_TRUE(project.Files.rows.empty());
    EXPECT_TRUE(project.Files.sorted);
    EXPECT_EQ(project.Files.sortKey, Filename);
}

TEST_F(NewProject, KeepsTheCommentOfTheProjectBeforeIt)
{
    project.Version = {.CompanyName = "Firma AB", .Comments = "Byggs varje fredag"};
    ResetToNewProject(project, state, "C:\\Quillon");
    EXPECT_EQ(project.Version.Comments, "Byggs varje fredag");
    EXPECT_EQ(project.Version.CompanyName, "");
}

TEST_F(NewProject, KeepsThePictureNamesOfTheSlideShowBehindACountOfZero)
{
    project.DesPicturesAnim.NrAnimPictures = 2;
    project.DesPicturesAnim.P[0] = "a.bmp";
    project.DesPicturesAnim.P[20] = "u.bmp";
    ResetToNewProject(project, state, "C:\\Quillon");
    EXPECT_EQ(project.DesPicturesAnim.NrAnimPictures, 0);
    EXPECT_EQ(project.DesPicturesAnim.P[0], "a.bmp");
    EXPECT_EQ(project.DesPicturesAnim.P[20], "u.bmp");
}

TEST_F(NewProject, KeepsTheLastDestinationChoiceAlone)
{
    state.DestinationDirectoryChoices = {"a", "b", "c", "d", "e", "f"};
    ResetToNewProject(project, state, "C:\\Quillon");
    EXPECT_THAT(state.DestinationDirectoryChoices, testing::ElementsAre("", "", "", "", "", "f"));
}

TEST_F(NewProject, ForgetsRowsStartupLinesAndTheFileName)
{
    project.Files.rows.emplace_back();
    project.Files.sorted = false;
    project.Files.sortKey = Source;
    project.Lists.AutoexecBat = "SET A=B";
    state.ProjectFileName = "C:\\a.qnp";
    state.ProjectIsDirty = kOn;
    state.LastAddDirectory = "D:\\";
    ResetToNewProject(project, state, "C:\\Quillon");
    EXPECT_TRUE(project.Files.rows.empty());
    EXPECT_TRUE(project.Files.sorted);
    EXPECT_EQ(project.Files.sortKey, Filename);
    EXPECT_EQ(project.Lists.AutoexecBat, "");
    EXPECT_EQ(state.ProjectFileName, "noname");
    EXPECT_EQ(state.ProjectIsDirty, kOff);
    EXPECT_EQ(state.LastAddDirectory, "C:\\");
}

TEST(DefaultDlgBitmap, LiesBelowTheToolFolderInDisplayCase)
{
    EXPECT_EQ(DefaultDlgBitmap("c:\\PROGRAM FILES\\qn"),
              "C:\\Program files\\Qn\\Res\\SetupDef.bmp");
    EXPECT_EQ(DefaultDlgBitmap("d:\\"), "D:\\Res\\SetupDef.bmp");
}

} // namespace quillon
