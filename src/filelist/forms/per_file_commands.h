// The commands for the options of single files, as the window runs them.
#pragma once

#include "shell/main_window.h"
#include "shell/session.h"

class QWidget;

namespace quillon {

void CopyOptionsCommand(Session& session, MainWindow& window, QWidget* parent);
void IconCommand(Session& session, MainWindow& window, QWidget* parent);
/// The font of the first selected row.
void RegisterFontCommand(Session& session, MainWindow& window, QWidget* parent);
void FileInfoCommand(Session& session, MainWindow& window, QWidget* parent);

/// The dialog for the icon of this row; true when it was left with OK. A row that can have no icon
/// shows none.
bool OpenIconDialogBox(Session& session, FileListRow& row, QWidget* parent);

} // namespace quillon
