// Deletes what a run replaces or cleans away, whether or not it exists.
#pragma once

#include "platform/file_system.h"
#include "platform/run_error.h"

namespace quillon {

inline void RemoveQuietly(FileSystem& files, const Text& path)
{
    RunErrorNumber([&] { files.RemoveFile(path); });
}

} // namespace quillon
