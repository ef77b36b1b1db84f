// The drives that a setup offers to install on; the tool's preview of that page shows the same.
#pragma once

#include "platform/file_system.h"

#include <vector>

namespace quillon {

/// Their roots, "C:\" before "D:\": fixed, network and removable drives, but no floppies and no CD.
inline std::vector<Text> InstallDrives(const FileSystem& files)
{
    std::vector<Text> drives;
    for (char letter = 'C'; letter <= 'Z'; ++letter) {
        const Text root = Text(1, letter) + ":\\";
        const DriveKind kind = files.DriveType(root);
        if (kind == DriveKind::Fixed || kind == DriveKind::Remote || kind == DriveKind::Removable)
            drives.push_back(root);
    }
    return drives;
}

} // namespace quillon
