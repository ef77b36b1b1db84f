// What the editors of free lists share.
#pragma once

#include "ui/form_kit.h"

class QLabel;
class QPlainTextEdit;

namespace quillon {

/// A note that tells of a line in the area which the project file would not give back, as long as
/// there is one. The list is never refused for it.
QLabel* UnsavableLineNote(QLabel*& member, const char* name, QPlainTextEdit* area);

/// An area for a list with its note below.
Piece ListEditor(QPlainTextEdit* area, QLabel* note);

} // namespace quillon
