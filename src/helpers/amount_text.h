// Amounts as people read them: how large, how long.
#pragma once

#include "helpers/text.h"

#include <cstdint>

namespace quillon {

/// "812 kB", "12,5 MB", "1 204,0 GB".
Text SizeText(std::uint64_t kilobytes, char decimalSign);

/// "mindre än 1 s", "7 s", "1 min 4 s".
Text DurationText(std::int64_t milliseconds);

} // namespace quillon
