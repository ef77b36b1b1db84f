// Where a row's file comes from, in the one form that the file list and the containers share: the
// runtime finds a file because both were made from the same path.
#pragma once

#include "platform/file_system.h"

namespace quillon {

/// The short form of the path in lower case, so that long and national names never reach the
/// compression; where the system has no short names it is the path itself, in lower case. Dots in
/// the path are worked out first.
Text ConvertLongFilenameToShortFilename(const FileSystem& files, const Text& path);

/// The folder of such a path without its drive and its leading backslash: where the file is below
/// the medium's root when the medium is a tree. Empty for a file at the root of a drive.
Text SourceFolderOnMedium(const Text& shortPath);

} // namespace quillon
