// The setup's program as the uninstaller, when the uninstaller's starter has started it.
#pragma once

#include "runtime/command_line/uninstaller_line.h"

#include <windows.h>

namespace quillon {

/// Returns its exit code; failures have been shown by then.
int RunUninstaller(HINSTANCE instance, const StarterLine& from);

} // namespace quillon
