// The owner of a file or folder as Windows keeps it.
#pragma once

#include <windows.h>

namespace quillon {

inline constexpr DWORD kMaxOwnerSize = 1024; // of a descriptor with an owner alone

/// `descriptor` has room for `kMaxOwnerSize` bytes, and holds what `owner` points to; null on a
/// disk without owners. False where nothing can be known of it.
bool ReadOwner(const wchar_t* path, BYTE* descriptor, PSID& owner);

/// Whether it is administrators, the system, its installer or the user who runs this.
bool IsTrustedUser(PSID user);
/// `IsOfTrustedUser` for a file that is open for reading.
bool IsOpenFileOfTrustedUser(HANDLE file);

} // namespace quillon
