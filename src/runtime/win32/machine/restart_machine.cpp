#include "runtime/win32/machine/restart_machine.h"

#include "platform/win32/open_file.h"

namespace quillon {

namespace {

constexpr DWORD kPlannedInstallation = 0x80040002; // planned; application, installation

} // namespace

// Even an administrator has to enable this right.
bool MayRestartMachine()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES, &token))
        return false;
    const FileHandle held(token);
    TOKEN_PRIVILEGES rights{};
    rights.PrivilegeCount = 1;
    rights.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    // The call succeeds also where the user has no such right; only the last error says so.
    return LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &rights.Privileges[0].Luid) &&
           AdjustTokenPrivileges(token, FALSE, &rights, 0, nullptr, nullptr) &&
           GetLastError() == ERROR_SUCCESS;
}

bool RestartMachine()
{
    return ExitWindowsEx(EWX_REBOOT, kPlannedInstallation) != FALSE;
}

} // namespace quillon
