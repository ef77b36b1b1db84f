// How the tool starts: before its window is shown, and when it is shown for the first time.
#pragma once

#include "shell/main_window.h"
#include "shell/session.h"

#include <functional>

namespace quillon {

/// Everything but the project: start values, the settings of the last run, the folders for
/// projects.
void StartSession(Session& session);

/// The first project, the window as the settings want it, the project that the command line names
/// (empty: none), and at last `offerFolders` where the user was never asked.
void ActivateForTheFirstTime(Session& session, MainWindow& window, const Text& commandLine,
                             const std::function<void()>& offerFolders);

/// Either answer ends the offer for good; Yes makes the folders.
void AnswerFolderOffer(Session& session, bool wanted);

} // namespace quillon
