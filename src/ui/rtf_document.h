// Formatted text in a document of Qt, and back: what the windows show and edit.
#pragma once

#include "formats/rtf_text.h"

class QTextDocument;

namespace quillon {

/// Puts the paragraphs at the end of the document, for a screen of so many points per inch.
void PutRtf(const RtfText& text, QTextDocument& document, int pointsPerInch);

/// What stands in the document.
RtfText TakeRtf(const QTextDocument& document, int pointsPerInch);

} // namespace quillon
