#include "actions/forms/pages/DiskSpaceEditor.h"

#include <QtWidgets>

namespace quillon {

QWidget* DiskSpaceEditor::DiskSpaceFrame(Flag& directly, Flag& button)
{
    return Frame("Diskutrymme",
                 {Check(NAMED(cShowDiskSpaceDirectly),
                        "&Nödvändigt och ledigt diskutrymme visas direkt i dialogrutan", directly),
                  Check(NAMED(cShowDiskSpaceButton),
                        "&Knapp i dialogrutan visar nödvändigt och ledigt diskutrymme", button)});
}

} // namespace quillon
