// Setup lists (.LST), in which a wizard for setups notes the files of one project.
#pragma once

#include "platform/file_system.h"
#include "project/file_list.h"

#include <optional>
#include <vector>

namespace quillon {

/// The names in the setup list that no row has, in the list's order; folders are not compared.
/// Nothing where the file lists no files at all. Throws `RunError` where it can't be read.
std::optional<std::vector<Text>> MissingFromFileList(const FileSystem& files, const Text& lstFile,
                                                     const std::vector<FileListRow>& rows);

} // namespace quillon
