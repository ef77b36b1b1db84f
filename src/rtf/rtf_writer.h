// Formatted text written as RTF that word processors and the setup's rich text control read alike.
#pragma once

#include "rtf/rtf_text.h"

namespace quillon {

/// The text as the bytes of a file, ASCII only: letters beyond are written as \u with a fallback
/// for readers without Unicode. Reading it back gives the same text.
std::string WriteRtf(const RtfText& text);

} // namespace quillon
