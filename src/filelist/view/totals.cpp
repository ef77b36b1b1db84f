#include "filelist/view/totals.h"

#include "filelist/adding/system_files.h"
#include "project/total_size.h"

#include <optional>

namespace quillon {

namespace {

// Kept: after a failure the sum so far is lost, not shown.
Long TellFailure(std::optional<Long> sum, Ask& ask)
{
    if (!sum)
        ReportUnreadableSizes(ask);
    return sum.value_or(0);
}

} // namespace

Long GetTotalSizeOfFiles(const FileList& list, char decimalSign, Ask& ask)
{
    return TellFailure(SumOfSizes(list.rows, decimalSign), ask);
}

Long GetTotalSizeOfFilesX(const FileList& list, int targetOperatingSystem, char decimalSign,
                          Ask& ask)
{
    const auto isInstalled = [&](const FileListRow& row) {
        return !IsFileSkippedForTargetOS(row[Filename], targetOperatingSystem);
    };
    return TellFailure(SumOfSizes(list.rows, decimalSign, isInstalled), ask);
}

} // namespace quillon
