#include "filelist/forms/row_commands.h"

#include "filelist/forms/DlgChCompNr.h"
#include "filelist/forms/DlgChangeSrcPath.h"
#include "filelist/forms/DlgFindReplaceData.h"
#include "filelist/forms/DlgShowDestDirectories.h"
#include "filelist/list_maintenance.h"
#include "filelist/view/status_text.h"
#include "shell/moved_rows.h"

namespace quillon {

namespace {

// Changed rows go where they belong in a sorted list.
void ShowChangedRows(Session& session, MainWindow& window)
{
    ShowMovedRows(window, SortRows(session.project.Files));
}

/// The first selected row, if it is one of a file.
FileListRow* SelectedFile(Session& session, const MainWindow& window)
{
    const std::vector<std::size_t> selected = window.SelectedRows();
    if (selected.empty())
        return nullptr;
    FileListRow& row = session.project.Files.rows[selected.front()];
    return row.HasSource() ? &row : nullptr;
}

void FindReplace(ReplaceIn where, Session& session, MainWindow& window, QWidget* parent)
{
    FileList& files = session.project.Files;
    if (!HasRowsForCommand(files, CommandNeeds::Rows, session.ask))
        return;
    const std::vector<std::size_t> selected = window.SelectedRows();
    const Text proposed =
        selected.empty() ? Text() : ProposedSearch(files.rows[selected.front()], where);
    DlgFindReplaceData form(where, proposed, session, parent);
    if (!form.ShowModal())
        return;
    ReplaceInRows(files, where, form.Data);
    ShowChangedRows(session, window);
}

} // namespace

void FindReplaceDestinationCommand(Session& session, MainWindow& window, QWidget* parent)
{
    FindReplace(ReplaceIn::Destinations, session, window, parent);
}

void FindReplaceSourceCommand(Session& session, MainWindow& window, QWidget* parent)
{
    FindReplace(ReplaceIn::Sources, session, window, parent);
}

void FindReplaceOptionsCommand(Session& session, MainWindow& window, QWidget* parent)
{
    FindReplace(ReplaceIn::Options, session, window, parent);
}

void ChangeDestinationInWindow(Session& session, MainWindow& window)
{
    const ListWork work{session.project, session.state, session.host, session.ask};
    if (const auto places = ChangeDestinationCommand(work, window.SelectedRows()))
        ShowMovedRows(window, *places);
}

void ChangeSourceCommand(Session& session, MainWindow& window, QWidget* parent)
{
    FileListRow* row = SelectedFile(session, window);
    if (!row)
        return;
    DlgChangeSrcPath form((*row)[Source], session, parent);
    if (!form.ShowModal())
        return;
    (*row)[Source] = form.Source;
    ShowChangedRows(session, window);
}

void ChangeComponentNumberCommand(Session& session, MainWindow& window, QWidget* parent)
{
    const FileListRow* first = SelectedFile(session, window);
    if (!first)
        return;
    DlgChCompNr form((*first)[ComponentNumber], session, parent);
    if (!form.ShowModal())
        return;
    // Kept: rows of empty folders that are selected too take the number.
    for (const std::size_t number : window.SelectedRows())
        session.project.Files.rows[number][ComponentNumber] = form.Number;
    ShowChangedRows(session, window);
}

void ShowDestinationDirectoriesCommand(Session& session, QWidget* parent)
{
    DlgShowDestDirectories form(parent);
    form.FillListboxWithDirectories(session.project.Files);
    form.ShowModal();
}

} // namespace quillon
