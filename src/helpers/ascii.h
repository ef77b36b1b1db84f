// ASCII, which UTF-8 and Windows-1252 write alike. Nearly all of every file is, so the functions
// that walk over texts pass it by in one step.
#pragma once

#include <cstddef>
#include <string_view>

namespace quillon {

/// How much of the text from `begin` on is ASCII.
std::size_t AsciiLength(std::string_view text, std::size_t begin = 0);

inline bool IsAscii(std::string_view text)
{
    return AsciiLength(text) == text.size();
}

constexpr bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

constexpr bool IsLetter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// A space or a tab; no line break.
inline bool IsBlank(char character)
{
    return character == ' ' || character == '\t';
}

} // namespace quillon
