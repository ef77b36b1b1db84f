// The rows of a project: one for each file that the setup copies and one for each empty folder that
// it makes. A row is fifteen texts; their order is that of the project file and of FILELIST.INF.
#pragma once

#include "helpers/text.h"

#include <array>
#include <cstddef>
#include <vector>

namespace quillon {

enum Column : std::size_t {
    Filename,
    Destination,
    Size, // kilobytes with one decimal
    Date,
    Time,
    IconMarker,
    CopyOptions,
    ComponentNumber,
    Extension,
    Source,
    IconDesc,
    IconPar,
    IconWorkDir,
    IconFile,
    IconDocReader,
    kColumnCount
};

struct FileListRow {
    std::array<Text, kColumnCount> columns;

    Text& operator[](Column column) { return columns[column]; }
    const Text& operator[](Column column) const { return columns[column]; }
    bool operator==(const FileListRow&) const = default;

    /// False on an empty-folder row.
    bool HasSource() const { return !columns[Source].empty(); }
};

inline constexpr const char* kEmptyFolderName = "<Dir>";
/// Stands in place of the destination, or of the size, of a file that is no longer there.
inline constexpr const char* kFileIsGone = "<Filen saknas>";

// Row numbers are 16-bit, so a file list holds no more rows than this.
inline constexpr std::size_t kMaxRows = 32767;

/// The rows in the order that the user sees, and what they are sorted by.
struct FileList {
    std::vector<FileListRow> rows;

    Column sortKey = Filename;
    bool sortDescending = false;
    // While the list is sorted, the view keeps that order; new rows are put in their places.
    bool sorted = true;
};

} // namespace quillon
