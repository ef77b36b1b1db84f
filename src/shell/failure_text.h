// Failures of the packing and of a run of Create, as lines for the user that name the file.
#pragma once

#include "builder/create_run.h"
#include "platform/failure_text.h"

namespace quillon {

/// Why an archive could not be made, in a line that names the file; the status lines show its
/// number alone.
Text FailureText(const CompressionFailure& failure);
/// Why a run of Create failed; its status lines and boxes often name no file.
Text FailureText(const CreateRun& run);

} // namespace quillon
