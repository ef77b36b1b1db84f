#include "actions/forms/DlgGetRegKey.h"

#include "helpers/number_text.h"
#include "platform/registry_roots.h"
#include "project/text_limits.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kKeyCharacters = 60;

} // namespace

DlgGetRegKey::DlgGetRegKey(section::RunAppSelfX& program, Session& session, QWidget* parent)
    : EditorForm("DlgGetRegKey", "Specificera Registry-nyckel", session, parent)
{
    MakeRoots(program.DD_iHKEYIndex);
    Field(NAMED(tSubKey), program.DD_sSubKey, MaxTextLength(&section::RunAppSelfX::DD_sSubKey));
    Field(NAMED(tValueName), program.DD_sValueName,
          MaxTextLength(&section::RunAppSelfX::DD_sValueName));
    Arrange(VBox({
        Note("Här kan du specificera var i Registry som %DESTDIR (huvuddestinationskatalogen) ska "
             "hämta sitt nya värde."),
        Fields({
            {"&HKEY:", ComboHKEY},
            {"&Subnyckel:", MinWidth(kKeyCharacters, tSubKey)},
            {"&Namn på värde:", tValueName},
        }),
        Stretch(),
        OkCancel(),
    }));
}

// The place is a number that the project keeps as a text.
void DlgGetRegKey::MakeRoots(Text& index)
{
    Named(NAMED(ComboHKEY), new QComboBox);
    for (const char* root : kRegistryRoots)
        ComboHKEY->addItem(root);
    const auto row = LeadingNumber(index);
    ComboHKEY->setCurrentIndex(row >= 0 && row < ComboHKEY->count() ? static_cast<int>(row) : -1);
    Bind([this, &index] {
        if (ComboHKEY->currentIndex() >= 0)
            index = NumberText(ComboHKEY->currentIndex());
    });
}

} // namespace quillon
