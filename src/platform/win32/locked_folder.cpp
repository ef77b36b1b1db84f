#include "platform/win32/locked_folder.h"

#include "platform/win32/owner_of.h"

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

// To be freed with LocalFree.
PSECURITY_DESCRIPTOR Descriptor(const wchar_t* text)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const bool made = ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1,
                                                                           &descriptor, nullptr);
    return made ? descriptor : nullptr;
}

} // namespace

bool MakeLockedFolder(const wchar_t* path)
{
    if (!IsAdministrator())
        return CreateDirectoryW(path, nullptr) != 0;
    // Full access for administrators and the system, here and below; nothing from the folder above.
    constexpr const wchar_t* kAccess = L"D:P(A;OICI;FA;;;BA)(A;OICI;FA;;;SY)";
    SECURITY_ATTRIBUTES security{sizeof security, Descriptor(kAccess), FALSE};
    if (security.lpSecurityDescriptor == nullptr)
        return false;
    const bool made = CreateDirectoryW(path, &security) != 0;
    const DWORD errorCode = GetLastError();
    LocalFree(security.lpSecurityDescriptor);
    SetLastError(errorCode);
    return made;
}

void LockFileToOthers(const wchar_t* path)
{
    if (!IsAdministrator())
        return;
    const PSECURITY_DESCRIPTOR descriptor = Descriptor(L"D:P(A;;FA;;;BA)(A;;FA;;;SY)");
    if (descriptor != nullptr)
        SetFileSecurityW(path, DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                         descriptor);
    LocalFree(descriptor);
}

bool ReadOwner(const wchar_t* path, BYTE* descriptor, PSID& owner)
{
    DWORD size = 0;
    BOOL isDefault = FALSE;
    return GetFileSecurityW(path, OWNER_SECURITY_INFORMATION, descriptor, kMaxOwnerSize, &size) &&
           GetSecurityDescriptorOwner(descriptor, &owner, &isDefault);
}

bool HaveSameOwner(const wchar_t* path, const wchar_t* other)
{
    alignas(void*) BYTE first[kMaxOwnerSize];
    alignas(void*) BYTE second[kMaxOwnerSize];
    PSID firstOwner = nullptr;
    PSID secondOwner = nullptr;
    if (!ReadOwner(path, first, firstOwner) || !ReadOwner(other, second, secondOwner))
        return false;
    if (firstOwner == nullptr || secondOwner == nullptr)
        return firstOwner == secondOwner;
    return EqualSid(firstOwner, secondOwner) != 0;
}

} // namespace quillon
