// Writes AUTORUN.INF, by which a CD starts the setup when it is put in.
#pragma once

#include "platform/file_system.h"

namespace quillon {

/// Throws `RunError`.
void WriteAutorunFile(FileSystem& files, const Text& path, const Text& setupName);

} // namespace quillon
