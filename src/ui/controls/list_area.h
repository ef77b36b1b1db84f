// Areas for lists, a line a row.
#pragma once

#include "helpers/text.h"

class QPlainTextEdit;

namespace quillon {

/// Shows the area in letters of one width, its lines as long as they are.
void ShowAsList(QPlainTextEdit* area);

/// Puts lines at the end, as typing does, and goes on after them.
void AppendLines(QPlainTextEdit* area, const Text& lines);

} // namespace quillon
