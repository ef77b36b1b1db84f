// Formatted text in a document of Qt, and back: what the windows show and edit.
#pragma once

#include "rtf/rtf_text.h"

#include <QColor>

class QTextDocument;

namespace quillon {

/// Of text without a colour of its own.
inline const QColor kDefaultForeground = Qt::black;

/// Puts the paragraphs at the end of the document, for a screen of so many points per inch.
void InsertRtf(const RtfText& text, QTextDocument& document, int pointsPerInch);

/// What is in the document.
RtfText ExtractRtf(const QTextDocument& document, int pointsPerInch);

} // namespace quillon
