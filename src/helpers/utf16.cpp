#include "helpers/utf16.h"

#include "helpers/utf8.h"

namespace quillon {

namespace {

char32_t UnitAt(std::string_view bytes, std::size_t position)
{
    const auto low = static_cast<unsigned char>(bytes[position]);
    const auto high = static_cast<unsigned char>(bytes[position + 1]);
    return static_cast<char32_t>(low) | static_cast<char32_t>(high) << 8U;
}

} // namespace

Text FromUtf16(std::string_view bytes)
{
    Text text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const char32_t unit = UnitAt(bytes, i);
        const bool isPair =
            IsHighSurrogate(unit) && i + 3 < bytes.size() && IsLowSurrogate(UnitAt(bytes, i + 2));
        if (isPair) {
            i += 2;
            AppendCodePoint(text, JoinSurrogates(unit, UnitAt(bytes, i)));
        } else {
            const bool isHalf = IsHighSurrogate(unit) || IsLowSurrogate(unit);
            AppendCodePoint(text, isHalf ? kReplacementCharacter : unit);
        }
    }
    return text;
}

std::string ToUtf16(std::string_view text)
{
    std::string bytes;
    const auto append = [&](char32_t unit) {
        bytes += static_cast<char>(unit & 0xFFU);
        bytes += static_cast<char>(unit >> 8U & 0xFFU);
    };
    for (std::size_t position = 0; position < text.size();) {
        const char32_t codePoint = NextCodePoint(text, position);
        if (codePoint >= kFirstBeyond16Bits)
            append(HighSurrogate(codePoint));
        append(codePoint < kFirstBeyond16Bits ? codePoint : LowSurrogate(codePoint));
    }
    return bytes;
}

} // namespace quillon
