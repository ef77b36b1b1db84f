// The sum of the sizes that the rows of a file list show.
#pragma once

#include "platform/ask.h"
#include "project/file_list.h"

#include "helpers/number_text.h"

#include <optional>

namespace quillon {

/// Whole kilobytes, half-way cases to the even neighbour; rows without a size count nothing.
/// Nothing when a size is no number with this decimal sign, or the sum goes beyond a Long.
std::optional<Long> SumOfSizes(const std::vector<FileListRow>& rows, char decimalSign);

/// The box for a list whose sum can't be told. It stands here because saving a project sums the
/// list as well.
void TellSizesUnreadable(Ask& ask);

} // namespace quillon
