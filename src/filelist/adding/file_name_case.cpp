#include "filelist/adding/file_name_case.h"

#include "helpers/utf8.h"

namespace quillon {

namespace {

bool IsSmallLetter(char32_t letter)
{
    return (letter >= U'a' && letter <= U'z') || letter == U'å' || letter == U'ä' || letter == U'ö';
}

bool HoldsSmallLetter(std::string_view name, bool countsBehindBackslash)
{
    char32_t previous = 0;
    for (std::size_t position = 0; position < name.size();) {
        const char32_t letter = NextCodePoint(name, position);
        if (IsSmallLetter(letter) && (countsBehindBackslash || previous != U'\\'))
            return true;
        previous = letter;
    }
    return false;
}

} // namespace

Text FormatFileNameCase(std::string_view name)
{
    const bool isPath = ContainsText(name, ":\\");
    if (HoldsSmallLetter(name, !isPath))
        return Text(name);
    const Text first = FirstCharacters(name, 1);
    const bool startsWithDrive = name.substr(first.size()).starts_with(':');
    if (isPath || startsWithDrive)
        return LowerCase(name);
    return UpperCase(first) + LowerCase(name.substr(first.size()));
}

} // namespace quillon
