// The last step for the Internet medium: the finished package folder becomes one program.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// False where no program could be made; all files are left in the folder then. The files that went
/// into it are gone otherwise.
bool BuildSelfExtractingFile(CreateRun& run);

} // namespace quillon
