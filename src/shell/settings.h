// What the tool remembers from one run to the next, beside any project: a record for each section
// of QUILLON.INI, a field for each key. The values here are those of a machine without that file.
#pragma once

#include "helpers/number_text.h"
#include "helpers/text.h"

namespace quillon {

// The folders last used, by kind of file. One that is empty after reading becomes My Documents.
struct LastFolders {
    Text LastPictureDir;
    Text LastDlgPictureDir;
    Text LastSoundDir;
    Text LastRtfLicenseFileDir;
    Text LastVB6ProjDir;
    Text LastVBNETProjDir;
};

struct HideTabs {
    Integer HideTabRegistry = 0; // 0 or -1
    Integer HideTabINIFiles = 0;
    Integer HideTabComponents = 0;
};

struct ListOptions {
    Flag ShowAlsoSourcePathInFileList = kOff;
    Flag ShowGridLinesInFileList = kOff;
    Flag OldStyleAddDialogBox = kOff;
};

/// The looks of the command bars, by `CBarsCurrentStyle`.
enum class BarsStyle : Integer { WindowsXP, Office2000, OfficeXP, Office2003 };

struct WindowOptions {
    Flag MyDocFolderAutoCreateDone = kOff;
    Integer CBarsCurrentStyle = static_cast<Integer>(BarsStyle::Office2003);
};

// Where the user left the main window, in pixels of 96 dpi. Width 0: it was never placed.
struct WindowPlace {
    Integer Width = 0;
    Integer Height = 0;
    Flag Maximized = kOff;
    // The widths of the file list's columns that the user has set, by column: "0:120 1:300".
    Text ColumnWidths;
};

struct Settings {
    LastFolders Directories;
    quillon::HideTabs HideTabs;
    quillon::ListOptions ListOptions;
    quillon::WindowOptions WindowOptions;
    quillon::WindowPlace WindowPlace;
};

} // namespace quillon
