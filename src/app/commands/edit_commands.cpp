#include "app/commands/edit_commands.h"

#include "app/MainForm.h"
#include "app/history/EditHistory.h"

namespace quillon {

void UndoEdit(MainForm& form)
{
    EditHistory& edits = form.Edits();
    if (!edits.UndoInField() && edits.History().UndoName())
        form.ShowRestored(edits.Undo());
}

void RedoEdit(MainForm& form)
{
    EditHistory& edits = form.Edits();
    if (!edits.RedoInField() && edits.History().RedoName())
        form.ShowRestored(edits.Redo());
}

} // namespace quillon
