// The editor that the user has chosen for texts. Opening a text like any document will not do: what
// the desktop takes a file for depends on its extension and its first lines, and a text with an
// extension of our own is easily taken for something that no program opens.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The command by which the file, a host path, is edited; empty where the desktop names no editor
/// that can be started.
std::vector<std::string> TextEditorCommand(const std::string& file);

/// The command of a desktop entry with the file in the place where the entry wants it; empty where
/// the entry has none. One that needs a terminal gets it in front.
std::vector<std::string> CommandOfDesktopEntry(std::string_view entry, const std::string& file);

} // namespace quillon
