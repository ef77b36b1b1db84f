#include "runtime/win32/starter/starter.h"

#include "platform/win32/locked_folder.h"
#include "runtime/command_line/switch_words.h"
#include "runtime/log/result_names.h"
#include "runtime/work_folder.h"

#include <cwchar>

namespace quillon {

namespace {

void Widen(wchar_t* to, const char* utf8, int room)
{
    MultiByteToWideChar(CP_UTF8, 0, utf8, -1, to, room);
}

// Tells the folder from one that a killed setup has left behind, which the next setup removes. The
// system releases the lock when this program ends, however it ends.
bool TakeLock(Starter& starter)
{
    JoinPaths(starter.scratch, starter.work, kWorkFolderLock);
    starter.lock = CreateFileW(starter.scratch, GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                               FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return starter.lock != INVALID_HANDLE_VALUE;
}

// All folders of a path that ends with a backslash; those that are there stay as they are.
void MakeFolders(wchar_t* path)
{
    for (wchar_t* at = path; *at != 0; ++at)
        if (*at == L'\\') {
            *at = 0;
            CreateDirectoryW(path, nullptr);
            *at = L'\\';
        }
}

bool MakeCommandLine(Starter& starter, const SetupLine& line)
{
    constexpr std::size_t kMarksAndSwitch = 64;
    if (wcslen(starter.program) + wcslen(line.value) + wcslen(line.given) + kMarksAndSwitch >
        kMaxPathLength)
        return false;
    wchar_t name[kMarksAndSwitch];
    Widen(name, line.ownSwitch, kMarksAndSwitch);
    const wchar_t* const pieces[] = {L"\"",  starter.program, L"\" /", name,
                                     L"=\"", line.value,      L"\" ",  line.given};
    starter.commandLine[0] = 0;
    for (const wchar_t* piece : pieces)
        lstrcatW(starter.commandLine, piece);
    return true;
}

// A folder that is a program's current one can't be removed. The setup has taken this one over by
// now, and resolves the paths of its switches against it.
void LeaveCurrentFolder(Starter& starter)
{
    if (GetWindowsDirectoryW(starter.scratch, kMaxPathLength) > 0)
        SetCurrentDirectoryW(starter.scratch);
}

// The result is in `starter.scratch`.
void ComposeRefusal(Starter& starter)
{
    wchar_t* const mark = wcsstr(starter.message, L"%1");
    lstrcpynW(starter.scratch, starter.message,
              mark == nullptr ? kMaxMessageLength : static_cast<int>(mark - starter.message) + 1);
    if (mark == nullptr)
        return;
    lstrcatW(starter.scratch, starter.refused);
    lstrcatW(starter.scratch, mark + 2);
}

wchar_t* AppendJsonText(wchar_t* to, const wchar_t* text)
{
    for (; *text != 0; ++text) {
        if (*text == L'"' || *text == L'\\')
            *to++ = L'\\';
        *to++ = *text < L' ' ? L' ' : *text;
    }
    return to;
}

// The record that ends the setup's log for programs, without the counts of what was done.
void WriteRefusal(Starter& starter, const wchar_t* path, DWORD code)
{
    wchar_t result[MAX_PATH];
    Widen(result, NameOfResult(static_cast<ExitCode>(code)), MAX_PATH);
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t* end = starter.commandLine;
    end += wsprintfW(end,
                     L"{\"time\":\"%04u-%02u-%02uT%02u:%02u:%02u\",\"action\":\"result\","
                     L"\"result\":\"%s\",\"code\":%lu,\"restart\":false,\"error\":\"",
                     now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, result,
                     code);
    end = AppendJsonText(end, starter.scratch);
    lstrcpyW(end, L"\"}\n");

    auto* const utf8 = reinterpret_cast<char*>(starter.work);
    const int size = WideCharToMultiByte(CP_UTF8, 0, starter.commandLine, -1, utf8,
                                         sizeof starter.work, nullptr, nullptr);
    const HANDLE file = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    DWORD written = 0;
    WriteFile(file, utf8, static_cast<DWORD>(size > 0 ? size - 1 : 0), &written, nullptr);
    CloseHandle(file);
}

} // namespace

void JoinPaths(wchar_t* to, const wchar_t* folder, const wchar_t* name)
{
    lstrcpyW(to, folder);
    if (to[0] != 0 && to[wcslen(to) - 1] != L'\\')
        lstrcatW(to, L"\\");
    lstrcatW(to, name);
}

void JoinPaths(wchar_t* to, const wchar_t* folder, const char* name)
{
    wchar_t wide[MAX_PATH];
    Widen(wide, name, MAX_PATH);
    JoinPaths(to, folder, wide);
}

Starter* MakeStarter()
{
    auto* const starter =
        static_cast<Starter*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, sizeof(Starter)));
    if (starter == nullptr)
        return nullptr;
    GetModuleFileNameW(nullptr, starter->own, kMaxPathLength);
    lstrcpyW(starter->folder, starter->own);
    // The folder of a program at a root keeps the backslash.
    wchar_t* const last = wcsrchr(starter->folder, L'\\');
    if (last != nullptr)
        last[last - starter->folder == 2 ? 1 : 0] = 0;
    Widen(starter->refused, RuntimePrograms::kSetup.inPackage, MAX_PATH);
    return starter;
}

