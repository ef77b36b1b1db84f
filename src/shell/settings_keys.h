// The keys of QUILLON.INI, section by section, in the order on file. Reader and writer are two
// visitors of the same walk:
//   Keys(section, table, record) and Slot(section, key, file)
#pragma once

#include "project/key_table.h"
#include "shell/session.h"

namespace quillon {

enum class SettingForm {
    AsText,
    AsSwitch,            // "1" or "0"; off if missing
    AsSwitchOnIfMissing, // the same, on if missing
    AsNumber,            // the value of a new machine if missing, or beyond 16 bits
};

template <class Section>
using SettingKey = Key<Section, SettingForm>;

// clang-format off
inline constexpr SettingKey<LastFolders> kLastFolders[] = {
    {"LastPictureDir",        &LastFolders::LastPictureDir,        SettingForm::AsText, 200},
    {"LastDlgPictureDir",     &LastFolders::LastDlgPictureDir,     SettingForm::AsText, 200},
    {"LastSoundDir",          &LastFolders::LastSoundDir,          SettingForm::AsText, 200},
    {"LastRtfLicenseFileDir", &LastFolders::LastRtfLicenseFileDir, SettingForm::AsText, 255},
    {"LastVB6ProjDir",        &LastFolders::LastVB6ProjDir,        SettingForm::AsText, 255},
    {"LastVBNETProjDir",      &LastFolders::LastVBNETProjDir,      SettingForm::AsText, 255},
};

inline constexpr int kRecentFileLimit = 200;

inline constexpr SettingKey<HideTabs> kHideTabs[] = {
    {"HideTabRegistry",   &HideTabs::HideTabRegistry,   SettingForm::AsNumber},
    {"HideTabINIFiles",   &HideTabs::HideTabINIFiles,   SettingForm::AsNumber},
    {"HideTabComponents", &HideTabs::HideTabComponents, SettingForm::AsNumber},
};

inline constexpr SettingKey<ListOptions> kListOptions[] = {
    {"ShowAlsoSourcePathInFileList", &ListOptions::ShowAlsoSourcePathInFileList, SettingForm::AsSwitch},
    {"ShowGridLinesInFileList",      &ListOptions::ShowGridLinesInFileList,      SettingForm::AsSwitch},
    {"OldStyleAddDialogBox",         &ListOptions::OldStyleAddDialogBox,         SettingForm::AsSwitch},
};

inline constexpr SettingKey<CreateOptions> kCreateOptions[] = {
    {"UpdateSetupExeDateTime",                   &CreateOptions::UpdateSetupExeDateTime,                   SettingForm::AsSwitch},
    {"PlaceCompressedFilesInFolderSetupFiles",   &CreateOptions::PlaceCompressedFilesInFolderSetupFiles,   SettingForm::AsSwitchOnIfMissing},
    {"CreateFolderStructureInFolderSetupFiles",  &CreateOptions::CreateFolderStructureInFolderSetupFiles,  SettingForm::AsSwitch},
};

inline constexpr SettingKey<WindowOptions> kWindowOptions[] = {
    {"MyDocFolderAutoCreateDone", &WindowOptions::MyDocFolderAutoCreateDone, SettingForm::AsSwitch},
    {"CBarsCurrentStyle",         &WindowOptions::CBarsCurrentStyle,         SettingForm::AsNumber},
};

inline constexpr SettingKey<WindowPlace> kWindowPlace[] = {
    {"Width",        &WindowPlace::Width,        SettingForm::AsNumber},
    {"Height",       &WindowPlace::Height,       SettingForm::AsNumber},
    {"Maximized",    &WindowPlace::Maximized,    SettingForm::AsSwitch},
    {"ColumnWidths", &WindowPlace::ColumnWidths, SettingForm::AsText, 200},
};
// clang-format on

/// `AnySession` is a session to read into or a constant one to write.
template <class Visitor, class AnySession>
void VisitSettings(Visitor& visitor, AnySession& session)
{
    auto& settings = session.Settings;
    visitor.Keys("Directories", kLastFolders, settings.Directories);
    int number = 0;
    for (auto& file : session.RecentFiles)
        visitor.Slot("RecentFiles", "F" + NumberText(++number), file);
    visitor.Keys("HideTabs", kHideTabs, settings.HideTabs);
    visitor.Keys("Options", kListOptions, settings.ListOptions);
    visitor.Keys("Options", kCreateOptions, session.options);
    visitor.Keys("Options", kWindowOptions, settings.WindowOptions);
    visitor.Keys("MainWindow", kWindowPlace, settings.WindowPlace);
}

} // namespace quillon
