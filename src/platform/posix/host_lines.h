// Small text files of the system itself, by their host paths.
#pragma once

#include <string>
#include <vector>

namespace quillon {

/// The lines without their ends; none where the file can't be read.
std::vector<std::string> LinesOfHostFile(const std::string& hostPath);

} // namespace quillon
