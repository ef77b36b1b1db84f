// A row of FILELIST.INF, as tool and setup runtime both see it: one line, thirteen fields, some of
// them followed by a blank and a semicolon and some by a semicolon alone.
#pragma once

#include "helpers/text.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

inline constexpr const char* kFileListType = "FileList";

struct InstallRow {
    int number = 0; // the n of the key "F<n>"
    Text name;      // at the destination; "<Dir>" on an empty-folder row
    Text destination;
    std::uint64_t size = 0; // bytes
    Text sourceFolder;      // without drive, lower case
    Text iconMarker;
    Text copyOptions;
    Text component = "0"; // as in the project's row; "0" where that has none
    Text iconTitle;
    Text iconParameters;
    Text workFolder;
    Text iconFile;
    int viewer = 0;

    bool operator==(const InstallRow&) const = default;
};

/// The number that the row's component begins with; 0, or a number that no component has, means
/// none.
int ComponentNumberOf(const InstallRow& row);

/// The row as its line, without line end.
Text InstallRowLine(const InstallRow& row);

/// Nothing where the line is no whole row.
std::optional<InstallRow> ReadInstallRow(std::string_view line);

struct InstallFileList {
    std::vector<InstallRow> rows;
    // False where the type mark, the list's end or the file's end is missing, or a line is no row.
    bool isWhole = false;
};

/// Reads FILELIST.INF from the bytes on file.
InstallFileList ReadInstallFileList(std::string_view bytes);

} // namespace quillon
