// Windows paths to paths of this machine and back, for file dialogs and dropped files, which speak
// the machine's own. Handed down from main().
#pragma once

#include "helpers/text.h"

#include <functional>
#include <optional>

namespace quillon {

struct HostPaths {
    /// Nothing where the machine has no such drive.
    std::function<std::optional<std::string>(const Text& windowsPath)> toHost;
    /// Nothing where no Windows path can hold the name.
    std::function<std::optional<Text>(const std::string& hostPath)> toWindows;
};

/// What is typed where a path is wanted: "/home/me/x" is a path of this machine, all else a Windows
/// path already.
inline Text WindowsPathOf(const Text& typed, const HostPaths& paths)
{
    if (!typed.starts_with('/') || !paths.toWindows)
        return typed;
    return paths.toWindows(typed).value_or(typed);
}

} // namespace quillon
