// The edge between texts in memory (UTF-8) and the tool's files (Windows-1252, one byte a
// character). The five bytes that the code page leaves undefined (0x81 0x8D 0x8F 0x90 0x9D) stand
// for the code points of the same number, so that every byte survives the way in and out.
#pragma once

#include "helpers/text.h"

namespace quillon::AnsiText {

Text FromBytes(std::string_view bytes);

/// A character that the code page lacks becomes '?': ask `Holds` first wherever a text comes from
/// outside (a file name, a typed text), and refuse it there with a message.
std::string ToBytes(std::string_view text);

/// True when every character has a byte, so that nothing is lost on the way to a file.
bool Holds(std::string_view text);

} // namespace quillon::AnsiText
