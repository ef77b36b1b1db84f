// The duplicate test of the file list. A file is a duplicate of any row of its name that has its
// source or its destination, wherever the row is and however the list is sorted: a tree that is
// added again adds nothing.
//
// The constraints that shaped it:
//
// - 32,767 rows may be added to as many, and the list may hold a hundred files of one name
//   (readme.txt of a hundred folders): neither a scan nor a search by name alone ends in time.
// - So rows are found by a hash of the name with the source, and by one of the name with the
//   destination: two tables of row numbers (`row_table.h`). A hit is compared with the row itself,
//   so a collision costs a comparison and no wrong answer.
// - Case is ignored as Windows ignores it, by capitals. Those of the names are kept, since each is
//   needed twice; sources and destinations are much longer, and theirs are made when asked for.
// - The list must not change but by appending while an index exists. It is made for each
//   command, in one walk over the rows.
//
// Rejected: a binary search, which needs the list sorted by name and broke where many names were
// equal; an index that lives with the list, which every edit of a row would have to keep right.
#pragma once

#include "filelist/row_table.h"
#include "project/file_list.h"

#include <string_view>
#include <vector>

namespace quillon {

/// True if any row has this name, ignoring case.
bool IsFilenameInFileList(const FileList& list, std::string_view fileName);

/// Answers the duplicate test while rows are appended to a list. The code that appends a row calls
/// `NoteNewRow` when its name, source and destination are set, and does not change these while the
/// index exists.
class DuplicateIndex {
public:
    explicit DuplicateIndex(const FileList& list);
    DuplicateIndex(const DuplicateIndex&) = delete;
    DuplicateIndex& operator=(const DuplicateIndex&) = delete;

    bool IsFileAlreadyInList(std::string_view fileName, std::string_view sourcePath,
                             std::string_view destination) const;
    void NoteNewRow();

private:
    // The rows by their name and the text of one column.
    struct Place {
        Column column;
        RowTable rows = {};
    };

    void Note(Place& place, RowNumber number);
    auto HasNameAndText(const Place& place, const Text& upperName, std::string_view text) const;
    bool Holds(const Place& place, const Text& upperName, std::string_view text) const;

    const FileList& list_;
    std::vector<Text> upperNames_;
    Place source_{Source};
    Place destination_{Destination};
};

} // namespace quillon
