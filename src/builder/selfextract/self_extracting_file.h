// The last step for the Internet medium: the finished package folder becomes one program.
#pragma once

#include "builder/create_run.h"

namespace quillon {

// What the program is made of and by, in the folder for as long as it is being made.
inline constexpr const char* kSelfExtractArchive = "INSTALL.ZIP";
inline constexpr const char* kSelfExtractProject = "INSTALL.ADX";

/// False where no program could be made; all files are left in the folder then. The files that went
/// into it are gone otherwise.
bool BuildSelfExtractingFile(CreateRun& run);

} // namespace quillon
