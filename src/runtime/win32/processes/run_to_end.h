// Starts a program and waits for its end.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// Its code; throws `RunError` where it can't be started.
int RunToEnd(const Text& program, const Text& arguments);

} // namespace quillon
