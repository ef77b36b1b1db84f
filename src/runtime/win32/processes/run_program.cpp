#include "runtime/win32/processes/run_program.h"

#include "helpers/windows_path.h"
#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/win32/processes/wait_for_program.h"

#include <windows.h>

namespace quillon {

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
    return static_cast<int>(WaitForProgram(running.Get()));
}

} // namespace quillon
