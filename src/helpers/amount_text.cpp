#include "helpers/amount_text.h"

#include "helpers/number_text.h"

#include <iterator>

namespace quillon {

namespace {

// "1 024"; larger numbers are given in the next unit.
Text InGroups(std::uint64_t number)
{
    constexpr std::uint64_t kGroup = 1000;
    const Text low = NumberText(static_cast<std::int64_t>(number % kGroup));
    if (number < kGroup)
        return low;
    return NumberText(static_cast<std::int64_t>(number / kGroup)) + " " +
           Text(3 - low.size(), '0') + low;
}

} // namespace

// In whole numbers, since the setup has no room for the conversion of floating ones.
Text SizeText(std::uint64_t kilobytes, char decimalSign)
{
    constexpr std::uint64_t kStep = 1024;
    // From this number on the next unit is used.
    constexpr std::uint64_t kMax = 10'000;
    constexpr const char* kUnits[] = {" kB", " MB", " GB"};
    std::uint64_t unitSize = 1;
    std::size_t unit = 0;
    for (; kilobytes / unitSize >= kMax && unit + 1 < std::size(kUnits); ++unit)
        unitSize *= kStep;
    if (unit == 0)
        return InGroups(kilobytes) + kUnits[unit];
    const std::uint64_t tenths = (kilobytes * 10 + unitSize / 2) / unitSize;
    return InGroups(tenths / 10) + decimalSign +
           NumberText(static_cast<std::int64_t>(tenths % 10)) + kUnits[unit];
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
