// How a package becomes complete: its manifest is empty while it is being made and is filled last
// of all. Where an older package is already, the new one is made in a folder of its own beside it
// and only moved into its place once it is finished, so that a Create that ends early leaves the
// older one as it was. On disks, which have no room for two packages, and on a disk too full for
// that the files are written directly to their places, and the empty manifest marks them as
// incomplete.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// Clears away what a killed run has left, and makes the place ready.
Step BeginPackage(CreateRun& run);

/// Moves the finished files into place and writes the manifest; nothing after a failed step.
Step FinishPackage(CreateRun& run);

/// Removes the folder of its own with all that it still holds.
void LeavePackage(CreateRun& run);

} // namespace quillon
