// Lays the project's files out one by one on a CD, instead of putting them into a container.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// Kept: a folder or file that can't be made ends the routine with a status line, and the pipeline
/// goes on as after a success.
void CopyFilesOneByOne(CreateRun& run);

/// Where a row's file goes, below the folder for all of them.
Text OneByOnePath(const CreateOptions& options, const Text& base, const FileListRow& row);

} // namespace quillon
