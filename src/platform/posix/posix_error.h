// From the system's error codes to the numbers that this product's users know.
#pragma once

#include "platform/run_error.h"

namespace quillon {

enum class Doing { Reading, Writing };

/// The failure that `errorCode` (a value of errno) stands for. Whether a missing file is a missing
/// folder is decided by `folderExists`.
RunError PosixFailure(int errorCode, const Text& path, Doing doing, bool folderExists);

} // namespace quillon
