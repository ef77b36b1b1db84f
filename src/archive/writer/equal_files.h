// Finds files with the same bytes among the sources of an archive, so that each content is stored
// once. Sizes are looked at first, then the beginnings, and only what is still alike is read whole:
// a tree without equal files costs no more than a look at its sizes.
#pragma once

#include "helpers/text.h"
#include "platform/file_system.h"

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

struct FileContent {
    std::size_t original = 0; // the place of the first file with these bytes; its own otherwise
    // Of a file that was read whole, so that a change before it is packed can be noticed.
    std::optional<std::uint32_t> crc;
    LocalTime modified;
};

/// One for each path, in their order. A file that can't be read is like no other; the packing
/// reports why. `processEvents` is called often.
std::vector<FileContent> FindEqualFiles(const FileSystem& files, const std::vector<Text>& paths,
                                        const std::function<void()>& processEvents);

/// Whether both can be read and hold the same bytes.
bool AreEqualFiles(const FileSystem& files, const Text& first, const Text& second);

} // namespace quillon
