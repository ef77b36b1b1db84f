// The duplicate test of the file list. It looks at half of a long list only, which was chosen when
// each test walked over the rows, and so misses some duplicates. Which ones it misses is part of
// its outcome; the index here gives the same outcome without the walk.
#pragma once

#include "filelist/row_table.h"
#include "filelist/sorted_blocks.h"
#include "project/file_list.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quillon {

/// True if any row has this name, ignoring case.
bool IsFilenameInFileList(const FileList& list, std::string_view fileName);

/// Answers the duplicate test while rows are appended to a list. New rows stand at the end of
/// `list.rows`, but count as standing where the list's order puts them. Whoever appends a row calls
/// `NoteNewRow` when its name, source and destination are set, and leaves these alone until the
/// index is gone; the list's sort must not change meanwhile.
class DuplicateIndex {
public:
    explicit DuplicateIndex(const FileList& list);
    DuplicateIndex(const DuplicateIndex&) = delete;
    DuplicateIndex& operator=(const DuplicateIndex&) = delete;

    bool IsFileAlreadyInList(std::string_view fileName, std::string_view sourcePath,
                             std::string_view destination) const;
    void NoteNewRow();

private:
    // The rows by their name and the text of one column. Rows of one name keep the order of their
    // numbers, however the list is sorted, so the first and the last tell whether any of them lies
    // in a span.
    struct Place {
        Column column;
        RowTable rows = {};
    };

    // `nameStart` holds the first bytes of the row's name, which settle most comparisons.
    struct OrderedRow {
        std::uint64_t nameStart;
        RowNumber number;
    };
    struct InListOrder {
        const DuplicateIndex* index;
        bool operator()(const OrderedRow& left, const OrderedRow& right) const
        {
            return index->StandsBefore(left, right);
        }
    };

    OrderedRow Ordered(RowNumber number) const;
    bool StandsBefore(const OrderedRow& left, const OrderedRow& right) const;
    bool HalvesTheList() const;
    std::size_t MiddleCount() const;
    OrderedRow MiddleRow() const;
    void Note(Place& place, RowNumber number);
    auto HasNameAndText(const Place& place, const Text& upperName, std::string_view text) const;
    bool LiesInSpan(const Place& place, const Text& upperName, std::string_view text) const;

    const FileList& list_;
    std::vector<Text> upperNames_;
    Place source_{Source};
    Place destination_{Destination};
    // Empty while the list isn't sorted by name: the rows then stand as they are.
    bool ordersByName_;
    SortedBlocks<OrderedRow, InListOrder> rowsByName_{InListOrder{this}};
};

} // namespace quillon
