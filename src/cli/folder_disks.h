// Floppies without a drive: the first disk is the package's own folder, and the others are folders
// in it, ready to be copied to real disks.
#pragma once

#include "builder/compression_interface.h"
#include "platform/host.h"

namespace quillon::cli {

/// What an empty 1.44 MB disk holds: 2847 clusters of 512 bytes.
inline constexpr std::uint64_t kDiskCapacity = 1457664;

class FolderDisks : public DiskSource {
public:
    FolderDisks(Host& host, Text packageFolder);

    /// Makes the disk's folder, and takes the piece of an earlier package out of it.
    std::optional<Text> NextDisk(int number) override;
    /// Clears away the disks of an earlier, larger package, which would pass for part of this one.
    void RemoveDisksBehind(int lastDisk);

    /// The root of a drive has what is free there; a folder stands for a 1.44 MB disk, on which a
    /// file takes whole clusters.
    std::uint64_t Capacity(const Text& folder) const override;

private:
    std::uint64_t Used(const Text& folder, bool isPackageFolder) const;

    Host& host_;
    Text packageFolder_;
};

} // namespace quillon::cli
