// Hexadecimal digits, without the standard library's streams: the small programs read and write
// them too.
#pragma once

namespace quillon {

inline constexpr char kHexDigits[] = "0123456789ABCDEF";
inline constexpr char kSmallHexDigits[] = "0123456789abcdef";

/// The two digits of a byte, after whatever the text holds.
template <class Text>
void AppendHexByte(Text& text, unsigned char byte, const char* digits)
{
    text += digits[byte >> 4U];
    text += digits[byte & 15U];
}

/// 16 or more for a character that is no hexadecimal digit, of either case.
constexpr unsigned HexDigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return unsigned(digit - '0');
    const char lower = static_cast<char>(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? unsigned(lower - 'a') + 10U : 16U;
}

/// The byte of two digits; negative where one of them is none.
constexpr int HexByteValue(char high, char low)
{
    const unsigned upper = HexDigitValue(high);
    const unsigned lower = HexDigitValue(low);
    return upper > 15 || lower > 15 ? -1 : static_cast<int>(upper * 16 + lower);
}

} // namespace quillon
