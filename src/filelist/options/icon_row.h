// The icon of a row: whether the setup makes one, where, and what it starts.
#pragma once

#include "helpers/number_text.h"
#include "platform/ask.h"
#include "project/file_list.h"

#include <array>
#include <string_view>

namespace quillon {

/// Where an icon is beside the program group. One place at most is chosen.
struct IconPlaces {
    bool onDesktop = false;
    bool onStartMenu = false;
    bool onProgramMenu = false;

    bool operator==(const IconPlaces&) const = default;
};

struct RowIcon {
    Flag isAdded = kOff;
    IconPlaces places;
    Text description;
    Text parameters; // the command line of an icon file
    Text workDir;
    Text iconFile;
    Text documentReader;

    bool operator==(const RowIcon&) const = default;
};

/// What opens a document icon; the first is the choice of a new icon.
inline constexpr std::array<const char*, 5> kDocumentReaders{"<Ingen>", "Notepad", "Winhelp",
                                                             "WordPad", "Write"};

/// Which dialog edits the icon of a row. Folders and fonts have no icon.
enum class IconDialog { None, DlgIcon, DlgIconX };
IconDialog IconDialogOf(const FileListRow& row);

/// The icon that a row has, or what is proposed for its first one.
RowIcon IconOf(const FileListRow& row);

/// Writes the icon to its row; without one, what the row held of it is gone.
void SetIcon(FileListRow& row, RowIcon icon);
/// The same for an icon file, whose row keeps its columns for external icon and document reader.
void SetIconOfIconFile(FileListRow& row, RowIcon icon);

/// Tells what is wrong with a path typed as external icon file. The path counts nevertheless.
void CheckExternalIconFile(const Text& path, Ask& ask);

/// Whether the command line of an icon file is as the user wants it; `commandLine` has no blanks at
/// its end.
bool CheckCommandLine(const Text& commandLine, Ask& ask);

} // namespace quillon
