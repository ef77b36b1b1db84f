// How much each key of the project file can hold: the longest text, the largest number.
#include "project_file_fixture.h"

#include "helpers/ansi_text.h"

namespace quillon {

using test::Full;
using test::ProjectOnDisk;
using test::ValueIn;
using test::WithValue;

namespace {

struct TextKey {
    const char* section;
    const char* key;
    std::size_t limit;
};

// clang-format off
constexpr TextKey kTextKeys[] = {
    {"LastDirectories", "CreatationDestDir", 200},
    {"LastDirectories", "LastDir_Create_CdCompress", 200},
    {"LastDirectories", "LastDir_Create_CdTree", 200},
    {"LastDirectories", "LastDir_Create_Internet", 200},
    {"ProjectName", "ProjectName", 200},
    {"Version", "CompanyName", 200},
    {"Version", "ProductName", 200},
    {"Version", "Description", 200},
    {"Version", "ProductVersion", 200},
    {"Version", "XProductVersionFName", 250},
    {"Version", "Comments", 255},
    {"InstallDirectories", "DestinationDirectory", 200},
    {"ProgramGroup", "ProgramGroup", 100},
    {"InstallOptions", "SetupName", 100},
    {"InstallOptionsInternet", "SelfExtractFilename", 80},
    {"InstallOptionsInternet", "SelfExtractIconFilename", 200},
    {"Sign", "SignDescription", 256},
    {"Sign", "SignURL", 256},
    {"Sign", "SignSPCFilename", 256},
    {"Sign", "SignPVKFilename", 256},
    {"RunAppSelfX", "ProgramFilename", 200},
    {"RunAppSelfX", "Param", 200},
    {"RunAppSelfX", "ReturnValueExit", 10},
    {"RunAppSelfX", "ReturnValueBack", 10},
    {"RunAppSelfX", "ReturnValueDD", 10},
    {"RunAppSelfX", "DD_sSubKey", 255},
    {"RunAppSelfX", "DD_sValueName", 200},
    {"Language", "LanguageFile", 200},
    {"RunAppAfter", "AppFileName1", 200},
    {"RunAppAfter", "AppParam1", 200},
    {"RunAppAfter", "AppFileName2", 200},
    {"RunAppAfter", "AppParam2", 200},
    {"ShowDocAfter", "DocFileName", 200},
    {"ShowDocAfter", "CheckBoxText", 200},
    {"ShowDocAfter", "InternalRTFBoxDlgTitle", 200},
    {"DialogBoxData", "WelcomeDlgTitle", 200},
    {"DialogBoxData", "GeneralDlgTitle", 200},
    {"DialogBoxData", "GeneralDlgTitle2", 200},
    {"DialogBoxData", "StartInstallDlgTitle", 200},
    {"DialogBoxData", "InstallCompleteDlgTitle", 200},
    {"DialogBoxData", "WelcomeDlgText", 700},
    {"DialogBoxData", "GeneralDlgText", 700},
    {"DialogBoxData", "GeneralDlgText2", 700},
    {"DialogBoxData", "StartInstallDlgText", 700},
    {"DialogBoxData", "InstallCompleteDlgText", 700},
    {"DialogBoxData", "WelcomeDlgBitmap", 200},
    {"DialogBoxData", "GeneralDlgBitmap", 200},
    {"DialogBoxData", "GeneralDlgBitmap2", 200},
    {"DialogBoxData", "StartInstallDlgBitmap", 200},
    {"DialogBoxData", "InstallCompleteDlgBitmap", 200},
    {"DialogBoxData", "NameCompanyDlgBitmap", 200},
    {"DialogBoxData", "LicenseTitle", 200},
    {"DialogBoxData", "LicenseText", 16384},
    {"DialogBoxData", "LicenseFootText", 200},
    {"DialogBoxData", "LicenseTitleRtf", 200},
    {"DialogBoxData", "LicenseFootTextRtf", 200},
    {"DialogBoxData", "LicenseFilenameRtf", 255},
    {"DialogBoxData", "PasswordDialogText", 200},
    {"DialogBoxData", "CorrectPassword", 200},
    {"LicenseData", "UserCompany", 200},
    {"LicenseData", "UserName", 200},
    {"LicenseData", "UserAddress", 200},
    {"LicenseData", "UserPhone", 200},
    {"LicenseData", "UserFax", 200},
    {"LicenseData", "Useremail", 200},
    {"RegPrivateVar", "Reg1", 220},
    {"RegPrivateVar", "Reg2", 220},
    {"RegPrivateVar", "Reg3", 220},
    {"Updates", "UpdateReferenceFile", 80},
    {"Updates", "AdvUpdateRegSubKey", 255},
    {"Updates", "AdvUpdateRegValueName", 200},
    {"DesBackground", "BlendDepth", 50},
    {"DesBackground", "PictureFilename", 200},
    {"DesTitle", "TitleText", 200},
    {"DesTitle", "TitleCharInterSpace", 16},
    {"DesTitle", "TitleFontName", 200},
    {"DesSubTitle", "SubTitleText", 255},
    {"DesTextBox", "BoxTitle", 200},
    {"DesTextBox", "BoxText", 3000},
    {"DesTextBox", "BoxTitleFontName", 200},
    {"DesTextBox", "BoxTextFontName", 200},
    {"DesRTFbox", "RTFfilename", 200},
    {"DesLogotype", "LogotypeFilename", 200},
    {"DesSound", "BackSoundFilename", 200},
    {"DesPictures", "PictureFilename1", 200},
    {"DesPictures", "PictureFilename2", 200},
    {"DesPictures", "PictureFilename3", 200},
    {"DesPicturesAnim", "P1", 200},
    {"DesPicturesAnim", "P2", 200},
    {"DesPicturesAnim", "P3", 200},
    {"FileComponents", "CompName1", 40},
    {"FileComponents", "CompDir1", 128},
    {"FileComponents", "CompText1", 250},
    {"FileComponents", "CompAdvUpdateRefFile1", 128},
    {"FileComponents", "CompAdvUpdateInfoBoxTitle1", 128},
    {"FileComponents", "CompAdvUpdateInfoBoxText1", 300},
    {"FileComponents", "CompName9", 40},
    {"FileComponents", "CompDir9", 128},
    {"FileComponents", "CompText9", 250},
    {"FileComponents", "CompAdvUpdateRefFile9", 128},
    {"FileComponents", "CompAdvUpdateInfoBoxTitle9", 128},
    {"FileComponents", "CompAdvUpdateInfoBoxText9", 300},
};

struct NumberKey {
    const char* section;
    const char* key;
    const char* tooLarge;
};

constexpr NumberKey kNumberKeys[] = {
    {"Media", "TargetMedia", "32768"},
    {"OperatingSystem", "TargetOperatingSystem", "32768"},
    {"Compression", "KeepCompressedFilesOneAndOne", "32768"},
    {"Sign", "SignTimeStampSystem", "32768"},
    {"RunAppSelfX", "DD_iHKEYIndex", "32768"},
    {"ShowDocAfter", "ShowCheckBox", "32768"},
    {"ShowDocAfter", "UseInternalRTFBox", "32768"},
    {"FontOptions", "NeverReplaceExistingFonts", "32768"},
    {"DialogBoxes", "WelcomeDlg", "32768"},
    {"DialogBoxes", "GeneralInfoDlg", "32768"},
    {"DialogBoxes", "GeneralInfoDlg2", "32768"},
    {"DialogBoxes", "LicenseInfoDlg", "32768"},
    {"DialogBoxes", "LicenseInfoRtfDlg", "32768"},
    {"DialogBoxes", "PasswordDlg", "32768"},
    {"DialogBoxes", "NameCompanyDlg", "32768"},
    {"DialogBoxes", "DestinationDlg", "32768"},
    {"DialogBoxes", "DestinationDriveDlg", "32768"},
    {"DialogBoxes", "ProgramGroupDlg", "32768"},
    {"DialogBoxes", "StartInstallDlg", "32768"},
    {"DialogBoxes", "InstallCompletedDlg", "32768"},
    {"Updates", "AdvUpdateRegHKEYIndex", "32768"},
    {"DesBackground", "Type", "32768"},
    {"DesBackground", "BackColor1", "2147483648"},
    {"DesBackground", "BackColor2", "2147483648"},
    {"DesBackground", "BlendDirection", "32768"},
    {"DesTitle", "TitleForeColor", "2147483648"},
    {"DesTitle", "TitleAlignment", "32768"},
    {"DesTitle", "TitleFontSize", "32768"},
    {"DesTitleUnderline", "UnderlineType", "32768"},
    {"DesTitleUnderline", "UnderlineColor1", "2147483648"},
    {"DesTitleUnderline", "UnderlineColor2", "2147483648"},
    {"DesTitleUnderline", "UnderlineHeight", "32768"},
    {"DesTitleUnderline", "UnderlineTextOnly", "32768"},
    {"DesTextBox", "BoxTitleColor", "2147483648"},
    {"DesTextBox", "BoxTextColor", "2147483648"},
    {"DesTextBox", "BoxBackColor", "2147483648"},
    {"DesTextBox", "BoxWidth", "32768"},
    {"DesTextBox", "BoxHeight", "32768"},
    {"DesTextBox", "BoxXPosTwips", "32768"},
    {"DesTextBox", "BoxYPosTwips", "32768"},
    {"DesTextBox", "BoxTitleFontSize", "32768"},
    {"DesTextBox", "BoxTextFontSize", "32768"},
    {"DesRTFbox", "RTFboxBackColor", "2147483648"},
    {"DesRTFbox", "RTFboxWidth", "32768"},
    {"DesRTFbox", "RTFboxHeight", "32768"},
    {"DesRTFbox", "RTFboxXPosTwips", "32768"},
    {"DesRTFbox", "RTFboxYPosTwips", "32768"},
    {"DesPictures", "TransparentColorNr", "32768"},
    {"DesPictures", "HidePicturesWhenDialogsShowed", "32768"},
    {"DesPicturesAnim", "NrAnimPictures", "32768"},
    {"DesPicturesAnim", "PictureWidth", "32768"},
    {"DesPicturesAnim", "PictureHeight", "32768"},
    {"DesPicturesAnim", "PictureXPosTwips", "32768"},
    {"DesPicturesAnim", "PictureYPosTwips", "32768"},
    {"DesPicturesAnim", "IntervalSeconds", "32768"},
    {"DesLogotype", "LogotypeAlignment", "32768"},
    {"DesLogotype", "TransparentColorNr", "32768"},
    {"DesLogotype", "LogotypeWMFWidth", "32768"},
    {"DesLogotype", "LogotypeWMFHeight", "32768"},
    {"DesPercentGauge", "GaugeAlignmentH", "32768"},
    {"DesPercentGauge", "GaugeAlignmentV", "32768"},
};
// clang-format on

} // namespace

TEST(SettingsLimits, ATextIsCutOneByteBelowItsLimit)
{
    for (const TextKey& key : kTextKeys) {
        ProjectOnDisk disk;
        const std::string fits(key.limit - 1, 'x');
        const std::string tooLong = fits + "x";
        EXPECT_EQ(ValueIn(disk.Resave(WithValue(Full(), key.section, key.key, fits)), key.section,
                          key.key),
                  fits)
            << key.key;
        EXPECT_EQ(ValueIn(disk.Resave(WithValue(Full(), key.section, key.key, tooLong)),
                          key.section, key.key),
                  fits)
            << key.key;
    }
}

TEST(SettingsLimits, ALimitCountsBytesOnFileAndMayCutALineBreak)
{
    ProjectOnDisk disk;
    const std::string swedish(300, '\xE5');
    disk.Resave(WithValue(Full(), "Version", "Comments", swedish));
    EXPECT_EQ(AnsiText::ToBytes(disk.project.Version.Comments), swedish.substr(0, 254));

    const std::string broken = std::string(698, 'x') + "\x9D\x9E" + "y";
    disk.Resave(WithValue(Full(), "DialogBoxData", "WelcomeDlgText", broken));
    EXPECT_EQ(disk.project.DialogBoxData.WelcomeDlgText, Text(698, 'x') + "\r\n");
}

TEST(SettingsLimits, TheSidePictureHasALimitToo)
{
    ProjectOnDisk disk;
    const std::string path = "C:\\" + std::string(196, 'x');
    disk.machine.files.Put(path, "BM");
    disk.Resave(WithValue(Full(), "DialogBoxes", "DlgBitmap", path));
    EXPECT_EQ(disk.project.DialogBoxes.DlgBitmap, path);
    disk.Resave(WithValue(Full(), "DialogBoxes", "DlgBitmap", path + "x"));
    EXPECT_EQ(disk.project.DialogBoxes.DlgBitmap, path);
}

TEST(SettingsLimits, ANumberThatDoesNotFitEndsTheReadingWithTwoBeeps)
{
    for (const NumberKey& key : kNumberKeys) {
        ProjectOnDisk disk;
        EXPECT_EQ(disk.Load(WithValue(Full(), key.section, key.key, key.tooLarge)), ReadEnd::Failed)
            << key.key;
        EXPECT_EQ(disk.beeps, 2) << key.key;
        EXPECT_EQ(disk.project.Lists.RunScriptBefore, "") << key.key;
    }
}

TEST(SettingsLimits, WhatWasReadBeforeANumberThatDoesNotFitStays)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(WithValue(Full(), "Sign", "SignTimeStampSystem", "40000")),
              ReadEnd::Failed);
    EXPECT_EQ(disk.project.ProjectName.ProjectName, "Räknaren");
    EXPECT_EQ(disk.project.Sign.SignURL, "http://www.example.com/");
    EXPECT_EQ(disk.project.Sign.SignTimeStampSystem, 0);
    EXPECT_EQ(disk.project.NET.NET_ver11, kOff);
    EXPECT_EQ(disk.project.Language.LanguageFile, "SWEDISH.LNG");
}

} // namespace quillon
