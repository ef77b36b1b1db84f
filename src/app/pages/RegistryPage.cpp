#include "app/pages/RegistryPage.h"

#include "actions/forms/DlgAddRegKey.h"
#include "actions/forms/DlgDeleteRegKey.h"
#include "actions/forms/DlgUninstallRegKey.h"
#include "actions/unsavable_line.h"
#include "app/pages/in_place.h"
#include "ui/controls/list_area.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

RegistryPage::RegistryPage(Session& session) : session_(session)
{
    setObjectName("RegistryPage");
    EditListInPlace(NAMED(editRegistryList), session, session.project.Lists.Registry, 0);
    Named(NAMED(sRegistryWarning), Note({}));
    connect(editRegistryList, &QPlainTextEdit::textChanged, this, [this] { ShowWarning(); });
    Arrange(this, VBox({Growing(HBox({
                            Growing(Above("Nycklar och värden i Re&gistry:", editRegistryList)),
                            Buttons(),
                        })),
                        sRegistryWarning}));
}

Piece RegistryPage::Buttons()
{
    return VBox(
        {Button(NAMED(cmdAddRegistryKey), "Lägg &till...", [this] { AddLine<DlgAddRegKey>(); }),
         Button(NAMED(cmdDeleteRegistryKey), "Radera vid &installation...",
                [this] { AddLine<DlgDeleteRegKey>(); }),
         Button(NAMED(cmdUninstallRegistryKey), "A&vlägsna vid avinstallation...",
                [this] { AddLine<DlgUninstallRegKey>(); }),
         Button(NAMED(cmdVariables1), "Varia&bler...", [this] { AddVariable(); }), Stretch()});
}

void RegistryPage::ShowSession()
{
    ShowInPlace(editRegistryList, session_.project.Lists.Registry);
    ShowWarning();
}

template <class Dialog>
void RegistryPage::AddLine()
{
    Dialog form(session_.ask, this);
    if (form.ShowModal())
        AppendLines(editRegistryList,
                    RegistryLineToAppend(session_.project.Lists.Registry, form.Line));
}

void RegistryPage::AddVariable()
{
    if (const auto variable = session_.ask.ChooseVariable())
        AppendLines(editRegistryList, *variable);
}

// The list is free text. A line that would not come back from the file is reported while it is
// typed.
void RegistryPage::ShowWarning()
{
    const auto line = FindUnsavableLine(&section::Lists::Registry, session_.project.Lists.Registry);
    sRegistryWarning->setVisible(line.has_value());
    if (line)
        sRegistryWarning->setText(ToQt(UnsavableLineWarning(*line)));
}

} // namespace quillon
