// The settings sections of the project file for the setup's dialog pages, the user values and
// updating, and the nine components, key by key in the order on file.
#pragma once

#include "project/stored_key.h"

namespace quillon::section {

// clang-format off
inline constexpr ProjectKey<DialogBoxes> kDialogBoxes[] = {
    {"WelcomeDlg",          &DialogBoxes::WelcomeDlg,          Stored::AsFlagReadAsNumber},
    {"GeneralInfoDlg",      &DialogBoxes::GeneralInfoDlg,      Stored::AsFlagReadAsNumber},
    {"GeneralInfoDlg2",     &DialogBoxes::GeneralInfoDlg2,     Stored::AsFlagReadAsNumber},
    {"LicenseInfoDlg",      &DialogBoxes::LicenseInfoDlg,      Stored::AsFlagReadAsNumber},
    {"LicenseInfoRtfDlg",   &DialogBoxes::LicenseInfoRtfDlg,   Stored::AsFlagReadAsNumber},
    {"PasswordDlg",         &DialogBoxes::PasswordDlg,         Stored::AsFlagReadAsNumber},
    {"NameCompanyDlg",      &DialogBoxes::NameCompanyDlg,      Stored::AsFlagReadAsNumber},
    {"DestinationDlg",      &DialogBoxes::DestinationDlg,      Stored::AsFlagReadAsNumber},
    {"DestinationDriveDlg", &DialogBoxes::DestinationDriveDlg, Stored::AsFlagReadAsNumber},
    {"ProgramGroupDlg",     &DialogBoxes::ProgramGroupDlg,     Stored::AsFlagReadAsNumber},
    {"StartInstallDlg",     &DialogBoxes::StartInstallDlg,     Stored::AsFlagReadAsNumber},
    {"InstallCompletedDlg", &DialogBoxes::InstallCompletedDlg, Stored::AsFlagReadAsNumber},
    {"DlgBitmap",           &DialogBoxes::DlgBitmap,           Stored::AsDlgBitmap, 200},
};

inline constexpr ProjectKey<DialogBoxData> kDialogBoxData[] = {
    {"WelcomeDlgTitle",             &DialogBoxData::WelcomeDlgTitle,             Stored::AsText, 200},
    {"GeneralDlgTitle",             &DialogBoxData::GeneralDlgTitle,             Stored::AsText, 200},
    {"GeneralDlgTitle2",            &DialogBoxData::GeneralDlgTitle2,            Stored::AsText, 200},
    {"StartInstallDlgTitle",        &DialogBoxData::StartInstallDlgTitle,        Stored::AsText, 200},
    {"InstallCompleteDlgTitle",     &DialogBoxData::InstallCompleteDlgTitle,     Stored::AsText, 200},
    {"WelcomeDlgText",              &DialogBoxData::WelcomeDlgText,              Stored::AsLines, 700},
    {"GeneralDlgText",              &DialogBoxData::GeneralDlgText,              Stored::AsLines, 700},
    {"GeneralDlgText2",             &DialogBoxData::GeneralDlgText2,             Stored::AsLines, 700},
    {"StartInstallDlgText",         &DialogBoxData::StartInstallDlgText,         Stored::AsLines, 700},
    {"InstallCompleteDlgText",      &DialogBoxData::InstallCompleteDlgText,      Stored::AsLines, 700},
    {"WelcomeDlgBitmap",            &DialogBoxData::WelcomeDlgBitmap,            Stored::AsDlgBitmap, 200},
    {"GeneralDlgBitmap",            &DialogBoxData::GeneralDlgBitmap,            Stored::AsDlgBitmap, 200},
    {"GeneralDlgBitmap2",           &DialogBoxData::GeneralDlgBitmap2,           Stored::AsDlgBitmap, 200},
    {"StartInstallDlgBitmap",       &DialogBoxData::StartInstallDlgBitmap,       Stored::AsDlgBitmap, 200},
    {"InstallCompleteDlgBitmap",    &DialogBoxData::InstallCompleteDlgBitmap,    Stored::AsDlgBitmap, 200},
    {"NameCompanyDlgBitmap",        &DialogBoxData::NameCompanyDlgBitmap,        Stored::AsDlgBitmap, 200},
    {"LicenseTitle",                &DialogBoxData::LicenseTitle,                Stored::AsText, 200},
    {"LicenseText",                 &DialogBoxData::LicenseText,                 Stored::AsLongLines, 16384},
    {"LicenseFootText",             &DialogBoxData::LicenseFootText,             Stored::AsText, 200},
    {"LicenseTitleRtf",             &DialogBoxData::LicenseTitleRtf,             Stored::AsText, 200},
    {"LicenseFootTextRtf",          &DialogBoxData::LicenseFootTextRtf,          Stored::AsText, 200},
    {"LicenseFilenameRtf",          &DialogBoxData::LicenseFilenameRtf,          Stored::AsText, 255},
    {"PasswordDialogText",          &DialogBoxData::PasswordDialogText,          Stored::AsFirstLine, 200},
    {"CorrectPassword",             &DialogBoxData::CorrectPassword,             Stored::AsText, 200},
    {"NameCompanyExtendedInfo",     &DialogBoxData::NameCompanyExtendedInfo,     Stored::AsFlag},
    {"GetNameCompanyFromRegistry",  &DialogBoxData::GetNameCompanyFromRegistry,  Stored::AsFlag},
    {"DestDirShowSizeInfo",         &DialogBoxData::DestDirShowSizeInfo,         Stored::AsFlag},
    {"DestDirShowSizeInfoButton",   &DialogBoxData::DestDirShowSizeInfoButton,   Stored::AsFlag},
    {"DestDriveShowSizeInfo",       &DialogBoxData::DestDriveShowSizeInfo,       Stored::AsFlag},
    {"DestDriveShowSizeInfoButton", &DialogBoxData::DestDriveShowSizeInfoButton, Stored::AsFlag},
    {"WarnIfDestDirExists",         &DialogBoxData::WarnIfDestDirExists,         Stored::AsFlag},
};

inline constexpr ProjectKey<LicenseData> kLicenseData[] = {
    {"UserCompany", &LicenseData::UserCompany, Stored::AsText, 200},
    {"UserName",    &LicenseData::UserName,    Stored::AsText, 200},
    {"UserAddress", &LicenseData::UserAddress, Stored::AsText, 200},
    {"UserPhone",   &LicenseData::UserPhone,   Stored::AsText, 200},
    {"UserFax",     &LicenseData::UserFax,     Stored::AsText, 200},
    {"Useremail",   &LicenseData::Useremail,   Stored::AsText, 200},
};

inline constexpr ProjectKey<RegPrivateVar> kRegPrivateVar[] = {
    {"Reg1", &RegPrivateVar::Reg1, Stored::AsText, 220},
    {"Reg2", &RegPrivateVar::Reg2, Stored::AsText, 220},
    {"Reg3", &RegPrivateVar::Reg3, Stored::AsText, 220},
};

inline constexpr ProjectKey<Updates> kUpdates[] = {
    {"HandleUpdate",                    &Updates::HandleUpdate,                    Stored::AsFlag},
    {"UpdateReferenceFile",             &Updates::UpdateReferenceFile,             Stored::AsText, 80},
    {"AdvUpdateRegHKEYIndex",           &Updates::AdvUpdateRegHKEYIndex,           Stored::AsNumber},
    {"AdvUpdateRegSubKey",              &Updates::AdvUpdateRegSubKey,              Stored::AsText, 255},
    {"AdvUpdateRegValueName",           &Updates::AdvUpdateRegValueName,           Stored::AsText, 200},
    {"AdvUpdateRegAlwaysUseUserDefKey", &Updates::AdvUpdateRegAlwaysUseUserDefKey, Stored::AsFlag},
};

// A component's number follows each key: the first one on file is "Comp1".
inline constexpr ProjectKey<FileComponent> kFileComponent[] = {
    {"Comp",                      &FileComponent::Comp,                      Stored::AsFlagReadAsNumber},
    {"CompName",                  &FileComponent::CompName,                  Stored::AsText, 40},
    {"CompDir",                   &FileComponent::CompDir,                   Stored::AsText, 128},
    {"CompText",                  &FileComponent::CompText,                  Stored::AsText, 250},
    {"CompDefault",               &FileComponent::CompDefault,               Stored::AsNumber},
    {"CompCanChangeDir",          &FileComponent::CompCanChangeDir,          Stored::AsNumber},
    {"CompMustAlwaysBeInstalled", &FileComponent::CompMustAlwaysBeInstalled, Stored::AsNumber},
    {"CompAdvOnlyUpdate",         &FileComponent::CompAdvOnlyUpdate,         Stored::AsNumber},
    {"CompAdvUpdateRefFile",      &FileComponent::CompAdvUpdateRefFile,      Stored::AsText, 128},
    {"CompAdvUpdateInfoBoxTitle", &FileComponent::CompAdvUpdateInfoBoxTitle, Stored::AsText, 128},
    {"CompAdvUpdateInfoBoxText",  &FileComponent::CompAdvUpdateInfoBoxText,  Stored::AsText, 300},
};
// clang-format on

} // namespace quillon::section
