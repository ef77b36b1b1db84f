#include "filelist/forms/list_commands.h"

#include "filelist/adding/add_files_command.h"
#include "filelist/adding/add_tree_command.h"
#include "filelist/adding/dropped_files.h"
#include "filelist/forms/DlgCompShortList.h"
#include "filelist/forms/DlgDestinationDirectory.h"
#include "filelist/forms/DlgSortList.h"
#include "filelist/forms/RecursiveCollect.h"
#include "filelist/list_maintenance.h"
#include "shell/moved_rows.h"

namespace quillon {

namespace {

ListWork WorkOn(Session& session)
{
    return {session.project, session.state, session.host, session.ask};
}

void ShowOutcome(MainWindow& window, const std::optional<NewPlaces>& places)
{
    if (places)
        ShowMovedRows(window, *places);
    else
        window.UpdateStatusBar();
}

} // namespace

void AddFilesInWindow(Session& session, MainWindow& window)
{
    const bool oldStyle = session.Settings.ListOptions.OldStyleAddDialogBox != kOff;
    const auto look = oldStyle ? FileQuestion::Look::NamesOnly : FileQuestion::Look::Details;
    ShowOutcome(window, AddFilesCommand(WorkOn(session), session.LastInstallFilesDir, look));
}

void AddTreeCommand(Session& session, MainWindow& window, QWidget* parent)
{
    const ListWork work = WorkOn(session);
    const auto tree = ChooseTree(work);
    if (!tree)
        return;
    RecursiveCollect form(work, *tree, parent);
    form.ShowModal();
    session.state.ProjectIsDirty = kOn;
    ShowMovedRows(window, form.Places());
}

void AddEmptyDirectoryInWindow(Session& session, MainWindow& window)
{
    ShowOutcome(window, AddEmptyDirectoryCommand(WorkOn(session)));
}

void DeleteRowsInWindow(Session& session, MainWindow& window)
{
    if (DeleteRowsCommand(WorkOn(session), window.SelectedRows()))
        window.ShowFileList({});
}

void UpdateFileListInWindow(Session& session, MainWindow& window)
{
    UpdateFileListCommand(WorkOn(session),
                          [&](const NewPlaces& places) { ShowMovedRows(window, places); });
}

void SortListCommand(Session& session, MainWindow& window, QWidget* parent)
{
    DlgSortList form(session.project, parent);
    if (form.ShowModal())
        ShowMovedRows(window, SortRowsBy(session.project.Files, form.Key));
}

void ClickColumn(Session& session, MainWindow& window, const Text& header)
{
    ShowMovedRows(window, HandleColumnClick(session.project.Files, header));
}

void AddDropped(Session& session, MainWindow& window, const std::vector<Text>& paths,
                const std::vector<Text>& refused)
{
    RefuseDropped(session.ask, refused);
    if (!paths.empty())
        ShowOutcome(window, AddDroppedPaths(WorkOn(session), paths));
}

std::optional<Text> ChooseDestination(Session& session, const DestinationQuestion& question,
                                      QWidget* parent)
{
    DlgDestinationDirectory form(question, session, parent);
    return form.ShowModal() ? std::optional(form.Destination) : std::nullopt;
}

std::optional<Text> ChooseComponent(const std::vector<Text>& entries, QWidget* parent)
{
    DlgCompShortList form(entries, parent);
    return form.ShowModal() ? std::optional(form.Entry) : std::nullopt;
}

} // namespace quillon
