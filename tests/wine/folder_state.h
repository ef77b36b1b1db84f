// What is below a folder, to compare before and after.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace quillon::test {

/// Each path below the folder, in lower case since Windows ignores case, with a text that changes
/// with the file; a folder has "folder".
using FolderState = std::map<std::string, std::string>;

FolderState StateOf(const std::filesystem::path& folder);

/// What differs, a line each.
std::string FolderDifference(const FolderState& before, const FolderState& after);

} // namespace quillon::test
