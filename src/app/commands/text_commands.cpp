#include "app/commands/text_commands.h"

#include "actions/ini_list.h"
#include "app/MainForm.h"
#include "app/commands/row_clipboard.h"
#include "ui/controls/list_area.h"

#include <QtWidgets>

namespace quillon {

void CopyText(MainForm& form)
{
    if (form.SelectedTab() == Tab::Files)
        CopyRows(form);
    else if (QPlainTextEdit* editor = form.SelectedPage().Editor())
        editor->copy();
}

void PasteText(MainForm& form)
{
    if (form.SelectedTab() == Tab::Files)
        PasteRows(form);
    else if (QPlainTextEdit* editor = form.SelectedPage().Editor())
        editor->paste();
}

void ImportIniFile(MainForm& form)
{
    if (form.SelectedTab() != Tab::IniFiles)
        return;
    const Session& session = form.GetSession();
    const Text lines =
        OpenINIFileIntoList(session.project.Lists.INIFiles, session.host.files, session.ask);
    if (!lines.empty())
        AppendLines(form.SelectedPage().Editor(), lines);
}

} // namespace quillon
