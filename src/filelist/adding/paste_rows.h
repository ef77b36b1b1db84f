// Rows of another list become rows of this one, by the rules of files that are added.
#pragma once

#include "filelist/list_work.h"
#include "filelist/view/sort.h"

#include <span>

namespace quillon {

/// Adds the rows whole. Duplicates are left out, silently where there are several rows; the first
/// row that the list can't hold ends the command with a box, and the rows before it stay. Returns
/// the numbers of the new rows, ascending.
std::vector<std::size_t> PasteRows(const ListWork& work, std::span<const FileListRow> rows);

} // namespace quillon
