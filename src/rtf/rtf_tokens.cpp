#include "rtf/rtf_tokens.h"

#include "helpers/ascii.h"
#include "helpers/hex.h"

#include <algorithm>

namespace quillon {

namespace {

using Kind = RtfToken::Kind;

// A number with more digits is beyond all limits anyway.
constexpr int kMaxNumber = 99'999'999;

/// Zeros fill a file up to the size of its disk's blocks.
bool IsLineEnd(char byte)
{
    return byte == '\r' || byte == '\n' || byte == '\0';
}

bool EndsText(char byte)
{
    return byte == '{' || byte == '}' || byte == '\\' || IsLineEnd(byte);
}

std::size_t CountWhile(std::string_view text, bool (*holds)(char))
{
    return static_cast<std::size_t>(std::ranges::find_if_not(text, holds) - text.begin());
}

} // namespace

std::string_view RtfTokens::Take(std::size_t count)
{
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
}

std::optional<RtfToken> RtfTokens::Next()
{
    for (;;) {
        SkipLineEnds();
        if (rest_.empty())
            return std::nullopt;
        if (rest_[0] != '\\')
            return ReadText();
        if (const auto control = ReadControl())
            return control;
    }
}

void RtfTokens::SkipLineEnds()
{
    Take(CountWhile(rest_, IsLineEnd));
}

RtfToken RtfTokens::ReadText()
{
    if (rest_[0] == '{')
        return {.kind = Kind::Open, .text = Take(1)};
    if (rest_[0] == '}')
        return {.kind = Kind::Close, .text = Take(1)};
    return {.kind = Kind::Bytes,
            .text = Take(CountWhile(rest_, [](char byte) { return !EndsText(byte); }))};
}

/// Nothing where the backslash begins nothing known.
std::optional<RtfToken> RtfTokens::ReadControl()
{
    Take(1);
    if (rest_.empty())
        return std::nullopt;
    if (IsLetter(rest_[0]))
        return ReadWord();
    if (rest_[0] == '\'')
        return ReadHexByte();
    return RtfToken{.kind = Kind::Symbol, .text = Take(1)};
}

RtfToken RtfTokens::ReadWord()
{
    RtfToken token{.kind = Kind::Word, .text = Take(CountWhile(rest_, IsLetter))};
    token.number = ReadNumber();
    // The blank belongs to the word.
    if (rest_.starts_with(' '))
        Take(1);
    if (token.text == "bin")
        Take(static_cast<std::size_t>(std::max(0, token.number.value_or(0))));
    return token;
}

std::optional<int> RtfTokens::ReadNumber()
{
    const bool isNegative = rest_.size() > 1 && rest_[0] == '-' && IsDigit(rest_[1]);
    if (isNegative)
        Take(1);
    const std::string_view digits = Take(CountWhile(rest_, IsDigit));
    if (digits.empty())
        return std::nullopt;
    int number = 0;
    for (const char digit : digits)
        number = number > kMaxNumber / 10 ? kMaxNumber : number * 10 + (digit - '0');
    return isNegative ? -number : number;
}

std::optional<RtfToken> RtfTokens::ReadHexByte()
{
    Take(1);
    const bool isCut = rest_.size() < 2;
    const int byte = isCut ? -1 : HexByteValue(rest_[0], rest_[1]);
    if (isCut)
        Take(2);
    if (byte < 0)
        return std::nullopt;
    Take(2);
    return RtfToken{.kind = Kind::Bytes, .byte = static_cast<unsigned char>(byte)};
}

} // namespace quillon
