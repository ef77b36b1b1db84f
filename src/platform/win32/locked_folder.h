// Folders and files for an administrator's own work. Others may write to the system's folder for
// temporary files, and to what is made in it, so that they could lay a library beside a program
// there, which would load it, or write a journal that a setup then follows.
#pragma once

namespace quillon {

/// Makes a folder that did not exist before; otherwise the last error says why not. The one of an
/// administrator is closed to all but administrators and the system, any other is the user's own.
bool MakeLockedFolder(const wchar_t* path);

/// Closes a file to all but administrators and the system, where an administrator asks for it and
/// the disk knows of rights.
void LockFileToOthers(const wchar_t* path);

/// False where the two files are owned by different users, or where nothing can be known of it.
/// True on a disk without owners.
bool HaveSameOwner(const wchar_t* path, const wchar_t* other);

/// Whether a file belongs to administrators, to the system or to the user who runs this. True on a
/// disk without owners; false where nothing can be known of it.
bool IsOfTrustedUser(const wchar_t* path);

} // namespace quillon
