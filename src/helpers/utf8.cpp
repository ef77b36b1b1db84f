#include "helpers/utf8.h"

#include "helpers/ascii.h"

namespace quillon {

namespace {

struct LeadByte {
    int followers;
    char32_t bits;
    char32_t smallest;
};

LeadByte ReadLeadByte(unsigned char byte)
{
    if (byte < 0x80)
        return {0, byte, 0};
    if (byte >= 0xC2 && byte <= 0xDF)
        return {1, byte & 0x1FU, 0x80};
    if ((byte & 0xF0U) == 0xE0)
        return {2, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte <= 0xF4)
        return {3, byte & 0x07U, 0x10000};
    return {-1, 0, 0};
}

bool IsScalarValue(char32_t value)
{
    return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

} // namespace

char32_t NextCodePoint(std::string_view text, std::size_t& position)
{
    const LeadByte lead = ReadLeadByte(static_cast<unsigned char>(text[position++]));
    if (lead.followers < 0)
        return kReplacementCharacter;

    char32_t value = lead.bits;
    std::size_t behind = position;
    for (int i = 0; i < lead.followers; ++i, ++behind) {
        const auto byte = behind < text.size() ? static_cast<unsigned char>(text[behind]) : 0U;
        if ((byte & 0xC0U) != 0x80)
            return kReplacementCharacter;
        value = (value << 6U) | (byte & 0x3FU);
    }
    if (value < lead.smallest || !IsScalarValue(value))
        return kReplacementCharacter;
    position = behind;
    return value;
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t position = AsciiLength(text); position < text.size();
         position += AsciiLength(text, position)) {
        const std::size_t start = position;
        // A replacement character that is in the text has three bytes.
        if (NextCodePoint(text, position) == kReplacementCharacter && position == start + 1)
            return false;
    }
    return true;
}

} // namespace quillon
