#include "actions/forms/DlgDestDirAdvUpdate.h"

#include "platform/registry_roots.h"
#include "project/text_limits.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::Updates;

constexpr int kKeyCharacters = 45;

} // namespace

DlgDestDirAdvUpdate::DlgDestDirAdvUpdate(Updates& updates, Session& session, QWidget* parent)
    : EditorForm("DlgDestDirAdvUpdate", "Uppdateringar - Avancerat", session, parent)
{
    Choice(NAMED(ComboHKEY), kRegistryRoots, updates.AdvUpdateRegHKEYIndex);
    Field(NAMED(tSubKey), updates.AdvUpdateRegSubKey, MaxTextLength(&Updates::AdvUpdateRegSubKey));
    Field(NAMED(tValueName), updates.AdvUpdateRegValueName,
          MaxTextLength(&Updates::AdvUpdateRegValueName));
    Check(NAMED(cAlwaysUseUserDefKey),
          "Hämta alltid uppdateringsinformation från ovanstående nyckel ifall den existerar",
          updates.AdvUpdateRegAlwaysUseUserDefKey);
    Arrange(VBox({
        Note("Om inte uppdateringinformation finns vid det normala stället i Registry kan du här "
             "ange ett alternativt ställe som ska avläsas istället."),
        Frame("Registry - nyckel/värde", {Fields({
                                             {"&HKEY:", ComboHKEY},
                                             {"&Subnyckel:", MinWidth(kKeyCharacters, tSubKey)},
                                             {"&Namn på värde:", tValueName},
                                         })}),
        cAlwaysUseUserDefKey,
        Stretch(),
        OkCancel(),
    }));
}

} // namespace quillon
