#include "platform/win32/locked_folder.h"

#include <windows.h>

#include <sddl.h>

namespace quillon {

namespace {

bool IsAdministrator()
{
    BYTE administrators[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof administrators;
    BOOL isMember = FALSE;
    return CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators, &size) &&
           CheckTokenMembership(nullptr, administrators, &isMember) && isMember;
}

} // namespace

bool MakeLockedFolder(const wchar_t* path)
{
    if (!IsAdministrator())
        return CreateDirectoryW(path, nullptr) != 0;
    // Full access for administrators and the system, here and below; nothing from the folder above.
    constexpr const wchar_t* kAccess = L"D:P(A;OICI;FA;;;BA)(A;OICI;FA;;;SY)";
    SECURITY_ATTRIBUTES security{sizeof security, nullptr, FALSE};
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
            kAccess, SDDL_REVISION_1, &security.lpSecurityDescriptor, nullptr))
        return false;
    const bool made = CreateDirectoryW(path, &security) != 0;
    const DWORD errorCode = GetLastError();
    LocalFree(security.lpSecurityDescriptor);
    SetLastError(errorCode);
    return made;
}

} // namespace quillon
