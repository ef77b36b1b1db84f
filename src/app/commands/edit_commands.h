// Undo and redo, as the menu and the keys run them.
#pragma once

namespace quillon {

class MainForm;

// The field that has the keyboard comes first, where it has something of its own to undo.
void UndoEdit(MainForm& form);
void RedoEdit(MainForm& form);

} // namespace quillon
