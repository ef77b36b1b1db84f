#include "runtime/win32/processes/wait_for_program.h"

#include "runtime/win32/windows/plain_window.h"

namespace quillon {

namespace {

void HandleMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchTo(GetAncestor(message.hwnd, GA_ROOT), message);
}

} // namespace

DWORD WaitForProgram(HANDLE process)
{
    // A message that is in the queue already would not end the wait.
    do
        HandleMessages();
    while (MsgWaitForMultipleObjects(1, &process, FALSE, INFINITE, QS_ALLINPUT) ==
           WAIT_OBJECT_0 + 1);
    DWORD code = MAXDWORD;
    GetExitCodeProcess(process, &code);
    return code;
}

} // namespace quillon
