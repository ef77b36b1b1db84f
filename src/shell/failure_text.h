// Failures of the machine in words for the one who has to mend them.
#pragma once

#include "builder/create_run.h"
#include "platform/run_error.h"

namespace quillon {

/// Why the file or folder could not be read or written, in a line that names it. `path` is named
/// where the failure itself names none.
Text FailureText(const RunError& error, const Text& path);
/// The same of an archive; the status lines tell its number alone.
Text FailureText(const CompressionFailure& failure);
/// The same of a run of Create that failed; its status lines and boxes often name no file.
Text FailureText(const CreateRun& run);

} // namespace quillon
