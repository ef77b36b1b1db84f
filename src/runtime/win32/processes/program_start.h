// What each program of the setup runtime does before anything else. Written without the standard
// library, since the starter uses it too.
#pragma once

#include <windows.h>

namespace quillon {

/// From here on libraries are loaded from the system's folder only: a package may be in a folder of
/// downloads, to which others may have added a version.dll. Also keeps Windows from showing boxes
/// of its own, for a missing disk or a crash, since no user may be there to answer them: a crash
/// ends the program at once, with the exception's code.
void StartProgram();

/// The library of that name; null where the system has none. With its absolute path, so that what
/// it needs itself is looked for beside it.
HMODULE LoadFromSystemFolder(const char* name);

/// Loads from the system's folder, by its absolute path, what Windows itself asks for by the name
/// alone while a program runs. Only needed on systems that have no setting for where to look: those
/// before Windows 8 without an update of 2011.
void LoadCommonLibraries();

} // namespace quillon
