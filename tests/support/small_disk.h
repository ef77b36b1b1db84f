// A real disk that soon is full, for tests of what a failing disk does to files.
#pragma once

#include "support/temp_folder.h"

#include <sys/mount.h>

namespace quillon::test {

/// A disk in memory over a folder that is there.
class MountedDisk {
public:
    /// `options` as mount takes them, such as "size=64k" or "nr_inodes=9", which is how many files
    /// and folders it holds.
    MountedDisk(std::string folder, const std::string& options)
        : folder_(std::move(folder)),
          isMounted_(mount("tmpfs", folder_.c_str(), "tmpfs", 0, options.c_str()) == 0)
    {
    }
    ~MountedDisk()
    {
        if (isMounted_)
            umount2(folder_.c_str(), MNT_DETACH);
    }
    MountedDisk(const MountedDisk&) = delete;
    MountedDisk& operator=(const MountedDisk&) = delete;

    /// Only an administrator may mount one.
    bool IsMounted() const { return isMounted_; }

private:
    std::string folder_;
    bool isMounted_;
};

class SmallDisk {
public:
    /// `size` as mount takes it, such as "64k".
    explicit SmallDisk(const std::string& size) : disk_(folder_.Path(), "size=" + size) {}

    bool IsMounted() const { return disk_.IsMounted(); }
    const TempFolder& Folder() const { return folder_; }

private:
    TempFolder folder_;
    MountedDisk disk_;
};

} // namespace quillon::test
