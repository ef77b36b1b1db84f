// Texts at the edge to Windows, whose functions take UTF-16. Everything inside is UTF-8.
#pragma once

#include "helpers/text.h"

namespace quillon {

std::wstring Wide(std::string_view text);
/// Half a surrogate pair, which a file name may hold, becomes U+FFFD.
Text Narrow(std::wstring_view text);

/// A path as a file function takes it: one near the limit of MAX_PATH or beyond it gets the prefix
/// that lifts the limit. Throws 52 for a path that holds a NUL.
std::wstring WidePath(const Text& path);

} // namespace quillon
