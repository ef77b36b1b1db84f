// The comment of an entry in FILEDATA.DAT: the rows of FILELIST.INF that it serves, such as
// "F1 F7". Files with the same bytes share an entry, which has one date only: where the file of a
// further row has another one, that follows the row, as in "F7@20040229123000".
#pragma once

#include "helpers/date_text.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

struct ServedRow {
    int number = 0;                    // 0 for a word that names no row
    std::optional<LocalTime> modified; // where it is not the entry's

    bool operator==(const ServedRow&) const = default;
};

std::vector<ServedRow> ServedRows(std::string_view comment);

/// The word of a row whose file has another date than the entry.
Text RowWithDate(const Text& row, const LocalTime& modified);

} // namespace quillon
