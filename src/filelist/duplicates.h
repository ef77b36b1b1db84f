// The duplicate test of the file list. It looks at half of a long list only, which was chosen when
// each test walked over the rows, and so misses some duplicates. Which ones it misses is part of
// its outcome; the index here gives the same outcome without the walk.
#pragma once

#include "project/file_list.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string_view>
#include <unordered_map>
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
    using RowNumber = std::uint32_t;
    // Rows of one name keep the order of their numbers, however the list is sorted, so the first
    // and the last tell whether any of them lies in a span.
    struct Occurrences {
        RowNumber first;
        RowNumber last;
    };
    using OccurrencesByText = std::unordered_map<Text, Occurrences>;
    using OrderedRows = std::set<RowNumber, std::function<bool(RowNumber, RowNumber)>>;

    bool StandsBefore(RowNumber left, RowNumber right) const;
    bool HalvesTheList() const;
    std::size_t MiddleCount() const;
    RowNumber MiddleRow() const;
    bool LiesInSpan(const OccurrencesByText& all, const Text& key, const Text& upperName) const;
    void PlaceInHalf(RowNumber row);

    const FileList& list_;
    std::vector<Text> upperNames_;
    OccurrencesByText bySource_;
    OccurrencesByText byDestination_;
    // The sorted list in two halves, the middle row being the last of the first one. Both are empty
    // while the list isn't sorted by name: the rows then stand as they are.
    bool ordersByName_;
    OrderedRows firstHalf_;
    OrderedRows secondHalf_;
};

} // namespace quillon
