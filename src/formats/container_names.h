// How the entries of a container are called and how they tell which rows they serve: what the tool
// writes and the runtime looks for.
#pragma once

#include "helpers/text.h"

#include <string_view>
#include <vector>

namespace quillon {

/// The entry of a source: its path in lower case without the drive, with '/' between folders. Steps
/// like ".." are walked, so that no name leads out of the archive.
Text ContainerEntryName(std::string_view path);

/// The keys of the rows that an entry serves ("F1", "F7"), out of its comment.
std::vector<Text> ServedRows(std::string_view comment);

} // namespace quillon
