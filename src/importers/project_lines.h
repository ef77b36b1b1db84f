// The file of a development project as lines of text, whatever code page or mark it was saved with.
#pragma once

#include "platform/file_system.h"

#include <string_view>
#include <vector>

namespace quillon {

// Project files hold some hundred short lines. A file beyond these limits is damaged, or is
// something else under that name.
inline constexpr std::size_t kMaxProjectBytes = std::size_t{4} << 20;
inline constexpr std::size_t kMaxProjectLineLength = 4096;

struct ProjectLines {
    std::vector<Text> lines; // a damaged one is empty
    // What was passed over, in words; empty where the file was read whole.
    Text damage;
};

ProjectLines SplitProject(std::string_view bytes, const Text& path);

/// Throws `RunError` where the file can't be read.
ProjectLines ReadProjectLines(const FileSystem& files, const Text& path);

} // namespace quillon
