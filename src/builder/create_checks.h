// What is asked before Create writes anything. A check that stops leaves the destination untouched
// and writes no status line.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// The first checks of Create and of the test run; `verb` says what can't be done ("skapa").
[[nodiscard]] Check ValidateProjectForAction(const Project& project, Ask& ask, const Text& verb);

[[nodiscard]] Check CheckSystemFileDestinations(CreateRun& run);
/// Takes some system files from the folder for redistribution instead, where the machine has one.
[[nodiscard]] Check CheckSystemSpecificFiles(CreateRun& run);
[[nodiscard]] Check CheckUninstallIconCombination(CreateRun& run);

/// The name of the first row that would overwrite a file of the package itself, or an empty text.
Text FindReservedFilename(const Project& project);

/// Asks for the disk that is to be written next.
[[nodiscard]] Check AskForFloppy(Ask& ask, int number);

/// All checks in their order; the first that stops ends it.
[[nodiscard]] Check RunChecks(CreateRun& run);

} // namespace quillon
