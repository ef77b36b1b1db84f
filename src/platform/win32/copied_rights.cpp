#include "platform/win32/copied_rights.h"

#include <vector>

namespace quillon {

namespace {

bool IsWithoutRights(DWORD status)
{
    return status == ERROR_NOT_SUPPORTED || status == ERROR_INVALID_FUNCTION ||
           status == ERROR_CALL_NOT_IMPLEMENTED;
}

// Also whether the list takes part in what the folder's rights become later.
DWORD CopyAccess(const wchar_t* from, const wchar_t* to)
{
    constexpr DWORD kOwners = OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION;
    constexpr DWORD kRead = kOwners | DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    GetFileSecurityW(from, kRead, nullptr, 0, &size);
    std::vector<BYTE> descriptor(size);
    if (!GetFileSecurityW(from, kRead, descriptor.data(), size, &size))
        return GetLastError();
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    GetSecurityDescriptorControl(descriptor.data(), &control, &revision);
    if ((control & SE_DACL_AUTO_INHERITED) != 0)
        SetSecurityDescriptorControl(descriptor.data(), SE_DACL_AUTO_INHERIT_REQ,
                                     SE_DACL_AUTO_INHERIT_REQ);
    const DWORD isProtected =
        (control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION : 0;
    // It takes a right of its own to give a file to somebody else.
    SetFileSecurityW(to, kOwners, descriptor.data());
    return SetFileSecurityW(to, DACL_SECURITY_INFORMATION | isProtected, descriptor.data())
               ? ERROR_SUCCESS
               : GetLastError();
}

} // namespace

DWORD CopyRights(const wchar_t* from, const wchar_t* to)
{
    constexpr DWORD kCopied = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                              FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    const DWORD attributes = GetFileAttributesW(from);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return GetLastError();
    if (const DWORD status = CopyAccess(from, to);
        status != ERROR_SUCCESS && !IsWithoutRights(status))
        return status;
    const DWORD wanted = attributes & kCopied;
    return SetFileAttributesW(to, wanted != 0 ? wanted : FILE_ATTRIBUTE_NORMAL) ? ERROR_SUCCESS
                                                                                : GetLastError();
}

} // namespace quillon
