#include "runtime/win32/restart_machine.h"

#include "platform/win32/open_file.h"

namespace quillon {

namespace {

// Even an administrator has to ask for it.
void TakeShutdownRight()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES, &token))
        return;
    const FileHandle held(token);
    TOKEN_PRIVILEGES rights{};
    rights.PrivilegeCount = 1;
    rights.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    if (LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &rights.Privileges[0].Luid))
        AdjustTokenPrivileges(token, FALSE, &rights, 0, nullptr, nullptr);
}

} // namespace

bool RestartMachine()
{
    constexpr DWORD kPlannedInstallation = 0x80040002; // planned; application, installation
    TakeShutdownRight();
    return ExitWindowsEx(EWX_REBOOT, kPlannedInstallation) != FALSE;
}

} // namespace quillon
