// Bytes of the usual single-byte code pages, for files from elsewhere that name theirs. The tool's
// own files are Windows-1252 and go through `AnsiText`.
#pragma once

namespace quillon {

inline constexpr int kWindows1252 = 1252;
inline constexpr int kMacRoman = 10000;

/// The character of a byte. The replacement character comes back for a byte that the page leaves
/// undefined, and for one from 0x80 on of a page that is not known here.
char32_t CodePointOf(int codePage, unsigned char byte);

} // namespace quillon
