#include "actions/forms/DlgAddINIentry.h"

#include "actions/ini_list.h"
#include "ui/controls/complete_variable.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kValueCharacters = 40;

} // namespace

DlgAddINIentry::DlgAddINIentry(const Text& list, Ask& ask, QWidget* parent)
    : Form("DlgAddINIentry", "Lägg till värde", parent), list_(list), ask_(ask)
{
    for (QLineEdit* field :
         {Named(NAMED(tName), new QLineEdit), Named(NAMED(tValue), new QLineEdit)})
        LimitTyping(field, 0);
    Button(NAMED(cmdVariables), "&Variabler...", [this] { AppendVariable(tValue, ask_); });
    Arrange(VBox({
        Fields({
            {"&Namn:", tName},
            {"V&ärde:", HBox({Growing(MinWidth(kValueCharacters, tValue)), cmdVariables})},
        }),
        Stretch(),
        OkCancel(),
    }));
}

Text DlgAddINIentry::TypedLines() const
{
    return IniValueToAppend(list_, FromQt(tName->text()), FromQt(tValue->text()));
}

bool DlgAddINIentry::MayClose()
{
    const bool isNamed = !tName->text().isEmpty();
    if (!isNamed && tValue->text().isEmpty())
        return true;
    if (!isNamed) {
        ask_.Inform("Info", "Du måste ange ett namn!");
        tName->setFocus();
    }
    // A full list is reported here, while the typed text can still be shortened.
    return isNamed && HasRoomInIniList(list_, TypedLines(), ask_);
}

void DlgAddINIentry::Store()
{
    if (!tName->text().isEmpty())
        Lines = TypedLines();
}

} // namespace quillon
