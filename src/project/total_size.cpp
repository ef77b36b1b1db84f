#include "project/total_size.h"

#include <cmath>
#include <limits>

namespace quillon {

std::optional<Long> SumOfSizes(const std::vector<FileListRow>& rows, char decimalSign,
                               const std::function<bool(const FileListRow&)>& counts)
{
    double sum = 0;
    for (const FileListRow& row : rows) {
        if (row[Size].empty() || (counts && !counts(row)))
            continue;
        const auto size = FloatingNumber(row[Size], decimalSign);
        if (!size)
            return std::nullopt;
        sum += *size;
    }
    // Tested before rounding: a list from a damaged file can sum up to more than any integer holds.
    constexpr double kBeyondLong = std::numeric_limits<Long>::max() + 0.5;
    if (std::fabs(sum) >= kBeyondLong)
        return std::nullopt;
    return static_cast<Long>(RoundToEven(sum));
}

void ReportUnreadableSizes(Ask& ask)
{
    ask.Critical(
        "Fel", "Ett fel inträffade totalsumman av filstorlekarna skulle beräknas i fillistan! Kan "
               "bero på att decimalavskiljaren inte är av standardtyp (punkt eller komma).");
}

} // namespace quillon
