// What kind of path one is, by how it begins.
#pragma once

#include "helpers/ascii.h"

#include <string_view>

namespace quillon {

/// "C:", whatever follows.
constexpr bool BeginsWithDrive(std::string_view path)
{
    return path.size() >= 2 && path[1] == ':' && IsLetter(path[0]);
}

/// "C:\..." or "C:/...".
constexpr bool IsDrivePath(std::string_view path)
{
    return BeginsWithDrive(path) && path.size() > 2 && (path[2] == '\\' || path[2] == '/');
}

/// Whether a path that a user gives is Windows' own: with a drive, "C:" alone too, or of another
/// machine, `\\machine\share`. Any other is one of this machine.
constexpr bool IsWindowsPath(std::string_view path)
{
    return IsDrivePath(path) || (BeginsWithDrive(path) && path.size() == 2) ||
           path.starts_with("\\\\");
}

/// Drive and folder, or a network path: a folder that means the same wherever a program is started.
constexpr bool IsAbsolutePath(std::string_view path)
{
    return (BeginsWithDrive(path) && path.size() > 2 && path[2] == '\\') ||
           (path.size() > 2 && path.starts_with("\\\\") && path[2] != '\\');
}

} // namespace quillon
