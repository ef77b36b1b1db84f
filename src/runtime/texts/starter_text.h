// The texts that the starter shows, which come before there is room for anything: read from the
// language file by as little code as will do, without allocating. What the file may be, and what
// counts in it, is as in `language_file.h`.
#pragma once

#include <string_view>

namespace quillon {

/// A byte of the system's Western code page, Windows-1252, as UTF-16.
using AnsiCharacter = char16_t (*)(unsigned char byte);

/// Finds the text of the key in the section `PreLoader` of the file, given as its bytes, and puts
/// it into `to` with a null after it. False, with `to` untouched, where the file has no such text
/// or one of `room` characters or more.
bool FindStarterText(std::string_view file, std::string_view key, AnsiCharacter ansi, char16_t* to,
                     std::size_t room);

} // namespace quillon
