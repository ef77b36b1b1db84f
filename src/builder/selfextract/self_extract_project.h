// INSTALL.ADX: the attributes of a self-extracting program by number, a line each, in the order in
// which they were set. UTF-8 with CR LF; a line break or backslash in a text is written as \r, \n
// and \\.
#pragma once

#include "platform/file_system.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quillon {

using SelfExtractAttributes = std::vector<std::pair<std::uint32_t, Text>>;

void WriteSelfExtractProject(FileSystem& files, const Text& path,
                             const SelfExtractAttributes& attributes);

/// Throws `RunError`: 57 for a file that is none.
SelfExtractAttributes ReadSelfExtractProject(const FileSystem& files, const Text& path);

/// Whether such a file is there, by its heading.
bool IsSelfExtractProject(const FileSystem& files, const Text& path);

/// Empty where it is not set; the last one counts.
Text AttributeOf(const SelfExtractAttributes& attributes, std::uint32_t number);

} // namespace quillon
