// Failures of Windows, identified by the numbers that users and callers know.
#pragma once

#include "platform/run_error.h"

namespace quillon {

/// For a code of GetLastError, or of the functions that return one.
RunError WindowsFailure(unsigned long errorCode, const Text& path);

/// Throws the failure that the calling thread met last.
[[noreturn]] void FailAsWindowsSays(const Text& path);

} // namespace quillon
