// The sum of the sizes that the rows of a file list show.
#pragma once

#include "helpers/number_text.h"
#include "platform/ask.h"
#include "project/file_list.h"

#include <functional>
#include <optional>

namespace quillon {

/// Whole kilobytes, half-way cases to the even neighbour; rows without a size count nothing.
/// Nothing when a size is no number with this decimal sign, or the sum goes beyond a Long.
/// Where `counts` is given, only the rows that it takes.
std::optional<Long> SumOfSizes(const std::vector<FileListRow>& rows, char decimalSign,
                               const std::function<bool(const FileListRow&)>& counts = {});

/// The box for a list whose sum can't be computed. It is here because saving a project sums the
/// list as well.
void ReportUnreadableSizes(Ask& ask);

} // namespace quillon
