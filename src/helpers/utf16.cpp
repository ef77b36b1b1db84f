#include "helpers/utf16.h"

#include "helpers/little_endian.h"
#include "helpers/utf8.h"

namespace quillon {

Text FromUtf16(std::string_view bytes)
{
    Text text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const char32_t unit = ShortAt(bytes, i);
        const bool isPair =
            IsHighSurrogate(unit) && i + 3 < bytes.size() && IsLowSurrogate(ShortAt(bytes, i + 2));
        if (isPair) {
            i += 2;
            AppendCodePoint(text, JoinSurrogates(unit, ShortAt(bytes, i)));
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
        AppendNumber(bytes, static_cast<std::uint16_t>(unit));
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
