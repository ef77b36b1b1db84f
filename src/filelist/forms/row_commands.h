// The commands that change what is in the rows of the file list, as the window runs them.
#pragma once

#include "shell/main_window.h"
#include "shell/session.h"

class QWidget;

namespace quillon {

void FindReplaceDestinationCommand(Session& session, MainWindow& window, QWidget* parent);
void FindReplaceSourceCommand(Session& session, MainWindow& window, QWidget* parent);
void FindReplaceOptionsCommand(Session& session, MainWindow& window, QWidget* parent);

// These change selected rows; without any they do nothing.
void ChangeDestinationInWindow(Session& session, MainWindow& window);
/// The first selected row alone, where it has a file.
void ChangeSourceCommand(Session& session, MainWindow& window, QWidget* parent);
/// Ends where the first selected row has no file.
void ChangeComponentNumberCommand(Session& session, MainWindow& window, QWidget* parent);

void ShowDestinationDirectoriesCommand(Session& session, QWidget* parent);

} // namespace quillon
