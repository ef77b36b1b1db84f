// Windows paths as texts. The functions here only cut and join; whether anything is at a path is
// the file system's to say.
#pragma once

#include "helpers/text.h"

namespace quillon {

// The longest path that the tool's path functions answer with, in characters.
inline constexpr std::size_t kMaxPathLength = 300;

/// What follows the last backslash; the whole path where there is none.
Text ExtractFilename(std::string_view path);

/// What precedes the last backslash; of "C:\a.txt" it is "C:\", with the backslash that makes
/// it a root. Empty where the path has no folder.
Text ExtractDirectory(std::string_view path);

/// Whether more than a name is there: a folder stands before it, or might.
bool HasFolder(std::string_view path);

/// The name with what follows its last dot replaced by `extension` (given without dot); a
/// name without a dot gets one.
Text ChangeFilenameExt(std::string_view name, std::string_view extension);

/// Everything after the first dot from the left, so that `a.b.ttf` has the extension `b.ttf`.
Text ExtensionFromFirstDot(std::string_view name);

Text RemoveLastBackslash(std::string_view path);

/// Each run of backslashes made single, but the two that begin a network path.
Text RemoveDupBackslashesEx(std::string_view path);

/// The folder and the name joined by exactly one backslash.
Text JoinPath(std::string_view folder, std::string_view name);

/// The names between the separators, empty ones left out; "." and ".." are names here.
std::vector<Text> PathParts(std::string_view path, std::string_view separators = "\\/");

/// The path with its "." and ".." worked out, slashes as backslashes and no backslash twice. A ".."
/// at the root of a drive or of a network share leads nowhere.
Text ResolvePath(std::string_view path);

/// Whether it is a drive and no more: "C:" or "C:\".
bool IsDriveRoot(std::string_view path);

/// Display case: all in lower case, then an upper-case letter first and after each backslash.
Text FormatPathForDisplay(std::string_view path);

/// The casing in which the tool's own paths are shown and stored; it is the display case.
Text PrettyPath(std::string_view path);

/// Without the drive and the backslash after it: "c:\data\a.txt" gives "data\a.txt". A network
/// path loses its leading backslashes.
Text WithoutDrive(std::string_view path);

} // namespace quillon
