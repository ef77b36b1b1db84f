#include "actions/forms/RegistryKeyForm.h"

#include "platform/registry_roots.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kKeyCharacters = 60;

// A field that gets the focus by the keyboard selects its text, and the first letter typed would
// replace the preset, which is meant to be continued.
class SubKeyField : public QLineEdit {
protected:
    void focusInEvent(QFocusEvent* event) override
    {
        QLineEdit::focusInEvent(event);
        if (hasSelectedText() && text().endsWith('\\'))
            end(false);
    }
};

} // namespace

RegistryKeyForm::RegistryKeyForm(const char* name, const Text& title, Ask& ask, QWidget* parent)
    : Form(name, title, parent), ask_(ask)
{
    Named(NAMED(ComboHKEY), new QComboBox);
    for (const char* root : kRegistryRoots)
        ComboHKEY->addItem(root);
    connect(ComboHKEY, &QComboBox::activated, this, [this] { ChooseRoot(); });
    Named(tSubKey, "tSubKey", static_cast<QLineEdit*>(new SubKeyField));
    LimitTyping(tSubKey, 0);
    OnLeave(tSubKey, [this] { LeaveSubKey(); });
}

Piece RegistryKeyForm::KeyRows()
{
    return Fields({{"&HKEY:", ComboHKEY}, {"&Subnyckel:", MinWidth(kKeyCharacters, tSubKey)}});
}

Text RegistryKeyForm::Root() const
{
    return FromQt(ComboHKEY->currentText());
}

Text RegistryKeyForm::SubKey() const
{
    return FromQt(tSubKey->text());
}

void RegistryKeyForm::ChooseRoot()
{
    tSubKey->setText(ToQt(SubKeyOnChoiceOfRoot(SubKey(), Root())));
}

void RegistryKeyForm::LeaveSubKey()
{
    tSubKey->setText(ToQt(SubKeyOnLeave(SubKey())));
}

bool RegistryKeyForm::MayClose()
{
    LeaveSubKey();
    const bool may = HasSubKey(SubKey(), ask_);
    if (!may)
        tSubKey->setFocus();
    return may;
}

RemoveRegKeyForm::RemoveRegKeyForm(const char* name, const Text& title, RegistryRemoval when,
                                   Ask& ask, QWidget* parent)
    : RegistryKeyForm(name, title, ask, parent), when_(when)
{
    Named(NAMED(tValue), new QLineEdit);
    LimitTyping(tValue, 0);
    Arrange(VBox({
        KeyRows(),
        Frame("Namn på värde", {Fields({{"&Värde:", tValue}})}),
        Stretch(),
        OkCancel(),
    }));
    tSubKey->setFocus();
}

void RemoveRegKeyForm::Store()
{
    Line = MakeRegistryRemovalLine(when_, Root(), SubKey(), FromQt(tValue->text()));
}

} // namespace quillon
