#include "helpers/ansi_text.h"

#include "helpers/ascii.h"
#include "helpers/utf8.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace quillon::AnsiText {

namespace {

constexpr unsigned kFirstSpecial = 0x80;

// The code points of the bytes 0x80 to 0x9F of Windows-1252, as Unicode's mapping table
// CP1252.TXT gives them; all other bytes are the code points of their own number.
constexpr char32_t kSpecials[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                  0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
constexpr unsigned kBehindSpecials = kFirstSpecial + std::size(kSpecials);

char32_t CodePointOf(unsigned char byte)
{
    const bool special = byte >= kFirstSpecial && byte < kBehindSpecials;
    return special ? kSpecials[byte - kFirstSpecial] : byte;
}

std::optional<char> ByteOf(char32_t codePoint)
{
    if (codePoint < kFirstSpecial || (codePoint >= kBehindSpecials && codePoint <= 0xFF))
        return static_cast<char>(codePoint);
    const auto found = std::find(std::begin(kSpecials), std::end(kSpecials), codePoint);
    if (found == std::end(kSpecials))
        return std::nullopt;
    return static_cast<char>(kFirstSpecial + (found - std::begin(kSpecials)));
}

} // namespace

Text FromBytes(std::string_view bytes)
{
    Text text;
    text.reserve(bytes.size());
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t plain = AsciiLength(bytes, position);
        text.append(bytes.substr(position, plain));
        position += plain;
        if (position < bytes.size())
            AppendCodePoint(text, CodePointOf(static_cast<unsigned char>(bytes[position++])));
    }
    return text;
}

std::string ToBytes(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t plain = AsciiLength(text, position);
        bytes.append(text.substr(position, plain));
        position += plain;
        if (position < text.size())
            bytes += ByteOf(NextCodePoint(text, position)).value_or('?');
    }
    return bytes;
}

bool Holds(std::string_view text)
{
    for (std::size_t position = 0; position < text.size();)
        if (!ByteOf(NextCodePoint(text, position)))
            return false;
    return true;
}

} // namespace quillon::AnsiText
