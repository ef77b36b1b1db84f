// How the uninstaller's starter removes its own file. A running program can't be deleted, but it
// can be moved: out of the product's folder, so that the folder can be removed, into the private
// one that is closed to others. There a copy of this program waits for its end and deletes what is
// left.
#pragma once

#include "runtime/win32/starter/starter.h"

namespace quillon {

/// Copies the running program, as long as its file is there and is its own.
bool KeepCleaner(Starter& starter);

/// Removes the private folder; where the uninstaller has moved this program into it, as soon as the
/// program has ended.
void RemoveWorkFolderAndItself(Starter& starter);

/// What the copy does, with its exit code; false where the command line asks for something else.
bool CleanUpForParent(const wchar_t* commandLine, int& code);

} // namespace quillon
