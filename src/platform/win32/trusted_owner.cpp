// Whether a folder's owner may be trusted. In a file of its own, since it links much of the
// system's library, which the self-extractor does without.
#include "platform/win32/locked_folder.h"
#include "platform/win32/owner_of.h"

#include <windows.h>

namespace quillon {

namespace {

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

// Some disks without owners report Everyone as the owner.
bool IsTrustedOwner(PSID owner)
{
    return owner == nullptr || IsWellKnown(owner, WinWorldSid) || IsTrustedUser(owner);
}

} // namespace

bool IsTrustedUser(PSID user)
{
    return IsWellKnown(user, WinBuiltinAdministratorsSid) || IsWellKnown(user, WinLocalSystemSid) ||
           IsTrustedInstaller(user) || IsCurrentUser(user);
}

bool IsOfTrustedUser(const wchar_t* path)
{
    alignas(void*) BYTE descriptor[kMaxOwnerSize];
    PSID owner = nullptr;
    return ReadOwner(path, descriptor, owner) && IsTrustedOwner(owner);
}

bool IsOpenFileOfTrustedUser(HANDLE file)
{
    alignas(void*) BYTE descriptor[kMaxOwnerSize];
    PSID owner = nullptr;
    DWORD size = 0;
    BOOL isDefault = FALSE;
    return GetKernelObjectSecurity(file, OWNER_SECURITY_INFORMATION, descriptor, kMaxOwnerSize,
                                   &size) &&
           GetSecurityDescriptorOwner(descriptor, &owner, &isDefault) && IsTrustedOwner(owner);
}

} // namespace quillon
