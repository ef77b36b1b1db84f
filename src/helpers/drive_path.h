// Whether a path that a user gives begins with a drive of Windows.
#pragma once

#include <string_view>

namespace quillon {

/// "C:", whatever follows.
constexpr bool BeginsWithDrive(std::string_view path)
{
    return path.size() >= 2 && path[1] == ':' &&
           ((path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z'));
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

} // namespace quillon
