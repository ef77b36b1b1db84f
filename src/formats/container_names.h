// How the entries of a container are called.
#pragma once

#include "helpers/text.h"

#include <string_view>

namespace quillon {

/// The entry of a source: its path in lower case without the drive, with '/' between folders. Steps
/// like ".." are walked, so that no name leads out of the archive.
Text ContainerEntryName(std::string_view path);

} // namespace quillon
