#include "helpers/line_breaks.h"

#include "helpers/ascii.h"
#include "helpers/utf8.h"

namespace quillon {

namespace {

// Byte 157 is one of the five that Windows-1252 leaves undefined, byte 158 is its "ž".
constexpr char32_t kBreakMark = 0x9D;
constexpr char32_t kBreakMarkTail = 0x17E;

void SkipCharacter(std::string_view text, std::size_t& position)
{
    if (position < text.size())
        NextCodePoint(text, position);
}

} // namespace

Text EncodeLineBreaks(std::string_view text)
{
    Text encoded;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        if (NextCodePoint(text, position) != U'\r') {
            encoded.append(text.substr(start, position - start));
            continue;
        }
        AppendCodePoint(encoded, kBreakMark);
        AppendCodePoint(encoded, kBreakMarkTail);
        // Kept: a lone CR eats the character that follows it.
        SkipCharacter(text, position);
    }
    return encoded;
}

Text DecodeLineBreaks(std::string_view text)
{
    Text decoded;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t plain = AsciiLength(text, position);
        decoded.append(text.substr(position, plain));
        position += plain;
        if (position == text.size())
            break;
        const std::size_t start = position;
        if (NextCodePoint(text, position) != kBreakMark) {
            decoded.append(text.substr(start, position - start));
            continue;
        }
        decoded.append(kLineBreak);
        // Kept: a byte 157 that was typed reads as a line break and eats what follows it.
        SkipCharacter(text, position);
    }
    return decoded;
}

Text FirstLineOnly(std::string_view text)
{
    return Text(text.substr(0, text.find(kLineBreak)));
}

} // namespace quillon
