#include "full_project.h"

namespace quillon::test {

namespace {

void FillSettings(Project& project)
{
    project.ProjectName.ProjectName = "Räkna";
    project.Version = {.CompanyName = "Firma AB",
                       .ProductName = "Räkna 2",
                       .Description = "Beskrivning",
                       .ProductVersion = "2.1",
                       .XProductVersionFName = "C:\\Data\\App\\räkna.exe",
                       .Comments = "Kommentar"};
    project.Media.TargetMedia = 4;
    project.Compression = {.CompressFiles = kOff, .KeepCompressedFilesOneAndOne = 1};
    project.InstallDirectories.DestinationDirectory = "%PROGDIR\\Räkna";
    project.ProgramGroup.ProgramGroup_CurrentUser = kOff;
    project.ProgramGroup.ProgramGroup_AllUsers = kOn;
    project.InstallOptions = {.SetupName = "INSTALL.EXE",
                              .DeleteProgGroup = kOff,
                              .RestartWindows = kOn,
                              .CreateAutorunFile = kOn,
                              .UninstallSupport = kOn,
                              .CreateUninstallIcon = kOn,
                              .DontInstallSysFilesOnNewWin = kOff,
                              .ExpandVariablesInRegistryKeys = "-1",
                              .ExpandVariablesInDialogBoxes = "0"};
    project.TargetOS = {.TargetOS_Win95 = kOff,
                        .TargetOS_Win98 = kOff,
                        .TargetOS_WinNT4 = kOff,
                        .TargetOS_Win2000 = kOff,
                        .TargetOS_WarnIfWrong = kOff,
                        .TargetOS_StopIfWrong = kOn};
    project.NET = {.NET_TestIfInstalled = kOn,
                   .NET_ver10 = kOff,
                   .NET_ver11 = kOn,
                   .NET_WarnIfNoNET = kOff,
                   .NET_StopIfNoNET = kOn};
    project.RunAppSelfX = {.ProgramFilename = "C:\\Data\\Starta.exe",
                           .Param = "/x \"a b\"",
                           .ReturnValueExit = "1",
                           .ReturnValueBack = "2",
                           .ReturnValueDD = "3",
                           .DD_iHKEYIndex = "2",
                           .DD_sSubKey = "Software\\Firma",
                           .DD_sValueName = "Mapp",
                           .VisibleWin = kOn};
    project.Language.LanguageFile = "ENGLISH.LNG";
    project.Databases = {.MDAHiddenInstall = kOff, .MDAAskUser = kOn};
    project.RunAppAfter = {"%DESTDIR\\a.exe", "\"x y\"", "%DESTDIR\\b.exe", "/b"};
    project.ShowDocAfter = {.DocFileName = "Läsmig.txt",
                            .ShowCheckBox = 1,
                            .CheckBoxText = "&Läs",
                            .UseInternalRTFBox = 1,
                            .InternalRTFBoxDlgTitle = "Viktigt"};
    project.FontOptions.NeverReplaceExistingFonts = 0;
    project.LicenseData = {"u1", "u2", "u3", "u4", "u5", "u6"};
    project.RegPrivateVar = {"r1", "r2", "r3"};
    project.Updates = {.HandleUpdate = kOn,
                       .UpdateReferenceFile = "ref.exe",
                       .AdvUpdateRegHKEYIndex = 2,
                       .AdvUpdateRegSubKey = "Software\\Firma",
                       .AdvUpdateRegValueName = "Mapp",
                       .AdvUpdateRegAlwaysUseUserDefKey = kOn};
}

void FillDialogs(Project& project)
{
    project.DialogBoxes = {.WelcomeDlg = 0,
                           .GeneralInfoDlg = 1,
                           .GeneralInfoDlg2 = 1,
                           .LicenseInfoDlg = 1,
                           .LicenseInfoRtfDlg = 1,
                           .PasswordDlg = 1,
                           .NameCompanyDlg = 1,
                           .DestinationDlg = 0,
                           .DestinationDriveDlg = 1,
                           .ProgramGroupDlg = 1,
                           .StartInstallDlg = 1,
                           .InstallCompletedDlg = 2, // neither ticked nor unticked
                           .DlgBitmap = "C:\\Bilder\\sida.bmp"};
    project.DialogBoxData = {.WelcomeDlgTitle = "T1",
                             .GeneralDlgTitle = "T2",
                             .GeneralDlgTitle2 = "T3",
                             .StartInstallDlgTitle = "T4",
                             .InstallCompleteDlgTitle = "T5",
                             .WelcomeDlgText = "Välkommen\r\ntill Räkna",
                             .GeneralDlgText = "a\r\n\r\nb",
                             .GeneralDlgText2 = "två",
                             .StartInstallDlgText = "start\r\n",
                             .InstallCompleteDlgText = "klart",
                             .WelcomeDlgBitmap = "C:\\Bilder\\b1.bmp",
                             .GeneralDlgBitmap = "C:\\Bilder\\b2.bmp",
                             .GeneralDlgBitmap2 = "C:\\Quillon\\Res\\SetupDef.bmp",
                             .StartInstallDlgBitmap = "C:\\Bilder\\b4.bmp",
                             .InstallCompleteDlgBitmap = "C:\\Bilder\\b5.bmp",
                             .NameCompanyDlgBitmap = "C:\\Bilder\\b6.bmp",
                             .LicenseTitle = "Licens",
                             .LicenseText = "rad 1\r\nrad 2",
                             .LicenseFootText = "fot",
                             .LicenseTitleRtf = "Licens RTF",
                             .LicenseFootTextRtf = "fot RTF",
                             .LicenseFilenameRtf = "C:\\Data\\licens.rtf",
                             .PasswordDialogText = "Lösenord?\r\nmer",
                             .CorrectPassword = "två ord", // cannot be scrambled
                             .NameCompanyExtendedInfo = kOn,
                             .GetNameCompanyFromRegistry = kOn,
                             .DestDirShowSizeInfo = kOn,
                             .DestDirShowSizeInfoButton = kOff,
                             .DestDriveShowSizeInfo = kOn,
                             .DestDriveShowSizeInfoButton = kOff,
                             .WarnIfDestDirExists = kOn};
}

void FillDesign(Project& project)
{
    project.DesBackground = {.Type = 3,
                             .BackColor1 = 255,
                             .BackColor2 = -2147483633,
                             .BlendDirection = 2,
                             .BlendDepth = "64",
                             .PictureFilename = "C:\\Bilder\\bakgrund.jpg",
                             .StretchPicture = kOff};
    project.DesTitle = {.TitleText = "Räkna",
                        .TitleForeColor = 16777215,
                        .TitleAlignment = 2,
                        .TitleShadow = kOff,
                        .TitleCharInterSpace = "1,5",
                        .TitleFontName = "Arial",
                        .TitleFontSize = 30,
                        .TitleFontBold = kOff,
                        .TitleFontItalic = kOff};
    project.DesTitleUnderline = {2, 65535, 255, 5, 0};
    project.DesSubTitle.SubTitleText = "för alla";
    project.DesTextBox = {.BoxTitle = "Ruta",
                          .BoxText = "ett\r\ntvå",
                          .BoxTitleColor = 1,
                          .BoxTextColor = 2,
                          .BoxBackColor = 3,
                          .BoxUseBackColor = kOff,
                          .ShowTextBox = kOn,
                          .BoxCenter = kOn,
                          .BoxPlaceBelowTitle = kOn,
                          .BoxWidth = 210,
                          .BoxHeight = 110,
                          .BoxXPos = 517,
                          .BoxYPos = 3690,
                          .BoxTitleFontName = "Verdana",
                          .BoxTitleFontSize = 14,
                          .BoxTitleFontBold = kOff,
                          .BoxTitleFontItalic = kOn,
                          .BoxTextFontName = "Tahoma",
                          .BoxTextFontSize = 10,
                          .BoxTextFontBold = kOn,
                          .BoxTextFontItalic = kOn};
    project.DesRTFbox = {.RTFfilename = "text.rtf",
                         .RTFboxBackColor = 12632256,
                         .ShowRTFbox = kOn,
                         .RTFboxWidth = 220,
                         .RTFboxHeight = 120,
                         .RTFboxXPos = -22,
                         .RTFboxYPos = 3000};
    project.DesPictures.Pictures = {
        section::DesPicture{"C:\\Bilder\\p1.bmp", kOn, kOff, 11, 12, 15, 30},
        section::DesPicture{"", kOff, kOn, 21, 22, 45, 60},
        section::DesPicture{"C:\\Bilder\\p3.bmp", kOff, kOff, 31, 32, 75, 90}};
    project.DesPictures.TransparentColorNr = 7;
    project.DesPictures.HidePicturesWhenDialogsShowed = -1;
    project.DesPicturesAnim = {.NrAnimPictures = 2,
                               .StretchPicture = kOn,
                               .PictureWidth = 41,
                               .PictureHeight = 42,
                               .PictureXPos = 105,
                               .PictureYPos = 120,
                               .IntervalSeconds = 9,
                               .P = {"C:\\Bilder\\a1.bmp", "C:\\Bilder\\a2.bmp", "C:\\unused.bmp"}};
    project.DesLogotype = {.LogotypeFilename = "C:\\Bilder\\logo.wmf",
                           .UseTransparentBkg = kOn,
                           .TransparentColorNr = 6,
                           .LogotypeAlignment = 1,
                           .LogotypeWMFWidth = 210,
                           .LogotypeWMFHeight = 60};
    project.DesPercentGauge = {1, 3};
    project.DesSound.BackSoundFilename = "C:\\Bilder\\ljud.wav";
}

void FillLists(Project& project)
{
    project.Lists = {.RunScriptBefore = "MESSAGE Hej\r\n[Registry]\r\n",
                     .Registry = "HKEY_LOCAL_MACHINE;Software\\Firma;Mapp;%DESTDIR;1;",
                     .INIFiles = "%WINDIR\\firma.ini\r\n\r\n[Mapp]\r\n",
                     .AutoexecBat = "SET RAKNA=1",
                     .RegisterFileList = "%SYSDIR\\a.ocx"};
    project.FileComponents[1] = {.Comp = 1,
                                 .CompName = "Hjälp",
                                 .CompDir = "\\Hjälp\\Sv",
                                 .CompText = "rad 1\r\nrad 2",
                                 .CompDefault = 0,
                                 .CompCanChangeDir = 1,
                                 .CompMustAlwaysBeInstalled = -1,
                                 .CompAdvOnlyUpdate = 1,
                                 .CompAdvUpdateRefFile = "%DESTDIR\\h.exe",
                                 .CompAdvUpdateInfoBoxTitle = "Saknas",
                                 .CompAdvUpdateInfoBoxText = "Installera först"};
    // Held by a component that is no update, these do not reach the file.
    project.FileComponents[2].CompAdvUpdateRefFile = "unused";
}

} // namespace

Project FullProject()
{
    Project project;
    FillSettings(project);
    FillDialogs(project);
    FillDesign(project);
    FillLists(project);
    return project;
}

FileListRow Row(const Text& name, const Text& destination, const Text& source, const Text& options)
{
    FileListRow row;
    row[Filename] = name;
    row[Destination] = destination;
    row[Size] = "1,0";
    row[CopyOptions] = options;
    row[Source] = source;
    return row;
}

} // namespace quillon::test
