// The commands that change which project is open and whether it is saved, and the question before
// them whether to save the changes.
#pragma once

#include "shell/main_window.h"
#include "shell/session.h"

namespace quillon {

enum class SaveChanges { GoOn = 0, Cancel = 2 };

/// Asks where the project has changed, and saves it on Yes. One that could then not be saved
/// cancels.
[[nodiscard]] SaveChanges AskSaveChanges(Session& session, MainWindow& window);

void NewProject(Session& session, MainWindow& window);
void OpenProject(Session& session, MainWindow& window);
/// Slots count from 0; a free one is ignored.
void OpenRecentFile(Session& session, MainWindow& window, std::size_t slot);
void OpenChosenProject(Session& session, MainWindow& window, const Text& file);
/// Opens the file whether it is there or not, and asks nothing.
void OpenNamedProject(Session& session, MainWindow& window, const Text& file);

/// False where nothing was saved: the user cancelled, or a message said why it can't be.
bool SaveProjectCommand(Session& session, MainWindow& window);
bool SaveProjectAs(Session& session, MainWindow& window);

/// Whether the main window may be closed; asks as the commands do.
bool MayCloseMainWindow(Session& session, MainWindow& window);

} // namespace quillon
