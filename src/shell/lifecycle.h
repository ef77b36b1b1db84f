// Opening and saving the project of a session.
#pragma once

#include "project/project_file.h"
#include "shell/session.h"

#include <optional>

namespace quillon {

/// Reads the file that `ProjectFileName` names over the project that is open; only the file list is
/// emptied first. The project counts as unchanged afterwards and its name enters the recent files,
/// whether or not it could be read. Nothing happens, and nothing comes back, when the name is
/// empty.
std::optional<ReadEnd> LoadProject(Session& session);

enum class SaveEnd {
    Done,
    // Another program has changed the file since it was read or saved; nothing was written. To
    // write over it all the same, the caller stores its present content in `knownFile`.
    ChangedByOthers
};

/// Saves the project in the file that `ProjectFileName` names. A file that the project does not
/// hold whole, because it was refused or read in part only, is kept beside it first, and a box
/// reports under which name. Throws when the file can't be written, 55 when another program is
/// about to change it and the call doesn't wait; the project then still counts as changed.
SaveEnd SaveProject(Session& session, LockWait wait = LockWait::None);

/// Puts the project's file in front of the recent files.
void HandleRecentFilesMenu(Session& session);

} // namespace quillon
