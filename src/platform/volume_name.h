// What a drive is called, for a list of drives.
#pragma once

#include "platform/file_system.h"
#include "platform/run_error.h"

namespace quillon {

/// Empty where the volume has no name, or doesn't give it.
inline Text VolumeNameIfAny(const FileSystem& files, const Text& root)
{
    try {
        return files.GetVolumeName(root);
    } catch (const RunError&) {
        return {};
    }
}

} // namespace quillon
