// Opening projects, with a message for everything that can go wrong.
#pragma once

#include "cli/call_context.h"
#include "shell/session.h"

namespace quillon::cli {

/// Whether all of the file was read. The tool itself goes on with a part silently.
enum class Opened { Whole, InPart };

/// Opens the project as the tool does when a user opens one. Throws `CallFailure` for a file that
/// can't be read or isn't a project.
Opened OpenProject(Session& session, const Text& path);

/// A line that says that only a part of the project could be read.
Text PartlyReadText(const Text& path);

} // namespace quillon::cli
