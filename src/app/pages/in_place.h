// Fields of the main window that edit the project in place: what is typed is in the project at
// once and marks it changed; what is only shown marks nothing.
#pragma once

#include "shell/session.h"
#include "ui/kit/form_kit.h"

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace quillon {

/// A field that edits `value`; `maxLength` is in bytes on file (see `MaxTextLength`).
QLineEdit* EditInPlace(QLineEdit*& member, const char* name, Session& session, Text& value,
                       int maxLength);
/// An area that edits a list, a line a row, in letters of one width. `maxLength` 0 is any length.
QPlainTextEdit* EditListInPlace(QPlainTextEdit*& member, const char* name, Session& session,
                                Text& value, int maxLength);

/// Shows the value of the project. A field that shows it already keeps its caret and its undo.
void ShowInPlace(QLineEdit* field, const Text& value);
void ShowInPlace(QPlainTextEdit* area, const Text& value);

/// After a change of projects: Undo must not bring back what belongs to the one before.
void ForgetUndo(QWidget& page);

} // namespace quillon
