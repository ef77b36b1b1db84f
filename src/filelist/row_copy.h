// Rows of the file list on the clipboard: as text for other programs, such as a spreadsheet, and
// whole for another window of the tool.
#pragma once

#include "project/file_list.h"

#include <span>
#include <string>
#include <string_view>

namespace quillon {

/// A line for each of these rows, with tabs between these columns.
Text TabSeparatedRows(const FileList& list, std::span<const std::size_t> rows,
                      std::span<const Column> columns);

// What the clipboard calls rows that are whole. After a line with this name they are written as in
// a project file, in Windows-1252.
inline constexpr const char* kRowsFormat = "application/x-quillon-rows";

std::string WholeRows(const FileList& list, std::span<const std::size_t> rows);
/// The way back, up to the first line that is no whole row; nothing where the bytes are of another
/// kind. Sizes get the decimal sign of this machine.
std::vector<FileListRow> RowsOfBytes(std::string_view bytes, char decimalSign);

} // namespace quillon
