// What the two programs share that users start: SETUP32 for an installation and QNXUNIN to remove
// the product. Both copy the setup proper from their own folder to a private one, start it there,
// wait and end with its code; so its file can be replaced or removed meanwhile, and others can't
// replace it between its check and its start. Written without the standard library, which would be
// most of a starter.
#pragma once

#include "formats/runtime_programs.h"
#include "runtime/exit_codes.h"
#include "runtime/texts/starter_messages.h"
#include "runtime/win32/starter/listed_files.h"

#include <windows.h>

namespace quillon {

inline constexpr int kMaxPathLength = 32768;
inline constexpr int kMaxMessageLength = 1024;
inline constexpr auto kNotStarted = static_cast<DWORD>(ExitCode::Failed);

struct Starter {
    wchar_t own[kMaxPathLength];     // the running program's file,
    wchar_t folder[kMaxPathLength];  // the folder that it is in,
    wchar_t work[kMaxPathLength];    // the private folder,
    wchar_t program[kMaxPathLength]; // the setup proper in that
    wchar_t extra[kMaxPathLength];   // and the one other file that the program puts there
    wchar_t scratch[kMaxPathLength];
    wchar_t commandLine[kMaxPathLength];
    wchar_t message[kMaxMessageLength];
    wchar_t refused[MAX_PATH]; // the file or folder that the message names
    HANDLE lock;
    bool isDiskFull; // that is why nothing was started
};

/// The system takes it back when the program ends; null where there is no memory.
Starter* MakeStarter();

void JoinPaths(wchar_t* to, const wchar_t* folder, const wchar_t* name);
/// The same for one of our own names, which are ASCII.
void JoinPaths(wchar_t* to, const wchar_t* folder, const char* name);

/// The whole file; null where there is none or it is too large. HeapFree gives it back.
char* ReadFileOf(const wchar_t* path, DWORD& size);

/// A new folder, so that others can't have put files into it; closed to others where an
/// administrator runs the program. The folder for temporary files is made too, where it does not
/// exist.
bool MakeWorkFolder(Starter& starter);

/// Copies the program from the starter's folder to the private one; `to` is its path there. The
/// copy is compared with the list, not the original, since others can't change the copy. Where it
/// differs, or can't be copied, that file is the refused one.
bool CopyToWorkFolder(Starter& starter, wchar_t* to, const RuntimeProgram& program,
                      const ListedFiles& listed);
void SetRefused(Starter& starter, const wchar_t* name);
/// To be called right after a failure to copy or to make something: where the disk is full, the
/// folder for temporary files is what is refused. Always false.
bool NoteFailure(Starter& starter);

struct SetupRun {
    bool isStarted = false;
    DWORD code = kNotStarted;
};

struct SetupLine {
    const char* ownSwitch;
    const wchar_t* value; // of that switch
    const wchar_t* given; // to the starter
};

/// Starts the copy and waits for it. The starter's window is closed when the setup shows one
/// itself.
SetupRun RunSetup(Starter& starter, const SetupLine& line, HWND waitWindow);

/// Releases the lock and removes the private folder, if it is empty by then.
void RemoveWorkFolder(Starter& starter);

/// As UTF-16, into `starter.message`.
void SetMessage(Starter& starter, const char* utf8);
/// Tells why nothing was started: the message, with the name of the refused file in the place of
/// "%1", in a box and in the file of /RESULT=, as the switches given to the starter want it.
void TellRefusal(Starter& starter, const wchar_t* switches, DWORD code);

} // namespace quillon