char* ReadFileOf(const wchar_t* path, DWORD& size)
{
    constexpr DWORD kMaxFileSize = 16 * 1024 * 1024;
    const HANDLE file =
        CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return nullptr;
    size = GetFileSize(file, nullptr);
    char* bytes = size > kMaxFileSize
                      ? nullptr
                      : static_cast<char*>(HeapAlloc(GetProcessHeap(), 0, size + 1));
    DWORD read = 0;
    if (bytes != nullptr && (!ReadFile(file, bytes, size, &read, nullptr) || read != size)) {
        HeapFree(GetProcessHeap(), 0, bytes);
        bytes = nullptr;
    }
    CloseHandle(file);
    return bytes;
}

bool MakeWorkFolder(Starter& starter)
{
    wchar_t* const parent = starter.commandLine; // which is only needed later
    GetTempPathW(kMaxPathLength, parent);
    MakeFolders(parent);
    for (DWORD n = GetTickCount(), last = n + 1000; n != last; ++n) {
        wchar_t name[32];
        wsprintfW(name, L"%hs%lu%hs", kWorkFolderPrefix, n, kWorkFolderSuffix);
        JoinPaths(starter.work, parent, name);
        if (MakeLockedFolder(starter.work) && TakeLock(starter))
            return true;
        NoteFailure(starter);
        if (starter.isDiskFull) {
            RemoveDirectoryW(starter.work);
            break;
        }
    }
    return false;
}

bool CopyToWorkFolder(Starter& starter, wchar_t* to, const RuntimeProgram& program,
                      const ListedFiles& listed)
{
    Widen(starter.refused, program.inPackage, MAX_PATH);
    JoinPaths(starter.scratch, starter.folder, program.inPackage);
    JoinPaths(to, starter.work, program.name);
    if (!CopyFileW(starter.scratch, to, TRUE))
        return NoteFailure(starter);
    // Files from a CD are write-protected and could not be removed.
    SetFileAttributesW(to, FILE_ATTRIBUTE_NORMAL);
    return !listed.AreKnown() || listed.Hold(to, program.inPackage);
}

void SetRefused(Starter& starter, const wchar_t* name)
{
    lstrcpynW(starter.refused, name, MAX_PATH);
}

bool NoteFailure(Starter& starter)
{
    const DWORD errorCode = GetLastError();
    starter.isDiskFull = errorCode == ERROR_DISK_FULL || errorCode == ERROR_HANDLE_DISK_FULL;
    if (starter.isDiskFull)
        GetTempPathW(MAX_PATH, starter.refused);
    return false;
}

SetupRun RunSetup(Starter& starter, const SetupLine& line, HWND waitWindow)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!MakeCommandLine(starter, line) ||
        !CreateProcessW(starter.program, starter.commandLine, nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &startup, &process))
        return {};
    LeaveCurrentFolder(starter);
    if (waitWindow != nullptr) {
        WaitForInputIdle(process.hProcess, 10000);
        DestroyWindow(waitWindow);
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    SetupRun run{.isStarted = true};
    GetExitCodeProcess(process.hProcess, &run.code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return run;
}

void RemoveWorkFolder(Starter& starter)
{
    CloseHandle(starter.lock);
    RemoveDirectoryW(starter.work);
}

void SetMessage(Starter& starter, const char* utf8)
{
    Widen(starter.message, utf8, kMaxMessageLength);
}

void TellRefusal(Starter& starter, const wchar_t* switches, DWORD code)
{
    ComposeRefusal(starter);
    // Nothing else is started any more.
    if (FindSwitchValue(switches, "RESULT", starter.program, kMaxPathLength))
        WriteRefusal(starter, starter.program, code);
    if (AllowsBoxes(switches))
        MessageBoxW(nullptr, starter.scratch, L"Quillon", MB_OK | MB_ICONSTOP | MB_SETFOREGROUND);
}

} // namespace quillon
