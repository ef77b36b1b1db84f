// The texts that the starter shows before the setup proper runs: read from the language file by as
// little code as possible, without allocating. Encodings and rules are those of `language_file.h`.
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
