#include "helpers/amount_text.h"

#include "helpers/number_text.h"

#include <iterator>

namespace quillon {

Text SizeText(std::uint64_t kilobytes, char decimalSign)
{
    constexpr std::uint64_t kStep = 1024;
    // From here on nobody counts in the smaller unit.
    constexpr std::uint64_t kMax = 10'000;
    constexpr const char* kUnits[] = {" kB", " MB", " GB"};
    double size = static_cast<double>(kilobytes);
    std::size_t unit = 0;
    for (; size >= static_cast<double>(kMax) && unit + 1 < std::size(kUnits); ++unit)
        size /= static_cast<double>(kStep);
    const Text number = FormatNumber(size, unit == 0 ? "## ##0" : "## ##0.0", decimalSign);
    return TrimBlanks(number) + kUnits[unit];
}

Text DurationText(std::int64_t milliseconds)
{
    const std::int64_t seconds = (milliseconds + 500) / 1000;
    if (seconds == 0)
        return "mindre än 1 s";
    const Text rest = NumberText(seconds % 60) + " s";
    return seconds < 60 ? rest : NumberText(seconds / 60) + " min " + rest;
}

} // namespace quillon
