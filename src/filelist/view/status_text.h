// What the file list shows about itself: the first pane of the status bar, and the refusals of
// commands that work on rows.
#pragma once

#include "platform/ask.h"
#include "project/file_list.h"

namespace quillon {

/// "2 objekt,   30,0 kb" for `MainStatusBar`.
Text StatusBarText(const FileList& list, char decimalSign, Ask& ask);

/// "3 markerade objekt", which is there while two or more rows are selected.
Text SelectionText(std::size_t selectedRows);

enum class CommandNeeds { Rows, SelectedRow };

/// False, and shows why, when the list is empty.
bool HasRowsForCommand(const FileList& list, CommandNeeds needs, Ask& ask);

} // namespace quillon
