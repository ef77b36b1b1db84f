// What would make no self-extracting program, or one that lacks a file. Asked before anything is
// written; for all other media these checks pass.
#pragma once

#include "builder/create_run.h"

namespace quillon {

[[nodiscard]] Check CheckSelfExtractIcon(CreateRun& run);
/// While the program is made, the files of the package lie beside it and are removed afterwards.
[[nodiscard]] Check CheckSelfExtractName(CreateRun& run);
/// `ProgramFilename` is copied among the files of the package.
[[nodiscard]] Check CheckAccompanyingProgram(CreateRun& run);
[[nodiscard]] Check CheckSizeOfProgram(CreateRun& run);

} // namespace quillon
