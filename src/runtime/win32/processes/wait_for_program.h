// Waits for programs that the setup has started. A program that sends a message to all windows, as
// one does that has changed the system's settings or looks for a DDE server, goes on only when each
// window has answered; the windows of the setup must do so, too.
#pragma once

#include <windows.h>

namespace quillon {

/// Until the process has ended; its exit code. The windows of the calling thread are painted and
/// take keys and clicks meanwhile.
DWORD WaitForProgram(HANDLE process);

} // namespace quillon
