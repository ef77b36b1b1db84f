// Walking over UTF-8. A byte that starts no valid sequence is taken as U+FFFD and skipped by
// itself, so that a damaged text never stops the walk.
#pragma once

#include <string>
#include <string_view>

namespace quillon {

/// The byte order mark that a file in UTF-8 may begin with.
inline constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// The code point that begins at `position`, which is moved after it.
/// `position` must lie inside the text.
char32_t NextCodePoint(std::string_view text, std::size_t& position);

void AppendCodePoint(std::string& text, char32_t codePoint);

/// False where any byte is no part of a well-formed sequence.
bool IsUtf8(std::string_view text);

} // namespace quillon
