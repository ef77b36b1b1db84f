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

/// Half a pair becomes U+FFFD; a last odd byte is passed over.
Text FromUtf16(std::string_view bytes);

std::string ToUtf16(std::string_view text);

} // namespace quillon
