// A folder for what an administrator is about to run. Others may write to the system's folder for
// temporary files, and to what is made in it, so that they could lay a library beside a program
// there, which would load it.
#pragma once

namespace quillon {

/// Makes a folder that did not exist before; otherwise the last error says why not. The one of an
/// administrator is closed to all but administrators and the system, any other is the user's own.
bool MakeLockedFolder(const wchar_t* path);

} // namespace quillon
