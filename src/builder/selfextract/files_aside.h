// What lies in the folder of the Internet medium, must not be packed and must not be lost: the
// self-extracting program of an earlier run, and files that only have the names of Create's own
// temporary ones. They wait in a folder below while a new program is made.
#pragma once

#include "builder/create_run.h"

namespace quillon {

/// Temporary files of an earlier run are deleted; a failure of that is passed over. Throws
/// `RunError` where something can't be moved: it would be packed, or lost, if the run went on.
void MoveFilesAside(CreateRun& run);

/// At the end of a run, however it went. The older program goes where the new one is there, and
/// comes back where that was not made; everything else comes back. What a killed run has moved
/// aside is removed or restored by the next one.
void RestoreFilesAside(CreateRun& run);

} // namespace quillon
