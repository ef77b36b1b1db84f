// Rights and attributes that a file takes over from another, so that a text file that is written
// again differs in nothing but its lines.
#pragma once

#include <windows.h>

namespace quillon {

/// Gives a file the access list and the attributes (read-only, hidden, system, archive) of another
/// one on the same disk, and its owner where this user may. An error code of the system; a disk
/// without rights is none.
DWORD CopyRights(const wchar_t* from, const wchar_t* to);

} // namespace quillon
