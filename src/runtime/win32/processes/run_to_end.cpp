#include "runtime/win32/processes/run_to_end.h"

#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/win32/processes/wait_for_program.h"

#include <windows.h>

namespace quillon {

int RunToEnd(const Text& program, const Text& arguments)
{
    std::wstring line = Wide("\"" + program + "\" " + arguments);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(Wide(program).c_str(), line.data(), nullptr, nullptr, FALSE,
                        CREATE_NO_WINDOW, nullptr, nullptr, &startup, &process))
        FailAsWindowsSays(program);
    const FileHandle thread(process.hThread);
    const FileHandle running(process.hProcess);
    return static_cast<int>(WaitForProgram(running.Get()));
}

} // namespace quillon
