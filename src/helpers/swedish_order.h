// The order of a Swedish dictionary for the letters of Windows-1252: å, ä, ö after z, and a letter
// with any other mark beside the plain one.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// Compared byte by byte, the keys of two texts are in that order; two texts share a key only where
/// they are equal. ASCII texts are their own keys. To ignore case, pass texts in one case.
Text SwedishOrderKey(std::string_view text);

} // namespace quillon
