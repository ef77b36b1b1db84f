// The disks of a package. Without a drive for them the first disk is the package's own folder, and
// the others are folders in it, ready to be copied to real disks; with a drive and a user before
// it, the user puts in one disk after the other.
#pragma once

#include "builder/compression_interface.h"
#include "platform/ask.h"
#include "platform/host.h"

namespace quillon {

/// What an empty 1.44 MB disk holds: 2847 clusters of 512 bytes.
inline constexpr std::uint64_t kDiskCapacity = 1457664;

class FolderDisks : public DiskSource {
public:
    FolderDisks(Host& host, Text packageFolder);

    /// Makes the disk's folder, and takes the piece of an earlier package out of it.
    std::optional<Text> NextDisk(int number) override;
    /// Clears away the disks of an earlier, larger package, which would pass for part of this one.
    void RemoveDisksBehind(int lastDisk);

    /// The root of a drive has what is free there; a folder acts as a 1.44 MB disk, on which a
    /// file takes whole clusters.
    std::uint64_t Capacity(const Text& folder) const override;

    /// The package's manifest goes onto the first disk when all are full.
    std::uint64_t ReservedBytes(std::uint64_t archiveSize) const override;

protected:
    Host& host_;
    Text packageFolder_; // without a trailing backslash

private:
    std::uint64_t Used(const Text& folder, bool isPackageFolder) const;
};

/// A package whose folder is the root of a drive spans the disks that the user puts into it.
class AskedDisks : public FolderDisks {
public:
    AskedDisks(Host& host, Ask& ask, Text packageFolder)
        : FolderDisks(host, std::move(packageFolder)), ask_(ask)
    {
    }

    /// Asks until the drive has a disk in it; nothing where the user cancels.
    std::optional<Text> NextDisk(int number) override;
    bool FirstDiskAgain() override;

private:
    bool AskUntil(int number, const Text& isThere);

    Ask& ask_;
};

} // namespace quillon
