// The settings sections of the project file that say what is installed, where and how, key by key
// in the order on file.
#pragma once

#include "project/stored_key.h"

namespace quillon::section {

// clang-format off
inline constexpr ProjectKey<LastDirectories> kLastDirectories[] = {
    {"CreatationDestDir",         &LastDirectories::CreatationDestDir,         Stored::AsText, 200},
    {"LastDir_Create_CdCompress", &LastDirectories::LastDir_Create_CdCompress, Stored::AsText, 200},
    {"LastDir_Create_CdTree",     &LastDirectories::LastDir_Create_CdTree,     Stored::AsText, 200},
    {"LastDir_Create_Internet",   &LastDirectories::LastDir_Create_Internet,   Stored::AsText, 200},
};

inline constexpr ProjectKey<ProjectName> kProjectName[] = {
    {"ProjectName", &ProjectName::ProjectName, Stored::AsText, 200},
};

inline constexpr ProjectKey<Version> kVersion[] = {
    {"CompanyName",          &Version::CompanyName,          Stored::AsText, 200},
    {"ProductName",          &Version::ProductName,          Stored::AsText, 200},
    {"Description",          &Version::Description,          Stored::AsText, 200},
    {"ProductVersion",       &Version::ProductVersion,       Stored::AsText, 200},
    {"XProductVersionFName", &Version::XProductVersionFName, Stored::AsText, 250},
    {"Comments",             &Version::Comments,             Stored::AsText, 255},
};

inline constexpr ProjectKey<Media> kMedia[] = {
    {"TargetMedia", &Media::TargetMedia, Stored::AsNumber},
};

inline constexpr ProjectKey<OperatingSystem> kOperatingSystem[] = {
    {"TargetOperatingSystem", &OperatingSystem::TargetOperatingSystem, Stored::AsNumber},
};

inline constexpr ProjectKey<Compression> kCompression[] = {
    {"CompressFiles",                &Compression::CompressFiles,                Stored::AsFlagOnIfMissing},
    {"KeepCompressedFilesOneAndOne", &Compression::KeepCompressedFilesOneAndOne, Stored::AsNumber},
    {"SmallContainer",               &Compression::SmallContainer,               Stored::AsFlagWhenOn},
};

inline constexpr ProjectKey<InstallDirectories> kInstallDirectories[] = {
    {"DestinationDirectory", &InstallDirectories::DestinationDirectory, Stored::AsText, 200},
};

inline constexpr ProjectKey<ProgramGroup> kProgramGroup[] = {
    {"ProgramGroup",             &ProgramGroup::ProgramGroup,             Stored::AsText, 100},
    {"ProgramGroup_CurrentUser", &ProgramGroup::ProgramGroup_CurrentUser, Stored::AsFlagOnIfMissing},
    {"ProgramGroup_AllUsers",    &ProgramGroup::ProgramGroup_AllUsers,    Stored::AsFlag},
};

inline constexpr ProjectKey<InstallOptions> kInstallOptions[] = {
    {"SetupName",                     &InstallOptions::SetupName,                     Stored::AsText, 100},
    {"DeleteProgGroup",               &InstallOptions::DeleteProgGroup,               Stored::AsFlag},
    {"RestartWindows",                &InstallOptions::RestartWindows,                Stored::AsFlag},
    {"NeverRestartWindows",           &InstallOptions::NeverRestartWindows,           Stored::AsFlag},
    {"CreateAutorunFile",             &InstallOptions::CreateAutorunFile,             Stored::AsFlag},
    {"UninstallSupport",              &InstallOptions::UninstallSupport,              Stored::AsFlag},
    {"CreateUninstallIcon",           &InstallOptions::CreateUninstallIcon,           Stored::AsFlag},
    {"DontInstallSysFilesOnNewWin",   &InstallOptions::DontInstallSysFilesOnNewWin,   Stored::AsFlag},
    {"ExpandVariablesInRegistryKeys", &InstallOptions::ExpandVariablesInRegistryKeys, Stored::AsFlagText},
    {"ExpandVariablesInDialogBoxes",  &InstallOptions::ExpandVariablesInDialogBoxes,  Stored::AsFlagText},
};

inline constexpr ProjectKey<TargetOS> kTargetOS[] = {
    {"TargetOS_Win95",       &TargetOS::TargetOS_Win95,       Stored::AsFlag},
    {"TargetOS_Win95OSR2",   &TargetOS::TargetOS_Win95OSR2,   Stored::AsFlag},
    {"TargetOS_Win98",       &TargetOS::TargetOS_Win98,       Stored::AsFlag},
    {"TargetOS_WinME",       &TargetOS::TargetOS_WinME,       Stored::AsFlag},
    {"TargetOS_WinNT4",      &TargetOS::TargetOS_WinNT4,      Stored::AsFlag},
    {"TargetOS_WinNT4SP3",   &TargetOS::TargetOS_WinNT4SP3,   Stored::AsFlag},
    {"TargetOS_Win2000",     &TargetOS::TargetOS_Win2000,     Stored::AsFlag},
    {"TargetOS_WinXP",       &TargetOS::TargetOS_WinXP,       Stored::AsFlag},
    {"TargetOS_WarnIfWrong", &TargetOS::TargetOS_WarnIfWrong, Stored::AsFlag},
    {"TargetOS_StopIfWrong", &TargetOS::TargetOS_StopIfWrong, Stored::AsFlag},
};

inline constexpr ProjectKey<InstallOptionsInternet> kInstallOptionsInternet[] = {
    {"SelfExtractFilename",     &InstallOptionsInternet::SelfExtractFilename,     Stored::AsText, 80},
    {"SelfExtractIconFilename", &InstallOptionsInternet::SelfExtractIconFilename, Stored::AsText, 200},
    {"ExpandEXEInWinTempMap",   &InstallOptionsInternet::ExpandEXEInWinTempMap,   Stored::AsFlag},
};

inline constexpr ProjectKey<Sign> kSign[] = {
    {"SignSelfExtractFile", &Sign::SignSelfExtractFile, Stored::AsFlag},
    {"SignDescription",     &Sign::SignDescription,     Stored::AsText, 256},
    {"SignURL",             &Sign::SignURL,             Stored::AsText, 256},
    {"SignSPCFilename",     &Sign::SignSPCFilename,     Stored::AsText, 256},
    {"SignPVKFilename",     &Sign::SignPVKFilename,     Stored::AsText, 256},
    {"SignTimeStampSystem", &Sign::SignTimeStampSystem, Stored::AsNumber},
};

inline constexpr ProjectKey<NET> kNET[] = {
    {"NET_TestIfInstalled", &NET::NET_TestIfInstalled, Stored::AsFlag},
    {"NET_ver10",           &NET::NET_ver10,           Stored::AsFlagOnIfMissing},
    {"NET_ver11",           &NET::NET_ver11,           Stored::AsFlag},
    {"NET_WarnIfNoNET",     &NET::NET_WarnIfNoNET,     Stored::AsFlagOnIfMissing},
    {"NET_StopIfNoNET",     &NET::NET_StopIfNoNET,     Stored::AsFlag},
};

inline constexpr ProjectKey<RunAppSelfX> kRunAppSelfX[] = {
    {"ProgramFilename", &RunAppSelfX::ProgramFilename, Stored::AsText, 200},
    {"Param",           &RunAppSelfX::Param,           Stored::AsText, 200},
    {"ReturnValueExit", &RunAppSelfX::ReturnValueExit, Stored::AsText, 10},
    {"ReturnValueBack", &RunAppSelfX::ReturnValueBack, Stored::AsText, 10},
    {"ReturnValueDD",   &RunAppSelfX::ReturnValueDD,   Stored::AsText, 10},
    {"DD_iHKEYIndex",   &RunAppSelfX::DD_iHKEYIndex,   Stored::AsNumberText},
    {"DD_sSubKey",      &RunAppSelfX::DD_sSubKey,      Stored::AsText, 255},
    {"DD_sValueName",   &RunAppSelfX::DD_sValueName,   Stored::AsText, 200},
    {"VisibleWin",      &RunAppSelfX::VisibleWin,      Stored::AsFlag},
};

inline constexpr ProjectKey<Language> kLanguage[] = {
    {"LanguageFile", &Language::LanguageFile, Stored::AsText, 200},
};

inline constexpr ProjectKey<Databases> kDatabases[] = {
    {"MDAHiddenInstall", &Databases::MDAHiddenInstall, Stored::AsFlag},
    {"MDAAskUser",       &Databases::MDAAskUser,       Stored::AsFlag},
};

inline constexpr ProjectKey<RunAppAfter> kRunAppAfter[] = {
    {"AppFileName1", &RunAppAfter::AppFileName1, Stored::AsText, 200},
    {"AppParam1",    &RunAppAfter::AppParam1,    Stored::AsText, 200},
    {"AppFileName2", &RunAppAfter::AppFileName2, Stored::AsText, 200},
    {"AppParam2",    &RunAppAfter::AppParam2,    Stored::AsText, 200},
};

inline constexpr ProjectKey<ShowDocAfter> kShowDocAfter[] = {
    {"DocFileName",            &ShowDocAfter::DocFileName,            Stored::AsText, 200},
    {"ShowCheckBox",           &ShowDocAfter::ShowCheckBox,           Stored::AsFlagReadAsNumber},
    {"CheckBoxText",           &ShowDocAfter::CheckBoxText,           Stored::AsText, 200},
    {"UseInternalRTFBox",      &ShowDocAfter::UseInternalRTFBox,      Stored::AsFlagReadAsNumber},
    {"InternalRTFBoxDlgTitle", &ShowDocAfter::InternalRTFBoxDlgTitle, Stored::AsText, 200},
};

inline constexpr ProjectKey<FontOptions> kFontOptions[] = {
    {"NeverReplaceExistingFonts", &FontOptions::NeverReplaceExistingFonts, Stored::AsNumber},
};
// clang-format on

} // namespace quillon::section
