// Texts as the tool thinks of them. In memory a text is UTF-8; upper and lower case, and
// comparisons that ignore case, know the letters of Windows-1252 and no others, because those are
// the letters that a project can hold.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

using Text = std::string;

inline constexpr std::string_view kLineBreak = "\r\n";

/// The text with every letter of Windows-1252 in its other case; all else is copied.
Text UpperCase(std::string_view text);
Text LowerCase(std::string_view text);

bool EqualIgnoreCase(std::string_view left, std::string_view right);
/// Negative, zero or positive, as `std::string::compare` of the two texts in lower case, by code
/// point.
int CompareIgnoreCase(std::string_view left, std::string_view right);
bool ContainsText(std::string_view text, std::string_view part);

/// Blanks and tabs off both ends, as the profile functions do.
Text TrimBlanks(std::string_view text);

Text ReplaceAll(std::string_view text, std::string_view from, std::string_view to);
/// Without its quotation marks, wherever they are.
Text RemoveQuotes(std::string_view text);

/// Every line end, a line feed alone too, as CR LF.
Text WithWindowsLineEnds(std::string_view text);

/// Cut at each CR LF; an empty text is one empty line, and a final CR LF gives a last empty line.
std::vector<Text> SplitLines(std::string_view text);

/// The text between the first `startMark` and the next `endMark` after it; empty when either is
/// missing. At most 2000 characters come back.
Text StrBetween(std::string_view text, std::string_view startMark, std::string_view endMark);

/// The first `characters` characters (not bytes) of a text.
Text FirstCharacters(std::string_view text, std::size_t characters);
std::size_t CharacterCount(std::string_view text);

} // namespace quillon
