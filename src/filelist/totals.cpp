#include "filelist/totals.h"

#include "filelist/system_files.h"

#include <limits>
#include <optional>

namespace quillon {

namespace {

constexpr const char* kSumFailed =
    "Ett fel inträffade totalsumman av filstorlekarna skulle beräknas i fillistan! Kan bero på att "
    "decimalavskiljaren inte är av standardtyp (punkt eller komma).";

template <class Counts>
std::optional<Long> SumOfSizes(const FileList& list, char decimalSign, Counts counts)
{
    double sum = 0;
    for (const FileListRow& row : list.rows) {
        if (row[Size].empty() || !counts(row))
            continue;
        const std::optional<double> size = FloatingNumber(row[Size], decimalSign);
        if (!size)
            return std::nullopt;
        sum += *size;
    }
    constexpr double kBeyondLong = std::numeric_limits<Long>::max() + 0.5;
    if (sum >= kBeyondLong || sum < -kBeyondLong)
        return std::nullopt;
    return static_cast<Long>(RoundToEven(sum));
}

// Kept: after a failure the sum so far is lost, not shown.
Long TellFailure(std::optional<Long> sum, Ask& ask)
{
    if (!sum)
        ask.Critical("Fel", kSumFailed);
    return sum.value_or(0);
}

} // namespace

Long GetTotalSizeOfFiles(const FileList& list, char decimalSign, Ask& ask)
{
    const auto all = [](const FileListRow&) { return true; };
    return TellFailure(SumOfSizes(list, decimalSign, all), ask);
}

Long GetTotalSizeOfFilesX(const FileList& list, int targetOperatingSystem, char decimalSign,
                          Ask& ask)
{
    const auto isInstalled = [&](const FileListRow& row) {
        return !IsFileSkippedForTargetOS(row[Filename], targetOperatingSystem);
    };
    return TellFailure(SumOfSizes(list, decimalSign, isInstalled), ask);
}

} // namespace quillon
