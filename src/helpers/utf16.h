// Texts in files of Windows that are two bytes a unit, low byte first.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// Half a pair becomes U+FFFD; a last odd byte is passed over.
Text FromUtf16(std::string_view bytes);

std::string ToUtf16(std::string_view text);

} // namespace quillon
