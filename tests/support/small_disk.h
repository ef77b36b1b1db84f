// A real disk that soon is full, for tests of what a failing disk does to files.
#pragma once

#include "support/temp_folder.h"

#include <sys/mount.h>

namespace quillon::test {

class SmallDisk {
public:
    /// `size` as mount takes it, such as "64k".
    explicit SmallDisk(const std::string& size)
        : isMounted_(mount("tmpfs", folder_.Path().c_str(), "tmpfs", 0, ("size=" + size).c_str()) ==
                     0)
    {
    }
    ~SmallDisk()
    {
        if (isMounted_)
            umount2(folder_.Path().c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// Only an administrator may mount one.
    bool IsMounted() const { return isMounted_; }
    const TempFolder& Folder() const { return folder_; }

private:
    TempFolder folder_;
    bool isMounted_;
};

} // namespace quillon::test
