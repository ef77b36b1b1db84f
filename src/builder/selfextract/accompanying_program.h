// The program of the author's own (`ProgramFilename`) that the setup of an Internet package runs
// first. It travels beside the setup.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// Copies it into the package's folder, unless it lies there already. A copy that fails is passed
/// over; the setup reports a missing program.
void CopyAccompanyingProgram(CreateRun& run);

/// After the package was packed. The author's own file in that folder stays.
void RemoveCopyOfAccompanyingProgram(CreateRun& run);

} // namespace quillon
