// Where projects lie: a folder of the tool's own in My Documents, where the user wants one.
#pragma once

#include "shell/session.h"

namespace quillon {

/// The folder that the tool offers to make; below it, file dialogs open.
Text OfferedProjectsFolder(const Machine& machine);

/// `ProjectsFolder` is the one in My Documents where it is there, else the one of the tool.
void FindProjectsFolder(Session& session);

/// Makes the folders in My Documents and takes them into use. Where that fails nothing is reported
/// and `ProjectsFolder` stays with the tool.
void CreateQNDocFolders(Session& session);

} // namespace quillon
