// The self-extracting program of an earlier run. Everything beside it in the folder of the Internet
// medium is packed, so it is out of the way while a new one is made; it is gone only when the new
// one is there, and comes back where that was not made.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// A program that cannot be moved aside is deleted, since it would be packed into the new one
/// otherwise; a failure of that is passed over.
void MoveOlderProgramAside(CreateRun& run);

/// At the end of a run, however it went. What a killed run has moved aside is removed or restored
/// by the next one.
void RemoveOrRestoreOlderProgram(CreateRun& run);

} // namespace quillon
