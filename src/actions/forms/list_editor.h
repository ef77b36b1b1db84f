// What the editors of free lists share.
#pragma once

#include "actions/unsavable_line.h"
#include "ui/kit/form_kit.h"

class QLabel;
class QPlainTextEdit;

namespace quillon {

/// A note that describes a line in the area which the project file would not give back from this
/// list, as long as there is one. The list can be kept with it, the project not be saved.
QLabel* UnsavableLineNote(QLabel*& member, const char* name, QPlainTextEdit* area, ListField list);

/// An area for a list with its note below.
Piece ListEditor(QPlainTextEdit* area, QLabel* note);

} // namespace quillon
