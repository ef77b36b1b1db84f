// Starts other programs without waiting for them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The arguments of a command line as a Windows program would see them: blanks separate, quotation
/// marks hold together, a backslash before a quotation mark makes it a plain one.
std::vector<std::string> SplitArguments(std::string_view arguments);

/// A program of this name in the folders of PATH; empty where there is none.
std::string FindOnPath(std::string_view name);

/// `command` is the program's host path and its arguments. False where it can't be started.
bool StartDetached(const std::vector<std::string>& command);

} // namespace quillon
