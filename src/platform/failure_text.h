// A failure of the machine in words for the one who has to mend it.
#pragma once

#include "platform/run_error.h"

namespace quillon {

/// Why the file or folder could not be read or written, in a line that names it. `path` is named
/// where the failure itself names none.
Text FailureText(const RunError& error, const Text& path);

} // namespace quillon
