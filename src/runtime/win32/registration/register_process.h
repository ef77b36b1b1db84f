// A file that registers itself, or takes its registration back, runs code of its own, which may
// crash. Where there is no helper program for that, as in the uninstaller and in a setup that takes
// back what an earlier one has left, the running program starts itself once more for each such
// file.
//
// The file's name goes through a pipe that only the parent can pass on: if it were on the command
// line, anyone could make this program load any library with an administrator's rights.
#pragma once

#include "helpers/text.h"

#include <optional>

namespace quillon {

/// Ends as `RegisterServerFile` does. The running program has to call `RegisterForParent` first.
int RegisterInOwnProcess(const Text& path, bool on);

/// What the second process does; nothing where the command line asks for something else.
std::optional<int> RegisterForParent(std::string_view commandLine);

} // namespace quillon
