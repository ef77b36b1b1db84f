// The order of the file list: a stable sort by the text of one column in Swedish order, ignoring
// case. Dates sort rightly because they are written year first; sizes are never sorted by.
#pragma once

#include "project/file_list.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quillon {

/// What a row is sorted by: its column without regard to case.
Text SortText(const FileListRow& row, Column key);

/// For each row number from before the sort, where the row is now; a view moves its selection
/// by it.
using NewPlaces = std::vector<std::size_t>;

/// Brings the rows into the order that the list keeps; one that isn't sorted stays as it is.
NewPlaces SortRows(FileList& list);

/// Sorts by this key now, and keeps the list sorted by it.
NewPlaces SortRowsBy(FileList& list, Column key, bool descending = false);

/// Keeps the order of rows that were read from a file. A list whose rows are in order of their
/// names counts as sorted by name from then on, any other as not sorted, so that duplicates are
/// looked for in all of it.
void KeepStoredOrder(FileList& list);

/// A click on the column with this header.
NewPlaces HandleColumnClick(FileList& list, std::string_view header);

} // namespace quillon
