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

// To be freed with LocalFree.
PSECURITY_DESCRIPTOR Descriptor(const wchar_t* text)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const bool made = ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1,
                                                                           &descriptor, nullptr);
    return made ? descriptor : nullptr;
}

constexpr DWORD kMaxOwnerSize = 1024; // of a descriptor with an owner alone

bool IsWellKnown(PSID owner, WELL_KNOWN_SID_TYPE kind)
{
    BYTE sid[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof sid;
    return CreateWellKnownSid(kind, nullptr, sid, &size) && EqualSid(owner, sid);
}

// Whom the system's own folders belong to since Windows Vista.
bool IsTrustedInstaller(PSID owner)
{
    SID_IDENTIFIER_AUTHORITY authority = SECURITY_NT_AUTHORITY;
    PSID sid = nullptr;
    if (!AllocateAndInitializeSid(&authority, 6, 80, 956008885, 3418522649, 1831038044, 1853292631,
                                  2271478464, 0, 0, &sid))
        return false;
    const bool isSame = EqualSid(owner, sid);
    FreeSid(sid);
    return isSame;
}

bool IsCurrentUser(PSID owner)
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return false;
    alignas(TOKEN_USER) BYTE user[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE];
    DWORD size = 0;
    const bool known = GetTokenInformation(token, TokenUser, user, sizeof user, &size);
    CloseHandle(token);
    return known && EqualSid(owner, reinterpret_cast<TOKEN_USER*>(user)->User.Sid);
}

bool ReadOwner(const wchar_t* path, BYTE* descriptor, PSID& owner)
{
    DWORD size = 0;
    BOOL isDefault = FALSE;
    return GetFileSecurityW(path, OWNER_SECURITY_INFORMATION, descriptor, kMaxOwnerSize, &size) &&
           GetSecurityDescriptorOwner(descriptor, &owner, &isDefault);
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

bool IsOfTrustedUser(const wchar_t* path)
{
    alignas(void*) BYTE descriptor[kMaxOwnerSize];
    PSID owner = nullptr;
    if (!ReadOwner(path, descriptor, owner))
        return false;
    // A disk without owners says that everything belongs to everybody.
    return owner == nullptr || IsWellKnown(owner, WinWorldSid) ||
           IsWellKnown(owner, WinBuiltinAdministratorsSid) ||
           IsWellKnown(owner, WinLocalSystemSid) || IsTrustedInstaller(owner) ||
           IsCurrentUser(owner);
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
