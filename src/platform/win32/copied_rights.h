// Rights and attributes that one file has of another: of a text file that is written anew, its
// reader and its users notice nothing but its new lines.
#pragma once

#include <windows.h>

namespace quillon {

/// Gives a file the access list and the attributes (read-only, hidden, system, archive) of another
/// one on the same disk, and its owner where this user may. An error code of the system; a disk
/// without rights is none.
DWORD CopyRights(const wchar_t* from, const wchar_t* to);

} // namespace quillon
