// Reads a package's archive without the library that travels with it.
#pragma once

#include "platform/file_system.h"
#include "runtime/container.h"

namespace quillon {

/// `files` has to outlive what is returned.
OpenContainer DirectContainers(const FileSystem& files);

} // namespace quillon
