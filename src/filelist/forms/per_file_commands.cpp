#include "filelist/forms/per_file_commands.h"

#include "filelist/forms/DlgCopyOptions.h"
#include "filelist/forms/DlgFileInfo.h"
#include "filelist/forms/DlgIcon.h"
#include "filelist/forms/DlgIconX.h"
#include "filelist/forms/DlgRegisterFont.h"
#include "filelist/options/copy_options.h"
#include "filelist/view/status_text.h"
#include "shell/moved_rows.h"

namespace quillon {

namespace {

/// The rows that a command is for; none, and a box where the list is empty, if there are none.
std::vector<std::size_t> RowsForCommand(Session& session, const MainWindow& window)
{
    if (!HasRowsForCommand(session.project.Files, CommandNeeds::SelectedRow, session.ask))
        return {};
    return window.SelectedRows();
}

void ShowChange(Session& session, MainWindow& window)
{
    session.state.ProjectIsDirty = kOn;
    ShowMovedRows(window, SortRows(session.project.Files));
}

} // namespace

void CopyOptionsCommand(Session& session, MainWindow& window, QWidget* parent)
{
    FileList& files = session.project.Files;
    const std::vector<std::size_t> rows = RowsForCommand(session, window);
    if (!CanHaveCopyOptions(files, rows))
        return;
    DlgCopyOptions form(StartingTicks(files, rows), parent);
    if (!form.ShowModal())
        return;
    SetCopyOptions(files, rows, form.Letters);
    ShowChange(session, window);
}

void IconCommand(Session& session, MainWindow& window, QWidget* parent)
{
    const std::vector<std::size_t> rows = RowsForCommand(session, window);
    if (!rows.empty() &&
        OpenIconDialogBox(session, session.project.Files.rows[rows.front()], parent))
        ShowChange(session, window);
}

bool OpenIconDialogBox(Session& session, FileListRow& row, QWidget* parent)
{
    switch (IconDialogOf(row)) {
    case IconDialog::DlgIcon:
        return DlgIcon(row, session, parent).ShowModal();
    case IconDialog::DlgIconX:
        return DlgIconX(row, session, parent).ShowModal();
    default:
        return false;
    }
}

void RegisterFontCommand(Session& session, MainWindow& window, QWidget* parent)
{
    const std::vector<std::size_t> rows = RowsForCommand(session, window);
    if (rows.empty())
        return;
    FileListRow& row = session.project.Files.rows[rows.front()];
    if (row.HasSource() && IsFontToRegister(row, session.ask) &&
        DlgRegisterFont(row, session, parent).ShowModal())
        ShowChange(session, window);
}

void FileInfoCommand(Session& session, MainWindow& window, QWidget* parent)
{
    const std::vector<std::size_t> rows = RowsForCommand(session, window);
    if (rows.empty())
        return;
    const FileListRow& row = session.project.Files.rows[rows.front()];
    if (row.HasSource())
        DlgFileInfo(row, session, parent).ShowModal();
}

} // namespace quillon
