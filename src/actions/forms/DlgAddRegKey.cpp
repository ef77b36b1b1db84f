#include "actions/forms/DlgAddRegKey.h"

#include "ui/controls/complete_variable.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgAddRegKey::DlgAddRegKey(Ask& ask, QWidget* parent)
    : RegistryKeyForm("DlgAddRegKey", "Lägg till nyckel eller värde", ask, parent)
{
    MakeControls();
    Arrange(VBox({
        KeyRows(),
        Frame("Värde", {Fields({
                           {"&Namn:", tName},
                           {"&Data:", HBox({Growing(tValue), cmdVariables})},
                           {"&Typ:", ComboType},
                       })}),
        Stretch(),
        OkCancel(),
    }));
    tSubKey->setFocus();
}

void DlgAddRegKey::MakeControls()
{
    for (QLineEdit* field :
         {Named(NAMED(tName), new QLineEdit), Named(NAMED(tValue), new QLineEdit)})
        LimitTyping(field, 0);
    Named(NAMED(ComboType), new QComboBox);
    for (const char* type : kRegistryValueTypes)
        ComboType->addItem(QString::fromUtf8(type));
    connect(ComboType, &QComboBox::activated, this, [this] { ChooseType(); });
    Button(NAMED(cmdVariables), "&Variabler...", [this] { AppendVariable(tValue, ask_); });
}

RegistryEntry DlgAddRegKey::Entry() const
{
    return {.root = Root(),
            .subKey = SubKey(),
            .name = FromQt(tName->text()),
            .data = FromQt(tValue->text()),
            .type = static_cast<RegistryValueType>(ComboType->currentIndex())};
}

void DlgAddRegKey::ChooseType()
{
    const RegistryEntry entry = Entry();
    tName->setText(ToQt(NameOnChoiceOfType(entry.name, entry.type)));
    tName->setEnabled(entry.type != RegistryValueType::Standard);
}

bool DlgAddRegKey::MayClose()
{
    if (!RegistryKeyForm::MayClose())
        return false;
    RegistryEntry entry = Entry();
    const bool may = CheckRegistryData(entry.type, entry.data, ask_);
    tValue->setText(ToQt(entry.data));
    if (!may)
        tValue->setFocus();
    return may;
}

void DlgAddRegKey::Store()
{
    Line = MakeRegistryLine(Entry());
}

} // namespace quillon
