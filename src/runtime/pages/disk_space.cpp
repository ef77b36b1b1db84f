#include "runtime/pages/disk_space.h"

#include "helpers/amount_text.h"
#include "helpers/drive_path.h"
#include "platform/run_error.h"
#include "runtime/command_line/switches.h"

namespace quillon {

namespace {

bool MustBeInstalled(const SetupInformation& setup, int component)
{
    return setup.project.FileComponents[std::size_t(component) - 1].CompMustAlwaysBeInstalled != 0;
}

bool IsInUse(const SetupInformation& setup, int component)
{
    return setup.UseComponents != kOff && component >= 1 &&
           setup.project.FileComponents[std::size_t(component) - 1].Comp == 1;
}

} // namespace

std::array<std::uint64_t, kComponentCount + 1> SizesByComponent(const std::vector<InstallRow>& rows)
{
    std::array<std::uint64_t, kComponentCount + 1> sizes{};
    for (const InstallRow& row : rows) {
        const int number = ComponentNumberOf(row);
        sizes[number >= 1 && number <= int(kComponentCount) ? std::size_t(number) : 0] += row.size;
    }
    return sizes;
}

std::uint64_t NeededSpace(const PlanInput& input)
{
    std::uint64_t needed = 0;
    const auto sizes = SizesByComponent(input.rows);
    for (int number = 0; number <= int(kComponentCount); ++number)
        if (IsComponentInstalled(input, number))
            needed += sizes[std::size_t(number)];
    return needed;
}

std::uint64_t MinSpaceNeeded(const PlanInput& input)
{
    const auto sizes = SizesByComponent(input.rows);
    std::uint64_t needed = sizes[0];
    for (int number = 1; number <= int(kComponentCount); ++number)
        if (!IsInUse(input.setup, number) ||
            (MustBeInstalled(input.setup, number) && IsComponentInstalled(input, number)))
            needed += sizes[std::size_t(number)];
    return needed;
}

std::optional<std::uint64_t> FreeSpaceAt(const FileSystem& files, const Text& folder)
{
    if (!IsAbsolutePath(folder) || folder[1] != ':')
        return std::nullopt;
    std::optional<std::uint64_t> free;
    RunErrorNumber([&] { free = files.FreeSpace(folder.substr(0, 3)); });
    return free;
}

Text SpaceText(std::uint64_t bytes, const Machine& machine)
{
    return SizeText((bytes + 1023) / 1024, machine.DecimalSign());
}

} // namespace quillon
