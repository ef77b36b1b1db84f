// A file that takes its registration back runs code of its own, which may crash. So the uninstaller
// starts itself once more for each such file, as the setup starts its helper.
//
// The file's name goes through a pipe that only the parent can hand down: named on the command
// line, this program would load, with an administrator's rights, whatever library somebody names.
#pragma once

#include "helpers/text.h"

#include <optional>

namespace quillon {

/// Ends as `RegisterServerFile` does.
int UnregisterInOwnProcess(const Text& path);

/// What the second process does; nothing where the command line asks for something else.
std::optional<int> UnregisterForParent(std::string_view commandLine);

} // namespace quillon
