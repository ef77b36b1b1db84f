#include "builder/folder_disks.h"

#include "builder/create_checks.h"
#include "formats/package.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::uint64_t kClusterSize = 512;

std::uint64_t WholeClusters(std::uint64_t size)
{
    return (size + kClusterSize - 1) / kClusterSize * kClusterSize;
}

/// "disk2" and the like, which are disks of their own.
bool IsDiskName(const Text& name)
{
    const Text lower = LowerCase(name);
    constexpr std::string_view kDisk = "disk";
    return lower.starts_with(kDisk) && lower.size() > kDisk.size() &&
           std::all_of(lower.begin() + kDisk.size(), lower.end(),
                       [](char digit) { return digit >= '0' && digit <= '9'; });
}

} // namespace

FolderDisks::FolderDisks(Host& host, Text packageFolder)
    : host_(host), packageFolder_(RemoveLastBackslash(packageFolder))
{
}

std::optional<Text> FolderDisks::NextDisk(int number)
{
    const Text folder = DiskFolder(packageFolder_, number);
    if (!host_.files.DirCreate(folder))
        return std::nullopt;
    // One that can't be removed can't be written either, and that failure has words of its own.
    RunErrorNumber([&] { host_.files.RemoveFile(JoinPath(folder, kFileContainerName)); });
    return folder;
}

std::optional<Text> AskedDisks::NextDisk(int number)
{
    if (!IsDriveRoot(packageFolder_))
        return FolderDisks::NextDisk(number);
    return AskUntil(number, "") ? std::optional(packageFolder_) : std::nullopt;
}

// The number of disks goes into a file of the first one.
bool AskedDisks::FirstDiskAgain()
{
    return !IsDriveRoot(packageFolder_) || AskUntil(1, kSetupInformationName);
}

bool AskedDisks::AskUntil(int number, const Text& isThere)
{
    const FileSystem& files = host_.files;
    const Text path = JoinPath(packageFolder_, isThere);
    while (AskForFloppy(ask_, number) == Check::Passed)
        if (isThere.empty() ? files.DirExists(path) : files.FileExists(path))
            return true;
    return false;
}

void FolderDisks::RemoveDisksBehind(int lastDisk)
{
    for (int number = lastDisk + 1;; ++number) {
        const Text folder = DiskFolder(packageFolder_, number);
        const Text piece = JoinPath(folder, kFileContainerName);
        if (!host_.files.FileExists(piece))
            return;
        // A piece that can't be removed stays, and so does a folder that holds other files.
        RunErrorNumber([&] {
            host_.files.RemoveFile(piece);
            host_.files.RemoveFolder(folder);
        });
    }
}

std::uint64_t FolderDisks::Capacity(const Text& folder) const
{
    if (IsDriveRoot(folder))
        return host_.files.FreeSpace(JoinPath(folder, ""));
    const bool isPackageFolder = EqualIgnoreCase(RemoveLastBackslash(folder), packageFolder_);
    const std::uint64_t used = Used(folder, isPackageFolder);
    return used < kDiskCapacity ? kDiskCapacity - used : 0;
}

std::uint64_t FolderDisks::ReservedBytes(std::uint64_t archiveSize) const
{
    constexpr std::uint64_t kLinesOfFiles = 2048; // for about two dozen files
    constexpr std::uint64_t kLineOfPiece = 96;
    constexpr std::uint64_t kMinDiskSize = 360 * 1024;
    return WholeClusters(kLinesOfFiles + kLineOfPiece * (archiveSize / kMinDiskSize + 1));
}

std::uint64_t FolderDisks::Used(const Text& folder, bool isPackageFolder) const
{
    std::uint64_t used = 0;
    for (const FolderEntry& entry : host_.files.List(folder)) {
        if (!entry.status.isFolder)
            used += WholeClusters(entry.status.size);
        else if (!isPackageFolder || !IsDiskName(entry.name))
            used += Used(JoinPath(folder, entry.name), false);
    }
    return used;
}

} // namespace quillon
