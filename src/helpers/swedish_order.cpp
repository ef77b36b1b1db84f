#include "helpers/swedish_order.h"

#include "helpers/utf8.h"

namespace quillon {

namespace {

// Where letters are sorted: at another letter, or at a byte that no UTF-8 text begins a character
// with, after all of ASCII and in front of every other character.
struct Letters {
    std::u32string_view letters;
    std::string_view place;
};

// clang-format off
constexpr Letters kPlaces[] = {
    {U"Åå", "\x80"}, {U"ÄäÆæ", "\x81"}, {U"ÖöØøŒœ", "\x82"},
    {U"ÀÁÂÃ", "A"}, {U"Ç", "C"}, {U"ÈÉÊË", "E"}, {U"ÌÍÎÏ", "I"}, {U"Ð", "D"}, {U"Ñ", "N"},
    {U"ÒÓÔÕ", "O"}, {U"Š", "S"}, {U"ÙÚÛ", "U"}, {U"ÝŸÜ", "Y"}, {U"Ž", "Z"}, {U"Þ", "TH"},
    {U"àáâã", "a"}, {U"ç", "c"}, {U"èéêë", "e"}, {U"ìíîï", "i"}, {U"ð", "d"}, {U"ñ", "n"},
    {U"òóôõ", "o"}, {U"š", "s"}, {U"ùúû", "u"}, {U"ýÿü", "y"}, {U"ž", "z"}, {U"þ", "th"},
    {U"ß", "ss"}, {U"ƒ", "f"},
};
// clang-format on

std::string_view PlaceOf(char32_t letter)
{
    for (const Letters& row : kPlaces)
        if (row.letters.find(letter) != std::u32string_view::npos)
            return row.place;
    return {};
}

bool IsAscii(char character)
{
    return static_cast<unsigned char>(character) < 0x80;
}

} // namespace

Text SwedishOrderKey(std::string_view text)
{
    Text key;
    key.reserve(text.size());
    bool isMoved = false;
    for (std::size_t position = 0; position < text.size();) {
        if (IsAscii(text[position])) {
            key += text[position++];
            continue;
        }
        const std::size_t start = position;
        const std::string_view place = PlaceOf(NextCodePoint(text, position));
        isMoved = isMoved || !place.empty();
        key += place.empty() ? text.substr(start, position - start) : place;
    }
    // Texts that differ in their marks alone still have an order.
    return isMoved ? key.append(1, '\0').append(text) : key;
}

} // namespace quillon
