// The duplicate test of the file list. A file is a duplicate of any row of its name, wherever that
// stands and however the list is sorted: a tree that is added again adds nothing.
#pragma once

#include "filelist/row_table.h"
#include "project/file_list.h"

#include <string_view>
#include <vector>

namespace quillon {

/// True if any row has this name, ignoring case.
bool IsFilenameInFileList(const FileList& list, std::string_view fileName);

/// Answers the duplicate test while rows are appended to a list. Whoever appends a row calls
/// `NoteNewRow` when its name, source and destination are set, and leaves these alone until the
/// index is gone.
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
