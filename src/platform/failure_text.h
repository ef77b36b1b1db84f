// A `RunError` as a line for the user: why a file or folder could not be read or written.
#pragma once

#include "platform/run_error.h"

namespace quillon {

/// Why the file or folder could not be read or written, in a line that names it. `path` is named
/// where the failure itself names none.
Text FailureText(const RunError& error, const Text& path);

} // namespace quillon
