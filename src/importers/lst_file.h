// Setup lists (.LST), in which a wizard for setups notes the files of one project.
#pragma once

#include "platform/file_system.h"
#include "project/file_list.h"

#include <optional>
#include <vector>

namespace quillon {

/// Says of a file that is too large to be a setup list that it is; empty of any other. Throws
/// `RunError` where the file can't be found.
Text TooLargeLstText(const FileSystem& files, const Text& lstFile);

/// The names in the setup list that no row has, in the list's order; folders are not compared.
/// Nothing where the file lists no files at all or is too large. Throws `RunError` where it can't
/// be read.
std::optional<std::vector<Text>> MissingFromFileList(const FileSystem& files, const Text& lstFile,
                                                     const std::vector<FileListRow>& rows);

} // namespace quillon
