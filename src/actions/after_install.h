// Rules of what the setup does once the files are copied: what it registers and which document it
// shows.
#pragma once

#include "platform/ask.h"
#include "project/file_list.h"

#include <optional>
#include <string_view>

namespace quillon {

/// Which rows of the file list are gathered for registration.
enum class RowsToRegister { Marked, Libraries };

/// What goes to the end of a list of files to register: a line for each of these rows, as the setup
/// will find it. A list that holds something is ended by a line break first.
Text LinesToGather(std::string_view list, const FileList& files, RowsToRegister which);

/// Whether the setup can show a document by itself, which it can with formatted text alone.
bool IsRtfDocument(std::string_view fileName);

/// The installed path of a row's file. Nothing for a row without a file, and, after a message box,
/// for a path that no project can hold as its document.
std::optional<Text> DocumentOfRow(const FileListRow& row, Ask& ask);

} // namespace quillon
