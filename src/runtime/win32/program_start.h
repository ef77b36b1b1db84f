// What each program of the setup runtime does before anything else. Written without the standard
// library, since the starter uses it too.
#pragma once

#include <windows.h>

namespace quillon {

/// From here on libraries are taken from the system's folder only: a package is in a folder of
/// downloads, where anybody may have laid a version.dll beside it. And Windows shows no boxes of
/// its own, neither for a missing disk nor for a crash, since nobody may be there to answer them: a
/// crash ends the program at once, with the exception's code.
void StartProgram();

/// The library of that name; null where the system has none. With its absolute path, so that what
/// it needs itself is looked for beside it.
HMODULE LoadFromSystemFolder(const char* name);

/// Loads from the system's folder, by its absolute path, what Windows itself asks for by the name
/// alone while a program runs. Systems without a way to say where to look need it: those before
/// Windows 8 without an update of 2011.
void LoadCommonLibraries();

} // namespace quillon
