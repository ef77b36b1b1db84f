#include "runtime/win32/programs/selfx/start_setup.h"

#include "platform/run_error.h"
#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"

#include <windows.h>

#include <shellapi.h>

namespace quillon {

namespace {

unsigned WaitFor(HANDLE process)
{
    const FileHandle owned(process);
    WaitForSingleObject(process, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process, &code);
    return code;
}

unsigned RunByShell(const wchar_t* verb, const Text& program, const Text& arguments)
{
    const std::wstring path = Wide(program);
    const std::wstring line = Wide(arguments);
    SHELLEXECUTEINFOW order{};
    order.cbSize = sizeof order;
    order.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
    order.lpVerb = verb;
    order.lpFile = path.c_str();
    order.lpParameters = line.c_str();
    order.nShow = SW_SHOWNORMAL;
    if (!ShellExecuteExW(&order) || order.hProcess == nullptr) {
        if (GetLastError() == ERROR_CANCELLED)
            throw RunError(kRightsRefused, program);
        FailAsWindowsSays(program);
    }
    return WaitFor(order.hProcess);
}

} // namespace

bool IsElevated()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return true;
    const FileHandle owned(token);
    DWORD isElevated = 0;
    DWORD size = 0;
    // Systems before Vista do not know this information class.
    return !GetTokenInformation(token, TokenElevation, &isElevated, sizeof isElevated, &size) ||
           isElevated != 0;
}

unsigned RunSetupAndWait(const Text& program, const Text& arguments)
{
    std::wstring line = Wide("\"" + program + "\" " + arguments);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(Wide(program).c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                       nullptr, &startup, &process)) {
        CloseHandle(process.hThread);
        return WaitFor(process.hProcess);
    }
    constexpr DWORD kElevationRequired = 740; // since Vista
    if (GetLastError() != kElevationRequired)
        FailAsWindowsSays(program);
    return RunByShell(L"open", program, arguments);
}

unsigned RunElevatedAndWait(const Text& program, const Text& arguments)
{
    return RunByShell(L"runas", program, arguments);
}

} // namespace quillon
