#include "runtime/win32/run_program.h"

#include "helpers/windows_path.h"
#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"

#include <windows.h>

namespace quillon {

namespace {

// The setup's own windows are moved and painted meanwhile; what the user presses there is heeded
// afterwards.
void WaitFor(HANDLE process)
{
    while (MsgWaitForMultipleObjects(1, &process, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

} // namespace

int RunProgramAndWait(const ProgramRun& run)
{
    const std::wstring program = Wide(run.program);
    std::wstring line = L"\"" + program + L"\" " + Wide(run.arguments);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = run.isHidden ? SW_HIDE : SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    // With its absolute path, so that no other program of that name is found.
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE,
                        run.isHidden ? CREATE_NO_WINDOW : 0, nullptr,
                        Wide(ExtractDirectory(run.program)).c_str(), &startup, &process))
        FailAsWindowsSays(run.program);
    const FileHandle thread(process.hThread);
    const FileHandle running(process.hProcess);
    WaitFor(running.Get());
    DWORD code = 0;
    GetExitCodeProcess(running.Get(), &code);
    return static_cast<int>(code);
}

} // namespace quillon
