#include "app/pages/IniFilesPage.h"

#include "actions/forms/DlgAddINIentry.h"
#include "actions/ini_list.h"
#include "app/pages/in_place.h"
#include "ui/controls/list_area.h"

#include <QtWidgets>

namespace quillon {

IniFilesPage::IniFilesPage(Session& session) : session_(session)
{
    setObjectName("IniFilesPage");
    EditListInPlace(NAMED(editINIList), session, session.project.Lists.INIFiles, kMaxIniListLength);
    Arrange(
        this,
        HBox({Growing(Above("INI-filer, sektioner o&ch värden:", editINIList)),
              VBox({Button(NAMED(cmdNewINIfile), "&Ny INI-fil...", [this] { AddFile(); }),
                    Button(NAMED(cmdAddINIsection), "Lägg till s&ektion...",
                           [this] { AddSection(); }),
                    Button(NAMED(cmdAddINIvalue), "Lägg till &värde...", [this] { AddValue(); }),
                    Button(NAMED(cmdVariables2), "Varia&bler...", [this] { AddVariable(); }),
                    Stretch()})}));
}

void IniFilesPage::ShowSession()
{
    ShowInPlace(editINIList, session_.project.Lists.INIFiles);
}

void IniFilesPage::AddFile()
{
    const auto name = session_.ask.XInputBox("Lägg till ny INI-fil", "&Filnamn:");
    if (name && !name->empty())
        Append(IniFileToAppend(session_.project.Lists.INIFiles, *name));
}

void IniFilesPage::AddSection()
{
    const auto section = session_.ask.XInputBox("Lägg till sektion", "&Sektion:");
    if (section && !section->empty())
        Append(IniSectionToAppend(session_.project.Lists.INIFiles, *section));
}

void IniFilesPage::AddValue()
{
    DlgAddINIentry form(session_.project.Lists.INIFiles, session_.ask, this);
    if (form.ShowModal() && !form.Lines.empty())
        AppendLines(editINIList, form.Lines);
}

void IniFilesPage::AddVariable()
{
    if (const auto variable = session_.ask.ChooseVariable())
        Append(*variable);
}

void IniFilesPage::Append(const Text& lines)
{
    if (HasRoomInIniList(session_.project.Lists.INIFiles, lines, session_.ask))
        AppendLines(editINIList, lines);
}

} // namespace quillon
