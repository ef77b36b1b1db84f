// Looks for rows by what is in them.
#pragma once

#include "project/file_list.h"

#include <optional>
#include <span>

namespace quillon {

enum class FindStep {
    Here, // the row itself, or the first one after it
    Next,
    Previous
};

struct FoundRow {
    std::size_t row = 0;
    // The row is the `place`-th, from 1, of `count` that hold the text.
    std::size_t place = 0;
    std::size_t count = 0;
};

/// The row that holds the text in one of these columns, ignoring case, next to the row `from`. At
/// either end of the list the search goes on at the other one.
std::optional<FoundRow> FindRow(const FileList& list, const Text& text,
                                std::span<const Column> columns, std::size_t from, FindStep step);

} // namespace quillon
