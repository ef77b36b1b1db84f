// Programs that the setup waits for.
#pragma once

#include "runtime/target.h"

namespace quillon {

/// See `Target::RunProgram`.
int RunProgramAndWait(const ProgramRun& run);

} // namespace quillon
