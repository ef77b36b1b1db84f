// Lets a library or program register itself, or take its registration back.
#pragma once

#include <windows.h>

namespace quillon {

// What the helper programs that do this end with.
inline constexpr int kRegistrationDone = 0;
inline constexpr int kNotSelfRegistering = 1;
inline constexpr int kRegistrationFailed = 2;

/// One of the three. A program is started with /regserver or /unregserver, all else is loaded and
/// its entry point called, in the file's own folder.
int RegisterServerFile(const wchar_t* path, bool on);

/// Starts a program, a console program without a window, and waits for it as `WaitForProgram` does;
/// its exit code, or -1 where it can't be started.
int RunHiddenAndWait(const wchar_t* program, wchar_t* commandLine);

} // namespace quillon
