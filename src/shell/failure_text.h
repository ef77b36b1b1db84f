// Failures in words for the one who has to mend them.
#pragma once

#include "builder/create_run.h"
#include "platform/failure_text.h"

namespace quillon {

/// What ended an archive, in a line that names the file; the status lines show its number alone.
Text FailureText(const CompressionFailure& failure);
/// The same of a run of Create that failed; its status lines and boxes often name no file.
Text FailureText(const CreateRun& run);

} // namespace quillon
