#include "builder/package_summary.h"

#include "helpers/amount_text.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

/// Nothing where a file is no longer in reach, as on the disks of a drive.
std::optional<std::uint64_t> SizeOfPackage(const CreateRun& run)
{
    std::uint64_t size = 0;
    const auto add = [&](const Text& name) {
        size += run.host.files.Status(JoinPath(run.DestDir, name)).size;
    };
    const bool isWholeDrive = run.DestDir.size() <= 2;
    const int error = RunErrorNumber([&] {
        std::ranges::for_each(run.packageFiles, add);
        std::ranges::for_each(run.piecesOnDisks, add, &ManifestLine::name);
    });
    return isWholeDrive || error != ErrorNumber::kNone ? std::nullopt : std::optional(size);
}

} // namespace

Text PackageSummary(const CreateRun& run, std::int64_t milliseconds)
{
    const auto size = SizeOfPackage(run);
    const Text time = DurationText(milliseconds);
    if (!size)
        return "Klart på " + time;
    // What is smaller than a kilobyte still takes one.
    const std::uint64_t kilobytes = (*size + 1023) / 1024;
    return SizeText(kilobytes, run.host.machine.DecimalSign()) + " på " + time;
}

} // namespace quillon
