#include "formats/scramble.h"

#include "helpers/hex.h"
#include "helpers/utf8.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace quillon {

namespace {

// Letters, the Swedish ones too, digits and eleven signs. No blank and no quotation mark: readers
// of profile files take those away at the ends of a value.
constexpr std::u32string_view kPlain =
    U"ABCDEFGHIJKLMNOPQRSTUVWXYZÅÄÖabcdefghijklmnopqrstuvwxyzåäö0123456789!#$%&*+-.@_";
// The same characters in an order of no meaning.
constexpr std::u32string_view kSubstitution =
    U"t5ÄXq.0Jö&MbSeR%3wFåN$yKgZ8-hAuD*7Lc!ÖmVi2#YoTxÅ9kBr_E6WäpGa@4dQnH+zU1fPsOjvCIl";
constexpr std::size_t kAlphabetSize = 79;
static_assert(kPlain.size() == kAlphabetSize && kSubstitution.size() == kAlphabetSize);

constexpr int kMaxShift = 59;

// The header holds the shift more than once, so that an ordinary text is hardly taken for a
// scrambled one. Between constant pieces are the characters shift + offset.
constexpr std::string_view kMarker = "Qsv";
constexpr std::string_view kPieces[] = {"k7R", "xW2", "Tq", "m9e"};
constexpr int kOffsets[] = {35, 61, 48};
constexpr int kTailOffsets[] = {40, 66};
constexpr int kMinuteFactor = 12;
constexpr std::size_t kMinuteDigits = 3;

constexpr std::size_t kFillerLength = 16;
constexpr std::uint32_t kFillerFirst = 33;
constexpr std::uint32_t kFillerCount = 86;
constexpr char kBeforeBody = '!';

std::u32string Decoded(std::string_view text)
{
    std::u32string characters;
    for (std::size_t position = 0; position < text.size();)
        characters += NextCodePoint(text, position);
    return characters;
}

// What the header holds in front of the minute: the part that the shift alone decides.
Text HeaderOfShift(int shift)
{
    Text header(kPieces[0]);
    for (std::size_t i = 0; i < std::size(kOffsets); ++i)
        header.append(1, char(shift + kOffsets[i])).append(kPieces[i + 1]);
    for (const int offset : kTailOffsets)
        header += char(shift + offset);
    return header;
}

Text MinuteMark(int minute)
{
    Text mark(kMinuteDigits, '0');
    int rest = minute * kMinuteFactor;
    for (std::size_t i = kMinuteDigits; i-- > 0; rest /= 16)
        mark[i] = kHexDigits[std::size_t(rest % 16)];
    return mark;
}

Text Filler(const ScrambleSeed& seed)
{
    Text filler;
    for (std::size_t i = 0; i < kFillerLength; ++i)
        filler += char(kFillerFirst + seed.random(kFillerCount));
    return filler;
}

// Each character of `from` becomes the one that is at its place, moved by `places`, in `to`.
std::optional<Text> Substitute(std::string_view text, std::u32string_view from,
                               std::u32string_view to, std::size_t places)
{
    Text result;
    for (const char32_t character : Decoded(text)) {
        const std::size_t place = from.find(character);
        if (place == from.npos)
            return std::nullopt;
        AppendCodePoint(result, to[(place + places) % kAlphabetSize]);
    }
    return result;
}

std::optional<int> ShiftOfHeader(std::string_view text)
{
    for (int shift = 0; shift <= kMaxShift; ++shift)
        if (text.starts_with(HeaderOfShift(shift)))
            return shift;
    return std::nullopt;
}

} // namespace

Text ScrambleString(const Text& value, const ScrambleSeed& seed)
{
    if (value.empty())
        return value;
    const int shift = std::clamp(seed.second, 0, kMaxShift);
    const auto body = Substitute(value, kPlain, kSubstitution, std::size_t(shift));
    if (!body)
        return value;
    return Text(kMarker) + HeaderOfShift(shift) + MinuteMark(seed.minute) + Filler(seed) +
           kBeforeBody + *body;
}

Text UnscrambleString(const Text& scrambled)
{
    std::string_view rest = scrambled;
    if (!rest.starts_with(kMarker))
        return scrambled;
    rest.remove_prefix(kMarker.size());
    const auto shift = ShiftOfHeader(rest);
    if (!shift)
        return scrambled;

    const std::size_t bodyMark = HeaderOfShift(*shift).size() + kMinuteDigits + kFillerLength;
    if (rest.size() <= bodyMark + 1 || rest[bodyMark] != kBeforeBody)
        return scrambled;
    const std::size_t back = kAlphabetSize - std::size_t(*shift);
    return Substitute(rest.substr(bodyMark + 1), kSubstitution, kPlain, back).value_or(scrambled);
}

} // namespace quillon
