// What the texts of the starters are read with, see `starter_text.h`.
#pragma once

#include <windows.h>

namespace quillon {

inline char16_t AnsiCharacterOf(unsigned char byte)
{
    constexpr UINT kWesternCodePage = 1252;
    const char one = static_cast<char>(byte);
    wchar_t wide = L'?';
    MultiByteToWideChar(kWesternCodePage, 0, &one, 1, &wide, 1);
    return wide;
}

} // namespace quillon
