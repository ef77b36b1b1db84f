// The open project: one record for each section of the project file, one field for each key, both
// under the names that they have on file. The values here are those of a new project.
//
// Units: positions on the design screen are twips, sizes of pictures and boxes pixels. A colour is
// 0x00BBGGRR, or negative for a colour of the system.
#pragma once

#include "helpers/number_text.h"
#include "helpers/text.h"
#include "project/file_list.h"
#include "project/reference_language.h"

#include <array>
#include <cstddef>

namespace quillon {

using Colour = Long;

namespace section {

struct LastDirectories {
    Text CreatationDestDir;
    Text LastDir_Create_CdCompress;
    Text LastDir_Create_CdTree;
    Text LastDir_Create_Internet;
};

struct ProjectName {
    Text ProjectName;
};

struct Version {
    Text CompanyName;
    Text ProductName;
    Text Description;
    Text ProductVersion;
    Text XProductVersionFName;
    Text Comments;
};

struct Media {
    Integer TargetMedia = 2;
};

struct OperatingSystem {
    Integer TargetOperatingSystem = 0;
};

struct Compression {
    Flag CompressFiles = kOn;
    Integer KeepCompressedFilesOneAndOne = 0;
    Flag SmallContainer = kOff; // of the compressed CD: a solid container instead of a ZIP file
};

struct InstallDirectories {
    Text DestinationDirectory;
};

struct ProgramGroup {
    Text ProgramGroup;
    Flag ProgramGroup_CurrentUser = kOn;
    Flag ProgramGroup_AllUsers = kOff;
};

struct InstallOptions {
    Text SetupName = "SETUP.EXE";
    Flag DeleteProgGroup = kOn;
    Flag RestartWindows = kOff;
    Flag NeverRestartWindows = kOff;
    Flag CreateAutorunFile = kOff;
    Flag UninstallSupport = kOff;
    Flag CreateUninstallIcon = kOff;
    Flag DontInstallSysFilesOnNewWin = kOn;
    // Texts that hold a boolean: "True" in a new project, "-1" or "0" after a load. See IsTrueText.
    Text ExpandVariablesInRegistryKeys = "True";
    Text ExpandVariablesInDialogBoxes = "True";
};

struct TargetOS {
    Flag TargetOS_Win95 = kOn;
    Flag TargetOS_Win95OSR2 = kOn;
    Flag TargetOS_Win98 = kOn;
    Flag TargetOS_WinME = kOn;
    Flag TargetOS_WinNT4 = kOn;
    Flag TargetOS_WinNT4SP3 = kOn;
    Flag TargetOS_Win2000 = kOn;
    Flag TargetOS_WinXP = kOn;
    Flag TargetOS_WarnIfWrong = kOn;
    Flag TargetOS_StopIfWrong = kOff;
};

struct InstallOptionsInternet {
    Text SelfExtractFilename = "self.exe";
    Text SelfExtractIconFilename;
    Flag ExpandEXEInWinTempMap = kOn;
};

struct Sign {
    Flag SignSelfExtractFile = kOff;
    Text SignDescription;
    Text SignURL;
    Text SignSPCFilename;
    Text SignPVKFilename;
    Integer SignTimeStampSystem = 0;
};

struct NET {
    Flag NET_TestIfInstalled = kOff;
    Flag NET_ver10 = kOn;
    Flag NET_ver11 = kOff;
    Flag NET_WarnIfNoNET = kOn;
    Flag NET_StopIfNoNET = kOff;
};

struct RunAppSelfX {
    Text ProgramFilename;
    Text Param;
    Text ReturnValueExit;
    Text ReturnValueBack;
    Text ReturnValueDD;
    Text DD_iHKEYIndex = "0"; // a number kept as text
    Text DD_sSubKey;
    Text DD_sValueName;
    Flag VisibleWin = kOff;
};

struct Language {
    Text LanguageFile = kReferenceLanguage;
};

struct Databases {
    Flag MDAHiddenInstall = kOn;
    Flag MDAAskUser = kOff;
};

struct RunAppAfter {
    Text AppFileName1;
    Text AppParam1;
    Text AppFileName2;
    Text AppParam2;
};

struct ShowDocAfter {
    Text DocFileName;
    Flag ShowCheckBox = kOff; // 1 after a load, not -1
    Text CheckBoxText = "&Läs dokumentet 'Viktig Information'";
    Flag UseInternalRTFBox = kOff; // 1 after a load, not -1
    Text InternalRTFBoxDlgTitle;
};

struct FontOptions {
    Integer NeverReplaceExistingFonts = 1;
};

struct DialogBoxes {
    Integer WelcomeDlg = 1;
    Integer GeneralInfoDlg = 0;
    Integer GeneralInfoDlg2 = 0;
    Integer LicenseInfoDlg = 0;
    Integer LicenseInfoRtfDlg = 0;
    Integer PasswordDlg = 0;
    Integer NameCompanyDlg = 0;
    Integer DestinationDlg = 1;
    Integer DestinationDriveDlg = 0;
    Integer ProgramGroupDlg = 0;
    Integer StartInstallDlg = 0;
    Integer InstallCompletedDlg = 1;
    Text DlgBitmap; // ResetToNewProject fills it and the six of DialogBoxData
};

struct DialogBoxData {
    Text WelcomeDlgTitle = "Välkommen";
    Text GeneralDlgTitle = "Generell information";
    Text GeneralDlgTitle2 = "Generell information 2";
    Text StartInstallDlgTitle = "Starta installation";
    Text InstallCompleteDlgTitle = "Installationen avslutad";
    Text WelcomeDlgText;
    Text GeneralDlgText;
    Text GeneralDlgText2;
    Text StartInstallDlgText;
    Text InstallCompleteDlgText;
    Text WelcomeDlgBitmap;
    Text GeneralDlgBitmap;
    Text GeneralDlgBitmap2;
    Text StartInstallDlgBitmap;
    Text InstallCompleteDlgBitmap;
    Text NameCompanyDlgBitmap;
    Text LicenseTitle = "Licensinformation";
    Text LicenseText;
    Text LicenseFootText;
    Text LicenseTitleRtf = "Licensinformation";
    Text LicenseFootTextRtf;
    Text LicenseFilenameRtf;
    Text PasswordDialogText =
        "Skriv in korrekt lösenord. Det krävs för att programmet ska kunna installeras.";
    Text CorrectPassword;
    Flag NameCompanyExtendedInfo = kOff;
    Flag GetNameCompanyFromRegistry = kOff;
    Flag DestDirShowSizeInfo = kOff;
    Flag DestDirShowSizeInfoButton = kOn;
    Flag DestDriveShowSizeInfo = kOff;
    Flag DestDriveShowSizeInfoButton = kOn;
    Flag WarnIfDestDirExists = kOff;
};

struct LicenseData {
    Text UserCompany;
    Text UserName;
    Text UserAddress;
    Text UserPhone;
    Text UserFax;
    Text Useremail;
};

struct RegPrivateVar {
    Text Reg1;
    Text Reg2;
    Text Reg3;
};

struct Updates {
    Flag HandleUpdate = kOff;
    Text UpdateReferenceFile;
    Integer AdvUpdateRegHKEYIndex = 0;
    Text AdvUpdateRegSubKey;
    Text AdvUpdateRegValueName;
    Flag AdvUpdateRegAlwaysUseUserDefKey = kOff;
};

struct DesBackground {
    Integer Type = 1;
    Colour BackColor1 = 16711680;
    Colour BackColor2 = 0;
    Integer BlendDirection = 4;
    Text BlendDepth; // a number kept as text
    Text PictureFilename;
    Flag StretchPicture = kOn;
};

struct DesTitle {
    Text TitleText = "Titel";
    Colour TitleForeColor = 65535;
    Integer TitleAlignment = 1;
    Flag TitleShadow = kOn;
    Text TitleCharInterSpace = "0"; // a number kept as text
    Text TitleFontName = "Times New Roman";
    Integer TitleFontSize = 26;
    Flag TitleFontBold = kOn;
    Flag TitleFontItalic = kOn;
};

struct DesTitleUnderline {
    Integer UnderlineType = 0;
    Colour UnderlineColor1 = 0;
    Colour UnderlineColor2 = 0;
    Integer UnderlineHeight = 3;
    Integer UnderlineTextOnly = 1;
};

struct DesSubTitle {
    Text SubTitleText;
};

struct DesTextBox {
    Text BoxTitle = "Titel";
    Text BoxText = "Text";
    Colour BoxTitleColor = 0;
    Colour BoxTextColor = 0;
    Colour BoxBackColor = 16776960;
    Flag BoxUseBackColor = kOn;
    Flag ShowTextBox = kOff;
    Flag BoxCenter = kOff;
    Flag BoxPlaceBelowTitle = kOff;
    Integer BoxWidth = 200;
    Integer BoxHeight = 100;
    Integer BoxXPos = 400;
    Integer BoxYPos = 2950;
    Text BoxTitleFontName = "Arial";
    Integer BoxTitleFontSize = 12;
    Flag BoxTitleFontBold = kOn;
    Flag BoxTitleFontItalic = kOff;
    Text BoxTextFontName = "Arial";
    Integer BoxTextFontSize = 9;
    Flag BoxTextFontBold = kOff;
    Flag BoxTextFontItalic = kOff;
};

struct DesRTFbox {
    Text RTFfilename;
    Colour RTFboxBackColor = 16777215;
    Flag ShowRTFbox = kOff;
    Integer RTFboxWidth = 200;
    Integer RTFboxHeight = 110;
    Integer RTFboxXPos = 400;
    Integer RTFboxYPos = 2800;
};

struct DesPicture {
    Text PictureFilename;
    Flag UseTransparentBkg = kOff;
    Flag StretchPicture = kOff;
    Integer PictureWidth = 200;
    Integer PictureHeight = 100;
    Integer PictureXPos = 0;
    Integer PictureYPos = 0;
};

// Pictures 1, 2 and 3 of the file.
inline constexpr std::size_t kDesPictureCount = 3;

struct DesPictures {
    std::array<DesPicture, kDesPictureCount> Pictures{
        DesPicture{.PictureXPos = 240, .PictureYPos = 1140},
        DesPicture{.PictureXPos = 340, .PictureYPos = 1240},
        DesPicture{.PictureXPos = 440, .PictureYPos = 1340},
    };
    Integer TransparentColorNr = 8;
    Integer HidePicturesWhenDialogsShowed = 1;
};

// The editor offers twenty pictures; a file may name one more.
inline constexpr std::size_t kMaxAnimPictures = 21;

struct DesPicturesAnim {
    Integer NrAnimPictures = 0;
    Flag StretchPicture = kOff;
    Integer PictureWidth = 200;
    Integer PictureHeight = 100;
    Integer PictureXPos = 540;
    Integer PictureYPos = 1440;
    Integer IntervalSeconds = 5;
    std::array<Text, kMaxAnimPictures> P;
};

struct DesLogotype {
    Text LogotypeFilename;
    Flag UseTransparentBkg = kOff;
    Integer TransparentColorNr = 8;
    Integer LogotypeAlignment = 3;
    Integer LogotypeWMFWidth = 200;
    Integer LogotypeWMFHeight = 50;
};

struct DesPercentGauge {
    Integer GaugeAlignmentH = 2;
    Integer GaugeAlignmentV = 2;
};

struct DesSound {
    Text BackSoundFilename;
};

// Free texts, a line a row; an empty text means that the list is not in use.
struct Lists {
    Text RunScriptBefore;
    Text RunScriptAfter;
    Text Registry;
    Text INIFiles;
    Text AutoexecBat;
    Text ConfigSys;
    Text RegisterFileList;
};

struct FileComponent {
    Integer Comp = 0;
    Text CompName;
    Text CompDir;
    Text CompText;
    Integer CompDefault = 1;
    Integer CompCanChangeDir = 0;
    Integer CompMustAlwaysBeInstalled = 0;
    Integer CompAdvOnlyUpdate = 0;
    Text CompAdvUpdateRefFile;
    Text CompAdvUpdateInfoBoxTitle;
    Text CompAdvUpdateInfoBoxText;
};

} // namespace section

inline constexpr std::size_t kComponentCount = 9;

struct Project {
    section::LastDirectories LastDirectories;
    section::ProjectName ProjectName;
    section::Version Version;
    section::Media Media;
    section::OperatingSystem OperatingSystem;
    section::Compression Compression;
    section::InstallDirectories InstallDirectories;
    section::ProgramGroup ProgramGroup;
    section::InstallOptions InstallOptions;
    section::TargetOS TargetOS;
    section::InstallOptionsInternet InstallOptionsInternet;
    section::Sign Sign;
    section::NET NET;
    section::RunAppSelfX RunAppSelfX;
    section::Language Language;
    section::Databases Databases;
    section::RunAppAfter RunAppAfter;
    section::ShowDocAfter ShowDocAfter;
    section::FontOptions FontOptions;
    section::DialogBoxes DialogBoxes;
    section::DialogBoxData DialogBoxData;
    section::LicenseData LicenseData;
    section::RegPrivateVar RegPrivateVar;
    section::Updates Updates;
    section::DesBackground DesBackground;
    section::DesTitle DesTitle;
    section::DesTitleUnderline DesTitleUnderline;
    section::DesSubTitle DesSubTitle;
    section::DesTextBox DesTextBox;
    section::DesRTFbox DesRTFbox;
    section::DesPictures DesPictures;
    section::DesPicturesAnim DesPicturesAnim;
    section::DesLogotype DesLogotype;
    section::DesPercentGauge DesPercentGauge;
    section::DesSound DesSound;
    section::Lists Lists;
    std::array<section::FileComponent, kComponentCount> FileComponents; // component n is at n - 1
    FileList Files;
};

inline constexpr const char* kUnsavedProjectName = "noname";

/// What is held of the open project beside its data; nothing of it goes to the project file.
struct OpenProjectState {
    Text ProjectFileName = kUnsavedProjectName;
    Flag ProjectIsDirty = kOff;
    Text LastAddDirectory = "C:\\";
    // Offered when a destination is chosen. The last one is never reset.
    std::array<Text, 6> DestinationDirectoryChoices;
};

/// A boolean that is kept as a text, by its word or as a number other than 0.
bool IsTrueText(const Text& value);

} // namespace quillon
