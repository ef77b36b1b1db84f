// The version that a program or library carries in its version resource.
#pragma once

#include "helpers/version_resource.h"
#include "platform/file_system.h"

namespace quillon {

/// All empty for a file without version resource, and for one that can't be read.
FileVersionData VersionDataOfFile(const FileSystem& files, const Text& path);

Text FileVersionText(const FileSystem& files, const Text& path);

} // namespace quillon
