// Rows of the file list as text for other programs, such as a spreadsheet.
#pragma once

#include "project/file_list.h"

#include <span>

namespace quillon {

/// A line for each of these rows, with tabs between these columns.
Text TabSeparatedRows(const FileList& list, std::span<const std::size_t> rows,
                      std::span<const Column> columns);

} // namespace quillon
