// The version that a program or library carries in its version resource.
#pragma once

#include "platform/file_system.h"

namespace quillon {

/// Empty for a file without version resource, and for one that can't be read.
Text FileVersionText(const FileSystem& files, const Text& path);

} // namespace quillon
