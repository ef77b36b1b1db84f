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

} // namespace quillon
