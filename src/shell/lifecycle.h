// Opening and saving the project of a session.
#pragma once

#include "project/project_file.h"
#include "shell/session.h"

#include <optional>

namespace quillon {

/// Reads the file that `ProjectFileName` names over the project that is open; only the file list
/// is emptied first. The project counts as unchanged afterwards and its name enters the recent
/// files, whatever came of the reading. Nothing happens, and nothing comes back, when the name is
/// empty.
std::optional<ReadEnd> LoadProject(Session& session);

/// Writes the project to the file that `ProjectFileName` names. Throws when the file can't be
/// written; the project then still counts as changed.
void SaveProject(Session& session);

/// Puts the project's file in front of the recent files.
void HandleRecentFilesMenu(Session& session);

} // namespace quillon
