#include "runtime/win32/run_to_end.h"

#include "helpers/windows_path.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"

#include <windows.h>

namespace quillon {

int RunToEnd(const Text& program, const Text& arguments)
{
    std::wstring line = Wide("\"" + program + "\" " + arguments);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(Wide(program).c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &startup, &process))
        FailAsWindowsSays(program);
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

} // namespace quillon
