#include "helpers/text.h"

#include "helpers/ascii.h"
#include "helpers/utf8.h"

#include <algorithm>

namespace quillon {

namespace {

// The letter pairs of Windows-1252 that lie outside ASCII and Latin-1.
struct LetterPair {
    char32_t upper;
    char32_t lower;
};
constexpr LetterPair kScatteredPairs[] = {
    {0x160, 0x161}, {0x152, 0x153}, {0x17D, 0x17E}, {0x178, 0xFF}};

constexpr char32_t kMultiplicationSign = 0xD7;
constexpr char32_t kDivisionSign = 0xF7;

char32_t Upper(char32_t letter)
{
    if (letter >= U'a' && letter <= U'z')
        return letter - 32;
    if (letter >= 0xE0 && letter <= 0xFE && letter != kDivisionSign)
        return letter - 32;
    for (const LetterPair& pair : kScatteredPairs)
        if (letter == pair.lower)
            return pair.upper;
    return letter;
}

char32_t Lower(char32_t letter)
{
    if (letter >= U'A' && letter <= U'Z')
        return letter + 32;
    if (letter >= 0xC0 && letter <= 0xDE && letter != kMultiplicationSign)
        return letter + 32;
    for (const LetterPair& pair : kScatteredPairs)
        if (letter == pair.upper)
            return pair.lower;
    return letter;
}

template <class Change>
Text ChangeLetters(std::string_view text, Change change)
{
    Text result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t letter = NextCodePoint(text, position);
        const char32_t changed = change(letter);
        if (changed == letter)
            result.append(text.substr(start, position - start));
        else
            AppendCodePoint(result, changed);
    }
    return result;
}

} // namespace

Text UpperCase(std::string_view text)
{
    return ChangeLetters(text, Upper);
}

Text LowerCase(std::string_view text)
{
    return ChangeLetters(text, Lower);
}

int CompareIgnoreCase(std::string_view left, std::string_view right)
{
    std::size_t leftPosition = 0;
    std::size_t rightPosition = 0;
    while (leftPosition < left.size() && rightPosition < right.size()) {
        const char32_t leftLetter = Lower(NextCodePoint(left, leftPosition));
        const char32_t rightLetter = Lower(NextCodePoint(right, rightPosition));
        if (leftLetter != rightLetter)
            return leftLetter < rightLetter ? -1 : 1;
    }
    const bool leftEnds = leftPosition == left.size();
    const bool rightEnds = rightPosition == right.size();
    return leftEnds == rightEnds ? 0 : (leftEnds ? -1 : 1);
}

bool EqualIgnoreCase(std::string_view left, std::string_view right)
{
    return CompareIgnoreCase(left, right) == 0;
}

bool ContainsText(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

Text TrimBlanks(std::string_view text)
{
    const auto first = std::find_if_not(text.begin(), text.end(), IsBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), IsBlank);
    return Text(first, last.base());
}

Text ReplaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    Text result;
    std::size_t position = 0;
    for (std::size_t hit = text.find(from); !from.empty() && hit != std::string_view::npos;
         hit = text.find(from, position)) {
        result.append(text.substr(position, hit - position)).append(to);
        position = hit + from.size();
    }
    return result.append(text.substr(position));
}

Text RemoveQuotes(std::string_view text)
{
    return ReplaceAll(text, "\"", "");
}

Text WithWindowsLineEnds(std::string_view text)
{
    return ReplaceAll(ReplaceAll(text, kLineBreak, "\n"), "\n", kLineBreak);
}

std::vector<Text> SplitLines(std::string_view text)
{
    std::vector<Text> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find(kLineBreak); end != std::string_view::npos;
         end = text.find(kLineBreak, start)) {
        lines.emplace_back(text.substr(start, end - start));
        start = end + kLineBreak.size();
    }
    lines.emplace_back(text.substr(start));
    return lines;
}

Text StrBetween(std::string_view text, std::string_view startMark, std::string_view endMark)
{
    constexpr std::size_t kMaxAnswerLength = 2000;
    const std::size_t start = text.find(startMark);
    if (start == std::string_view::npos)
        return {};
    text.remove_prefix(start + startMark.size());
    const std::size_t end = text.find(endMark);
    if (end == std::string_view::npos)
        return {};
    return FirstCharacters(text.substr(0, end), kMaxAnswerLength);
}

Text FirstCharacters(std::string_view text, std::size_t characters)
{
    std::size_t position = 0;
    for (; characters > 0 && position < text.size(); --characters)
        NextCodePoint(text, position);
    return Text(text.substr(0, position));
}

std::size_t CharacterCount(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count)
        NextCodePoint(text, position);
    return count;
}

} // namespace quillon
