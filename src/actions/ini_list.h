// The list of INI entries: what the buttons beside it put at its end. The list is free text; lines
// are in it in the order in which the setup carries them out.
#pragma once

#include "platform/ask.h"
#include "platform/file_system.h"

#include <string_view>

namespace quillon {

/// The longest list that the project file holds, in bytes on file.
inline constexpr int kMaxIniListLength = 32767;

/// Whether so much more can be at the end of the list; where not, a box says so.
bool HasRoomInIniList(std::string_view list, std::string_view added, Ask& ask);

/// What a new file, whose name was typed, puts at the end of the list.
Text IniFileToAppend(std::string_view list, std::string_view fileName);
/// The same for a section. The next line begins after it.
Text IniSectionToAppend(std::string_view list, std::string_view section);
/// The same for a value, on a line of its own: the last line of a list has no end after the header
/// of a file, after a file that was taken in, and when the project has been opened.
Text IniValueToAppend(std::string_view list, std::string_view name, std::string_view value);

/// Asks for an INI file and returns the text that appends its contents to the list; empty where
/// there is nothing to append. A failure shows a message box, and the lines read before it are
/// returned.
Text OpenINIFileIntoList(std::string_view list, const FileSystem& files, Ask& ask);

} // namespace quillon
