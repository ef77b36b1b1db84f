// Texts in files of Windows that are two bytes a unit, low byte first.
#pragma once

#include "helpers/text.h"

namespace quillon {

constexpr bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

constexpr bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

inline constexpr char32_t kFirstBeyond16Bits = 0x10000;

/// The code point of a pair.
constexpr char32_t JoinSurrogates(char32_t high, char32_t low)
{
    return kFirstBeyond16Bits + ((high - 0xD800) << 10U) + (low - 0xDC00);
}

// The two units of a code point beyond 16 bits.
constexpr char32_t HighSurrogate(char32_t codePoint)
{
    return 0xD800 + ((codePoint - kFirstBeyond16Bits) >> 10U);
}

constexpr char32_t LowSurrogate(char32_t codePoint)
{
    return 0xDC00 + ((codePoint - kFirstBeyond16Bits) & 0x3FFU);
}

// The byte order marks that a file may begin with.
inline constexpr std::string_view kUtf16Bom = "\xFF\xFE";
inline constexpr std::string_view kUtf16BigEndianBom = "\xFE\xFF";

/// Half a pair becomes U+FFFD; a last odd byte is passed over.
Text FromUtf16(std::string_view bytes);

std::string ToUtf16(std::string_view text);

} // namespace quillon
