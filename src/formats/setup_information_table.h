// The setup information file as data: a row for each key, in the order on file. The writer in the
// builder and the reader beside this file are two visitors of `EachInfSection`.
#pragma once

#include "formats/package_files.h"
#include "formats/setup_information.h"
#include "helpers/number_text.h"
#include "project/key_table.h"

namespace quillon {

inline constexpr const char* kSetupInformationType = "Options";
inline constexpr const char* kPreviewSubType = "PreviewFile";
// Stands for the number of disks until the last one is written.
inline constexpr const char* kFloppiesPlaceholder = "xxxx";
// Marks each line of an INI list, so that none of them can be taken for the header of a section.
inline constexpr char kIniListMark = '>';

/// The forms in which a value can be in this file.
enum class InfForm {
    AsBool,     // "1" or "0"
    AsCheckBox, // "1" for the value 1 and for no other
    AsInt,
    AsText,
    AsMulti,    // line breaks encoded
    AsRawLines, // line breaks as they are: the value goes on over the lines up to the next key
    AsLine,     // the first line alone
    AsFile,     // the name without folder; the absolute path in test mode
    AsNameAlone,
    AsDlgBitmap, // as AsFile, but empty for the picture that the runtime has of its own
    AsRtfFile,   // a name in the tool's RTF folder
    AsDocument,  // a bare name is in the destination folder
    AsNoFirstBackslash,
    AsPxX, // pixels on file, twips in the record
    AsPxY,
    AsScramble,
    AsFloppies // the count, or its placeholder
};

template <class Record>
using InfKey = Key<Record, InfForm>;

/// A run of keys of one record. `suffix` directly follows each key's name.
template <class Record, std::size_t N>
struct InfKeys {
    const InfKey<Record> (&keys)[N];
    Record& record;
    Text suffix = {};
    // What decides this is known to the writer alone; a reader takes what it finds.
    bool isWritten = true;
};

template <class Record, std::size_t N>
InfKeys<Record, N> Keys(const InfKey<Record> (&keys)[N], Record& record)
{
    return {keys, record};
}

template <class Record, std::size_t N>
InfKeys<Record, N> KeysIf(bool isWritten, const InfKey<Record> (&keys)[N], Record& record,
                          Text suffix = {})
{
    return {keys, record, std::move(suffix), isWritten};
}

template <class Record, std::size_t N>
InfKeys<Record, N> NumberedKeys(const InfKey<Record> (&keys)[N], Record& record, std::size_t n)
{
    return {keys, record, NumberText(static_cast<std::int64_t>(n))};
}

/// "1" where the text is in use; computed on writing and not read.
struct InfUseFlag {
    const char* name;
    const Text& text;
};

/// The animation's pictures P1 to P<NrAnimPictures>.
struct InfAnimPictures {
    section::DesPicturesAnim& record;
};

/// The components 1 to 9, each with the keys that only a component for updates has.
struct InfComponents {
    std::array<section::FileComponent, kComponentCount>& components;
    bool isWritten = true;
};

namespace inf {

// clang-format off
inline constexpr InfKey<section::ProjectName> kProjectName[] = {
    {"ProjectName", &section::ProjectName::ProjectName, InfForm::AsText},
};

// Kept: the project's Description and Comments do not reach the setup.
inline constexpr InfKey<section::Version> kVersion[] = {
    {"CompanyName",    &section::Version::CompanyName,    InfForm::AsText},
    {"ProductName",    &section::Version::ProductName,    InfForm::AsText},
    {"ProductVersion", &section::Version::ProductVersion, InfForm::AsText},
};
inline constexpr InfKey<SetupInformation> kXProductVersion[] = {
    {"XProductVersion", &SetupInformation::XProductVersion, InfForm::AsText},
};

inline constexpr InfKey<section::Media> kMedia[] = {
    {"TargetMedia", &section::Media::TargetMedia, InfForm::AsInt},
};
inline constexpr InfKey<SetupInformation> kFloppies[] = {
    {"Floppies", &SetupInformation::Floppies, InfForm::AsFloppies},
};

inline constexpr InfKey<section::Compression> kCompression[] = {
    {"CompressFiles",                &section::Compression::CompressFiles,                InfForm::AsBool},
    {"KeepCompressedFilesOneAndOne", &section::Compression::KeepCompressedFilesOneAndOne, InfForm::AsInt},
};
inline constexpr InfKey<SetupInformation> kOneByOneLayout[] = {
    {"PlaceCompressedFilesInFolderSetupFiles", &SetupInformation::PlaceCompressedFilesInFolderSetupFiles, InfForm::AsBool},
    {"CreateFolderStructureInFolderSetupFiles", &SetupInformation::CreateFolderStructureInFolderSetupFiles, InfForm::AsBool},
};

inline constexpr InfKey<section::InstallDirectories> kInstallDirectories[] = {
    {"DestinationDirectory", &section::InstallDirectories::DestinationDirectory, InfForm::AsText},
};

inline constexpr InfKey<section::ProgramGroup> kProgramGroup[] = {
    {"ProgramGroup",             &section::ProgramGroup::ProgramGroup,             InfForm::AsText},
    {"ProgramGroup_CurrentUser", &section::ProgramGroup::ProgramGroup_CurrentUser, InfForm::AsBool},
    {"ProgramGroup_AllUsers",    &section::ProgramGroup::ProgramGroup_AllUsers,    InfForm::AsBool},
};

inline constexpr InfKey<section::InstallOptions> kInstallOptions[] = {
    {"SetupName",                     &section::InstallOptions::SetupName,                     InfForm::AsText},
    {"DeleteProgGroup",               &section::InstallOptions::DeleteProgGroup,               InfForm::AsBool},
    {"RestartWindows",                &section::InstallOptions::RestartWindows,                InfForm::AsBool},
    {"NeverRestartWindows",           &section::InstallOptions::NeverRestartWindows,           InfForm::AsBool},
    {"CreateAutorunFile",             &section::InstallOptions::CreateAutorunFile,             InfForm::AsBool},
    {"UninstallSupport",              &section::InstallOptions::UninstallSupport,              InfForm::AsBool},
    {"CreateUninstallIcon",           &section::InstallOptions::CreateUninstallIcon,           InfForm::AsBool},
    {"DontInstallSysFilesOnNewWin",   &section::InstallOptions::DontInstallSysFilesOnNewWin,   InfForm::AsBool},
    {"ExpandVariablesInRegistryKeys", &section::InstallOptions::ExpandVariablesInRegistryKeys, InfForm::AsBool},
    {"ExpandVariablesInDialogBoxes",  &section::InstallOptions::ExpandVariablesInDialogBoxes,  InfForm::AsBool},
};

inline constexpr InfKey<section::TargetOS> kTargetOS[] = {
    {"TargetOS_Win95",       &section::TargetOS::TargetOS_Win95,       InfForm::AsBool},
    {"TargetOS_Win95OSR2",   &section::TargetOS::TargetOS_Win95OSR2,   InfForm::AsBool},
    {"TargetOS_Win98",       &section::TargetOS::TargetOS_Win98,       InfForm::AsBool},
    {"TargetOS_WinME",       &section::TargetOS::TargetOS_WinME,       InfForm::AsBool},
    {"TargetOS_WinNT4",      &section::TargetOS::TargetOS_WinNT4,      InfForm::AsBool},
    {"TargetOS_WinNT4SP3",   &section::TargetOS::TargetOS_WinNT4SP3,   InfForm::AsBool},
    {"TargetOS_Win2000",     &section::TargetOS::TargetOS_Win2000,     InfForm::AsBool},
    {"TargetOS_WinXP",       &section::TargetOS::TargetOS_WinXP,       InfForm::AsBool},
    {"TargetOS_WarnIfWrong", &section::TargetOS::TargetOS_WarnIfWrong, InfForm::AsBool},
    {"TargetOS_StopIfWrong", &section::TargetOS::TargetOS_StopIfWrong, InfForm::AsBool},
};

inline constexpr InfKey<section::NET> kNET[] = {
    {"NET_TestIfInstalled", &section::NET::NET_TestIfInstalled, InfForm::AsBool},
    {"NET_ver10",           &section::NET::NET_ver10,           InfForm::AsBool},
    {"NET_ver11",           &section::NET::NET_ver11,           InfForm::AsBool},
    {"NET_WarnIfNoNET",     &section::NET::NET_WarnIfNoNET,     InfForm::AsBool},
    {"NET_StopIfNoNET",     &section::NET::NET_StopIfNoNET,     InfForm::AsBool},
};

inline constexpr InfKey<section::RunAppSelfX> kRunAppSelfX[] = {
    {"ProgramFilename", &section::RunAppSelfX::ProgramFilename, InfForm::AsNameAlone},
    {"Param",           &section::RunAppSelfX::Param,           InfForm::AsText},
    {"ReturnValueExit", &section::RunAppSelfX::ReturnValueExit, InfForm::AsText},
    {"ReturnValueBack", &section::RunAppSelfX::ReturnValueBack, InfForm::AsText},
    {"ReturnValueDD",   &section::RunAppSelfX::ReturnValueDD,   InfForm::AsText},
    {"DD_iHKEYIndex",   &section::RunAppSelfX::DD_iHKEYIndex,   InfForm::AsText},
    {"DD_sSubKey",      &section::RunAppSelfX::DD_sSubKey,      InfForm::AsText},
    {"DD_sValueName",   &section::RunAppSelfX::DD_sValueName,   InfForm::AsText},
    {"VisibleWin",      &section::RunAppSelfX::VisibleWin,      InfForm::AsBool},
};

inline constexpr InfKey<section::Language> kLanguage[] = {
    {"LanguageFile", &section::Language::LanguageFile, InfForm::AsText},
};

inline constexpr InfKey<section::Databases> kDatabases[] = {
    {"MDAHiddenInstall", &section::Databases::MDAHiddenInstall, InfForm::AsBool},
    {"MDAAskUser",       &section::Databases::MDAAskUser,       InfForm::AsBool},
};

inline constexpr InfKey<section::RunAppAfter> kRunAppAfter[] = {
    {"AppFileName1", &section::RunAppAfter::AppFileName1, InfForm::AsText},
    {"AppParam1",    &section::RunAppAfter::AppParam1,    InfForm::AsText},
    {"AppFileName2", &section::RunAppAfter::AppFileName2, InfForm::AsText},
    {"AppParam2",    &section::RunAppAfter::AppParam2,    InfForm::AsText},
};

inline constexpr InfKey<section::ShowDocAfter> kShowDocAfter[] = {
    {"DocFileName",            &section::ShowDocAfter::DocFileName,            InfForm::AsDocument},
    {"ShowCheckBox",           &section::ShowDocAfter::ShowCheckBox,           InfForm::AsBool},
    {"CheckBoxText",           &section::ShowDocAfter::CheckBoxText,           InfForm::AsText},
    {"UseInternalRTFBox",      &section::ShowDocAfter::UseInternalRTFBox,      InfForm::AsBool},
    {"InternalRTFBoxDlgTitle", &section::ShowDocAfter::InternalRTFBoxDlgTitle, InfForm::AsText},
};

inline constexpr InfKey<section::FontOptions> kFontOptions[] = {
    {"NeverReplaceExistingFonts", &section::FontOptions::NeverReplaceExistingFonts, InfForm::AsInt},
};

inline constexpr InfKey<section::DialogBoxes> kDialogBoxes[] = {
    {"WelcomeDlg",          &section::DialogBoxes::WelcomeDlg,          InfForm::AsCheckBox},
    {"GeneralInfoDlg",      &section::DialogBoxes::GeneralInfoDlg,      InfForm::AsCheckBox},
    {"GeneralInfoDlg2",     &section::DialogBoxes::GeneralInfoDlg2,     InfForm::AsCheckBox},
    {"LicenseInfoDlg",      &section::DialogBoxes::LicenseInfoDlg,      InfForm::AsCheckBox},
    {"LicenseInfoRtfDlg",   &section::DialogBoxes::LicenseInfoRtfDlg,   InfForm::AsCheckBox},
    {"PasswordDlg",         &section::DialogBoxes::PasswordDlg,         InfForm::AsCheckBox},
    {"NameCompanyDlg",      &section::DialogBoxes::NameCompanyDlg,      InfForm::AsCheckBox},
    {"DestinationDlg",      &section::DialogBoxes::DestinationDlg,      InfForm::AsCheckBox},
    {"DestinationDriveDlg", &section::DialogBoxes::DestinationDriveDlg, InfForm::AsCheckBox},
    {"ProgramGroupDlg",     &section::DialogBoxes::ProgramGroupDlg,     InfForm::AsCheckBox},
    {"StartInstallDlg",     &section::DialogBoxes::StartInstallDlg,     InfForm::AsCheckBox},
    {"InstallCompletedDlg", &section::DialogBoxes::InstallCompletedDlg, InfForm::AsCheckBox},
    {"DlgBitmap",           &section::DialogBoxes::DlgBitmap,           InfForm::AsDlgBitmap},
};

inline constexpr InfKey<section::DialogBoxData> kDialogBoxData[] = {
    {"WelcomeDlgTitle",             &section::DialogBoxData::WelcomeDlgTitle,             InfForm::AsText},
    {"GeneralDlgTitle",             &section::DialogBoxData::GeneralDlgTitle,             InfForm::AsText},
    {"GeneralDlgTitle2",            &section::DialogBoxData::GeneralDlgTitle2,            InfForm::AsText},
    {"StartInstallDlgTitle",        &section::DialogBoxData::StartInstallDlgTitle,        InfForm::AsText},
    {"InstallCompleteDlgTitle",     &section::DialogBoxData::InstallCompleteDlgTitle,     InfForm::AsText},
    {"WelcomeDlgText",              &section::DialogBoxData::WelcomeDlgText,              InfForm::AsMulti},
    {"GeneralDlgText",              &section::DialogBoxData::GeneralDlgText,              InfForm::AsMulti},
    {"GeneralDlgText2",             &section::DialogBoxData::GeneralDlgText2,             InfForm::AsMulti},
    {"StartInstallDlgText",         &section::DialogBoxData::StartInstallDlgText,         InfForm::AsMulti},
    {"InstallCompleteDlgText",      &section::DialogBoxData::InstallCompleteDlgText,      InfForm::AsMulti},
    {"WelcomeDlgBitmap",            &section::DialogBoxData::WelcomeDlgBitmap,            InfForm::AsDlgBitmap},
    {"GeneralDlgBitmap",            &section::DialogBoxData::GeneralDlgBitmap,            InfForm::AsDlgBitmap},
    {"GeneralDlgBitmap2",           &section::DialogBoxData::GeneralDlgBitmap2,           InfForm::AsDlgBitmap},
    {"StartInstallDlgBitmap",       &section::DialogBoxData::StartInstallDlgBitmap,       InfForm::AsDlgBitmap},
    {"InstallCompleteDlgBitmap",    &section::DialogBoxData::InstallCompleteDlgBitmap,    InfForm::AsDlgBitmap},
    {"NameCompanyDlgBitmap",        &section::DialogBoxData::NameCompanyDlgBitmap,        InfForm::AsDlgBitmap},
    {"LicenseTitle",                &section::DialogBoxData::LicenseTitle,                InfForm::AsText},
    {"LicenseText",                 &section::DialogBoxData::LicenseText,                 InfForm::AsMulti},
    {"LicenseFootText",             &section::DialogBoxData::LicenseFootText,             InfForm::AsText},
    {"LicenseTitleRtf",             &section::DialogBoxData::LicenseTitleRtf,             InfForm::AsText},
    {"LicenseFootTextRtf",          &section::DialogBoxData::LicenseFootTextRtf,          InfForm::AsText},
    {"PasswordDialogText",          &section::DialogBoxData::PasswordDialogText,          InfForm::AsLine},
    {"CorrectPassword",             &section::DialogBoxData::CorrectPassword,             InfForm::AsScramble},
    {"NameCompanyExtendedInfo",     &section::DialogBoxData::NameCompanyExtendedInfo,     InfForm::AsBool},
    {"GetNameCompanyFromRegistry",  &section::DialogBoxData::GetNameCompanyFromRegistry,  InfForm::AsBool},
    {"DestDirShowSizeInfo",         &section::DialogBoxData::DestDirShowSizeInfo,         InfForm::AsBool},
    {"DestDirShowSizeInfoButton",   &section::DialogBoxData::DestDirShowSizeInfoButton,   InfForm::AsBool},
    {"DestDriveShowSizeInfo",       &section::DialogBoxData::DestDriveShowSizeInfo,       InfForm::AsBool},
    {"DestDriveShowSizeInfoButton", &section::DialogBoxData::DestDriveShowSizeInfoButton, InfForm::AsBool},
    {"WarnIfDestDirExists",         &section::DialogBoxData::WarnIfDestDirExists,         InfForm::AsBool},
};

inline constexpr InfKey<section::LicenseData> kLicenseData[] = {
    {"UserCompany", &section::LicenseData::UserCompany, InfForm::AsText},
    {"UserName",    &section::LicenseData::UserName,    InfForm::AsText},
    {"UserAddress", &section::LicenseData::UserAddress, InfForm::AsText},
    {"UserPhone",   &section::LicenseData::UserPhone,   InfForm::AsText},
    {"UserFax",     &section::LicenseData::UserFax,     InfForm::AsText},
    {"Useremail",   &section::LicenseData::Useremail,   InfForm::AsText},
};

inline constexpr InfKey<section::RegPrivateVar> kRegPrivateVar[] = {
    {"Reg1", &section::RegPrivateVar::Reg1, InfForm::AsText},
    {"Reg2", &section::RegPrivateVar::Reg2, InfForm::AsText},
    {"Reg3", &section::RegPrivateVar::Reg3, InfForm::AsText},
};

inline constexpr InfKey<section::Updates> kUpdates[] = {
    {"HandleUpdate",                    &section::Updates::HandleUpdate,                    InfForm::AsBool},
    {"UpdateReferenceFile",             &section::Updates::UpdateReferenceFile,             InfForm::AsText},
    {"AdvUpdateRegHKEYIndex",           &section::Updates::AdvUpdateRegHKEYIndex,           InfForm::AsInt},
    {"AdvUpdateRegSubKey",              &section::Updates::AdvUpdateRegSubKey,              InfForm::AsText},
    {"AdvUpdateRegValueName",           &section::Updates::AdvUpdateRegValueName,           InfForm::AsText},
    {"AdvUpdateRegAlwaysUseUserDefKey", &section::Updates::AdvUpdateRegAlwaysUseUserDefKey, InfForm::AsBool},
};

inline constexpr InfKey<SetupInformation> kDesScreen[] = {
    {"DesWidth",  &SetupInformation::DesWidth,  InfForm::AsInt},
    {"DesHeight", &SetupInformation::DesHeight, InfForm::AsInt},
};

inline constexpr InfKey<section::DesBackground> kDesBackground[] = {
    {"Type",            &section::DesBackground::Type,            InfForm::AsInt},
    {"BackColor1",      &section::DesBackground::BackColor1,      InfForm::AsInt},
    {"BackColor2",      &section::DesBackground::BackColor2,      InfForm::AsInt},
    {"BlendDirection",  &section::DesBackground::BlendDirection,  InfForm::AsInt},
    {"BlendDepth",      &section::DesBackground::BlendDepth,      InfForm::AsText},
    {"PictureFilename", &section::DesBackground::PictureFilename, InfForm::AsFile},
    {"StretchPicture",  &section::DesBackground::StretchPicture,  InfForm::AsBool},
};

inline constexpr InfKey<section::DesTitle> kDesTitle[] = {
    {"TitleText",           &section::DesTitle::TitleText,           InfForm::AsText},
    {"TitleForeColor",      &section::DesTitle::TitleForeColor,      InfForm::AsInt},
    {"TitleAlignment",      &section::DesTitle::TitleAlignment,      InfForm::AsInt},
    {"TitleShadow",         &section::DesTitle::TitleShadow,         InfForm::AsBool},
    {"TitleCharInterSpace", &section::DesTitle::TitleCharInterSpace, InfForm::AsText},
    {"TitleFontName",       &section::DesTitle::TitleFontName,       InfForm::AsText},
    {"TitleFontSize",       &section::DesTitle::TitleFontSize,       InfForm::AsInt},
    {"TitleFontBold",       &section::DesTitle::TitleFontBold,       InfForm::AsBool},
    {"TitleFontItalic",     &section::DesTitle::TitleFontItalic,     InfForm::AsBool},
};

inline constexpr InfKey<section::DesTitleUnderline> kDesTitleUnderline[] = {
    {"UnderlineType",     &section::DesTitleUnderline::UnderlineType,     InfForm::AsInt},
    {"UnderlineColor1",   &section::DesTitleUnderline::UnderlineColor1,   InfForm::AsInt},
    {"UnderlineColor2",   &section::DesTitleUnderline::UnderlineColor2,   InfForm::AsInt},
    {"UnderlineHeight",   &section::DesTitleUnderline::UnderlineHeight,   InfForm::AsInt},
    {"UnderlineTextOnly", &section::DesTitleUnderline::UnderlineTextOnly, InfForm::AsInt},
};

inline constexpr InfKey<section::DesSubTitle> kDesSubTitle[] = {
    {"SubTitleText", &section::DesSubTitle::SubTitleText, InfForm::AsText},
};

inline constexpr InfKey<section::DesTextBox> kDesTextBox[] = {
    {"BoxTitle",           &section::DesTextBox::BoxTitle,           InfForm::AsText},
    {"BoxText",            &section::DesTextBox::BoxText,            InfForm::AsMulti},
    {"BoxTitleColor",      &section::DesTextBox::BoxTitleColor,      InfForm::AsInt},
    {"BoxTextColor",       &section::DesTextBox::BoxTextColor,       InfForm::AsInt},
    {"BoxBackColor",       &section::DesTextBox::BoxBackColor,       InfForm::AsInt},
    {"BoxUseBackColor",    &section::DesTextBox::BoxUseBackColor,    InfForm::AsBool},
    {"ShowTextBox",        &section::DesTextBox::ShowTextBox,        InfForm::AsBool},
    {"BoxCenter",          &section::DesTextBox::BoxCenter,          InfForm::AsBool},
    {"BoxPlaceBelowTitle", &section::DesTextBox::BoxPlaceBelowTitle, InfForm::AsBool},
    {"BoxWidth",           &section::DesTextBox::BoxWidth,           InfForm::AsInt},
    {"BoxHeight",          &section::DesTextBox::BoxHeight,          InfForm::AsInt},
    {"BoxXPos",            &section::DesTextBox::BoxXPos,            InfForm::AsPxX},
    {"BoxYPos",            &section::DesTextBox::BoxYPos,            InfForm::AsPxY},
    {"BoxTitleFontName",   &section::DesTextBox::BoxTitleFontName,   InfForm::AsText},
    {"BoxTitleFontSize",   &section::DesTextBox::BoxTitleFontSize,   InfForm::AsInt},
    {"BoxTitleFontBold",   &section::DesTextBox::BoxTitleFontBold,   InfForm::AsBool},
    {"BoxTitleFontItalic", &section::DesTextBox::BoxTitleFontItalic, InfForm::AsBool},
    {"BoxTextFontName",    &section::DesTextBox::BoxTextFontName,    InfForm::AsText},
    {"BoxTextFontSize",    &section::DesTextBox::BoxTextFontSize,    InfForm::AsInt},
    {"BoxTextFontBold",    &section::DesTextBox::BoxTextFontBold,    InfForm::AsBool},
    {"BoxTextFontItalic",  &section::DesTextBox::BoxTextFontItalic,  InfForm::AsBool},
};

inline constexpr InfKey<section::DesRTFbox> kDesRTFbox[] = {
    {"RTFfilename",     &section::DesRTFbox::RTFfilename,     InfForm::AsRtfFile},
    {"RTFboxBackColor", &section::DesRTFbox::RTFboxBackColor, InfForm::AsInt},
    {"ShowRTFbox",      &section::DesRTFbox::ShowRTFbox,      InfForm::AsBool},
    {"RTFboxWidth",     &section::DesRTFbox::RTFboxWidth,     InfForm::AsInt},
    {"RTFboxHeight",    &section::DesRTFbox::RTFboxHeight,    InfForm::AsInt},
    {"RTFboxXPos",      &section::DesRTFbox::RTFboxXPos,      InfForm::AsPxX},
    {"RTFboxYPos",      &section::DesRTFbox::RTFboxYPos,      InfForm::AsPxY},
};

inline constexpr InfKey<section::DesPicture> kDesPicture[] = {
    {"PictureFilename",   &section::DesPicture::PictureFilename,   InfForm::AsFile},
    {"UseTransparentBkg", &section::DesPicture::UseTransparentBkg, InfForm::AsBool},
    {"StretchPicture",    &section::DesPicture::StretchPicture,    InfForm::AsBool},
    {"PictureWidth",      &section::DesPicture::PictureWidth,      InfForm::AsInt},
    {"PictureHeight",     &section::DesPicture::PictureHeight,     InfForm::AsInt},
    {"PictureXPos",       &section::DesPicture::PictureXPos,       InfForm::AsPxX},
    {"PictureYPos",       &section::DesPicture::PictureYPos,       InfForm::AsPxY},
};
inline constexpr InfKey<section::DesPictures> kDesPictures[] = {
    {"TransparentColorNr",            &section::DesPictures::TransparentColorNr,            InfForm::AsInt},
    {"HidePicturesWhenDialogsShowed", &section::DesPictures::HidePicturesWhenDialogsShowed, InfForm::AsInt},
};

inline constexpr InfKey<section::DesPicturesAnim> kDesPicturesAnim[] = {
    {"NrAnimPictures",  &section::DesPicturesAnim::NrAnimPictures,  InfForm::AsInt},
    {"StretchPicture",  &section::DesPicturesAnim::StretchPicture,  InfForm::AsBool},
    {"PictureWidth",    &section::DesPicturesAnim::PictureWidth,    InfForm::AsInt},
    {"PictureHeight",   &section::DesPicturesAnim::PictureHeight,   InfForm::AsInt},
    {"PictureXPos",     &section::DesPicturesAnim::PictureXPos,     InfForm::AsPxX},
    {"PictureYPos",     &section::DesPicturesAnim::PictureYPos,     InfForm::AsPxY},
    {"IntervalSeconds", &section::DesPicturesAnim::IntervalSeconds, InfForm::AsInt},
};

inline constexpr InfKey<section::DesLogotype> kDesLogotype[] = {
    {"LogotypeFilename",   &section::DesLogotype::LogotypeFilename,   InfForm::AsFile},
    {"LogotypeAlignment",  &section::DesLogotype::LogotypeAlignment,  InfForm::AsInt},
    {"UseTransparentBkg",  &section::DesLogotype::UseTransparentBkg,  InfForm::AsBool},
    {"TransparentColorNr", &section::DesLogotype::TransparentColorNr, InfForm::AsInt},
    {"LogotypeWMFWidth",   &section::DesLogotype::LogotypeWMFWidth,   InfForm::AsInt},
    {"LogotypeWMFHeight",  &section::DesLogotype::LogotypeWMFHeight,  InfForm::AsInt},
};

inline constexpr InfKey<section::DesPercentGauge> kDesPercentGauge[] = {
    {"GaugeAlignmentH", &section::DesPercentGauge::GaugeAlignmentH, InfForm::AsInt},
    {"GaugeAlignmentV", &section::DesPercentGauge::GaugeAlignmentV, InfForm::AsInt},
};

inline constexpr InfKey<section::DesSound> kDesSound[] = {
    {"BackSoundFilename", &section::DesSound::BackSoundFilename, InfForm::AsFile},
};

inline constexpr InfKey<SetupInformation> kUseComponents[] = {
    {"UseComponents", &SetupInformation::UseComponents, InfForm::AsBool},
};
inline constexpr InfKey<section::FileComponent> kFileComponent[] = {
    {"Comp",                      &section::FileComponent::Comp,                      InfForm::AsCheckBox},
    {"CompName",                  &section::FileComponent::CompName,                  InfForm::AsText},
    {"CompDir",                   &section::FileComponent::CompDir,                   InfForm::AsNoFirstBackslash},
    {"CompText",                  &section::FileComponent::CompText,                  InfForm::AsRawLines},
    {"CompDefault",               &section::FileComponent::CompDefault,               InfForm::AsInt},
    {"CompCanChangeDir",          &section::FileComponent::CompCanChangeDir,          InfForm::AsInt},
    {"CompMustAlwaysBeInstalled", &section::FileComponent::CompMustAlwaysBeInstalled, InfForm::AsInt},
};
inline constexpr InfKey<section::FileComponent> kFileComponentUpdate[] = {
    {"CompAdvOnlyUpdate",         &section::FileComponent::CompAdvOnlyUpdate,         InfForm::AsInt},
    {"CompAdvUpdateRefFile",      &section::FileComponent::CompAdvUpdateRefFile,      InfForm::AsText},
    {"CompAdvUpdateInfoBoxTitle", &section::FileComponent::CompAdvUpdateInfoBoxTitle, InfForm::AsText},
    {"CompAdvUpdateInfoBoxText",  &section::FileComponent::CompAdvUpdateInfoBoxText,  InfForm::AsText},
};

inline constexpr InfKey<SetupInformation> kFileListInfo[] = {
    {"Files",     &SetupInformation::Files,     InfForm::AsInt},
    {"TotalSize", &SetupInformation::TotalSize, InfForm::AsInt},
};
// clang-format on

} // namespace inf

template <class Visitor>
void EachSettingsSection(Project& project, SetupInformation& info, Visitor& visit)
{
    const bool isFloppy = project.Media.TargetMedia == Integer(Medium::Floppy);
    const bool startsProgram = project.Media.TargetMedia == Integer(Medium::Internet) &&
                               !project.RunAppSelfX.ProgramFilename.empty();
    visit("ProjectName", Keys(inf::kProjectName, project.ProjectName));
    visit("Version", Keys(inf::kVersion, project.Version),
          KeysIf(!project.Version.XProductVersionFName.empty(), inf::kXProductVersion, info));
    visit("Media", Keys(inf::kMedia, project.Media), KeysIf(isFloppy, inf::kFloppies, info));
    visit("Compression", Keys(inf::kCompression, project.Compression),
          Keys(inf::kOneByOneLayout, info));
    visit("InstallDirectories", Keys(inf::kInstallDirectories, project.InstallDirectories));
    visit("ProgramGroup", Keys(inf::kProgramGroup, project.ProgramGroup));
    visit("InstallOptions", Keys(inf::kInstallOptions, project.InstallOptions));
    visit("TargetOS", Keys(inf::kTargetOS, project.TargetOS));
    visit("NET", Keys(inf::kNET, project.NET));
    visit("RunAppSelfX", KeysIf(startsProgram, inf::kRunAppSelfX, project.RunAppSelfX));
    visit("Language", Keys(inf::kLanguage, project.Language));
    visit("Databases", Keys(inf::kDatabases, project.Databases));
    visit("RunAppAfter", Keys(inf::kRunAppAfter, project.RunAppAfter));
    visit("ShowDocAfter", Keys(inf::kShowDocAfter, project.ShowDocAfter));
    visit("FontOptions", Keys(inf::kFontOptions, project.FontOptions));
    visit("DialogBoxes", Keys(inf::kDialogBoxes, project.DialogBoxes));
    visit("DialogBoxData", Keys(inf::kDialogBoxData, project.DialogBoxData));
    visit("LicenseData", Keys(inf::kLicenseData, project.LicenseData));
    visit("RegPrivateVar", Keys(inf::kRegPrivateVar, project.RegPrivateVar));
    visit("Updates", Keys(inf::kUpdates, project.Updates));
}

template <class Visitor>
void EachDesignSection(Project& project, SetupInformation& info, Visitor& visit)
{
    auto& pictures = project.DesPictures.Pictures;
    visit("DesScreen", Keys(inf::kDesScreen, info));
    visit("DesBackground", Keys(inf::kDesBackground, project.DesBackground));
    visit("DesTitle", Keys(inf::kDesTitle, project.DesTitle));
    visit("DesTitleUnderline", Keys(inf::kDesTitleUnderline, project.DesTitleUnderline));
    visit("DesSubTitle", Keys(inf::kDesSubTitle, project.DesSubTitle));
    visit("DesTextBox", Keys(inf::kDesTextBox, project.DesTextBox));
    visit("DesRTFbox", Keys(inf::kDesRTFbox, project.DesRTFbox));
    visit("DesPictures", NumberedKeys(inf::kDesPicture, pictures[0], 1),
          NumberedKeys(inf::kDesPicture, pictures[1], 2),
          NumberedKeys(inf::kDesPicture, pictures[2], 3),
          Keys(inf::kDesPictures, project.DesPictures));
    visit("DesPicturesAnim", Keys(inf::kDesPicturesAnim, project.DesPicturesAnim),
          InfAnimPictures{project.DesPicturesAnim});
    visit("DesLogotype", Keys(inf::kDesLogotype, project.DesLogotype));
    visit("DesPercentGauge", Keys(inf::kDesPercentGauge, project.DesPercentGauge));
    visit("DesSound", Keys(inf::kDesSound, project.DesSound));
}

template <class Visitor>
void EachListSection(Project& project, SetupInformation& info, Visitor& visit)
{
    section::Lists& lists = project.Lists;
    visit("Scripts", InfUseFlag{"RunScriptBefore", lists.RunScriptBefore},
          InfUseFlag{"RunScriptAfter", lists.RunScriptAfter});
    visit.FreeText("RunScriptBefore", lists.RunScriptBefore);
    visit.FreeText("RunScriptAfter", lists.RunScriptAfter);
    visit("Configuration", InfUseFlag{"RegistryUse", lists.Registry},
          InfUseFlag{"INIFilesUse", lists.INIFiles},
          InfUseFlag{"AutoexecBatUse", lists.AutoexecBat},
          InfUseFlag{"ConfigSysUse", lists.ConfigSys});
    visit.FreeText("Registry", lists.Registry);
    visit.MarkedLines("INIFiles", lists.INIFiles);
    visit.FreeText("AutoexecBat", lists.AutoexecBat);
    visit.FreeText("ConfigSys", lists.ConfigSys);
    visit("RegisterFiles", InfUseFlag{"FileRegisterListUsed", lists.RegisterFileList});
    visit.FreeText("RegisterFileList", lists.RegisterFileList);
    visit("FileComponents", Keys(inf::kUseComponents, info),
          InfComponents{project.FileComponents, info.UseComponents != kOff});
    visit("FileListInfo", Keys(inf::kFileListInfo, info));
}

/// The sections after [ID], in the order on file. A section none of whose parts is written is left
/// out. `info.project` is not looked at.
template <class Visitor>
void EachInfSection(Project& project, SetupInformation& info, Visitor& visit)
{
    EachSettingsSection(project, info, visit);
    EachDesignSection(project, info, visit);
    EachListSection(project, info, visit);
}

} // namespace quillon
