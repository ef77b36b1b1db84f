// The command line: all of it is the path of one project. There are no switches.
#pragma once

#include "ui/dialogs/host_paths.h"

#include <span>

namespace quillon {

/// The Windows path that the words after the program's name mean; empty without any. A path
/// of this machine, a relative one too, is turned into one; a Windows path is left as it is.
/// Nothing where no Windows path can hold the name.
std::optional<Text> ProjectOfCommandLine(std::span<char* const> words, const HostPaths& paths);

} // namespace quillon
