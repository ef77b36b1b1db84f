// The commands of the file list as the window runs them: on the session, shown in the window.
#pragma once

#include "shell/main_window.h"
#include "shell/session.h"

class QWidget;

namespace quillon {

void AddFilesInWindow(Session& session, MainWindow& window);
void AddTreeCommand(Session& session, MainWindow& window, QWidget* parent);
void AddEmptyDirectoryInWindow(Session& session, MainWindow& window);
void DeleteRowsInWindow(Session& session, MainWindow& window);
void UpdateFileListInWindow(Session& session, MainWindow& window);
void SortListCommand(Session& session, MainWindow& window, QWidget* parent);

/// Sorts by the column with this header, as a click on it does.
void ClickColumn(Session& session, MainWindow& window, const Text& header);

/// `refused` are names of what was dropped and has no Windows path.
void AddDropped(Session& session, MainWindow& window, const std::vector<Text>& paths,
                const std::vector<Text>& refused);

// What `Ask` hands to forms of the file list.
std::optional<Text> ChooseDestination(Session& session, const DestinationQuestion& question,
                                      QWidget* parent);
std::optional<Text> ChooseComponent(const std::vector<Text>& entries, QWidget* parent);

} // namespace quillon
