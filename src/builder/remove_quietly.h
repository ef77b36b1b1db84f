// Deleting what a run replaces or cleans away, where it matters to nobody whether it was there.
#pragma once

#include "platform/file_system.h"
#include "platform/run_error.h"

namespace quillon {

inline void RemoveQuietly(FileSystem& files, const Text& path)
{
    RunErrorNumber([&] { files.RemoveFile(path); });
}

} // namespace quillon
