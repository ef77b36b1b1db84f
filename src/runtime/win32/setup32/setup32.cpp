// SETUP32: what the user starts. It unpacks nothing: it copies the setup proper and its library to
// a private folder, starts it there with the package's folder and its own switches, waits, cleans
// up and ends with the same code. Written without the standard library, since it is the first thing
// to be read from a slow disk.
#include "platform/win32/locked_folder.h"
#include "runtime/starter_text.h"
#include "runtime/switch_words.h"
#include "runtime/win32/program_start.h"
#include "runtime/win32/setup32/listed_files.h"

#include <windows.h>

#include <cwchar>

namespace {

constexpr int kMaxPathLength = 32768;
constexpr int kMaxMessageLength = 1024;
constexpr DWORD kFailed = 1603;

struct Paths {
    wchar_t package[kMaxPathLength];
    wchar_t work[kMaxPathLength];
    wchar_t program[kMaxPathLength];
    wchar_t library[kMaxPathLength];
    wchar_t scratch[kMaxPathLength];
    wchar_t commandLine[kMaxPathLength];
    wchar_t message[kMaxMessageLength];
    const wchar_t* refused; // the file that the user is told of
    HANDLE lock;
};

void Join(wchar_t* to, const wchar_t* folder, const wchar_t* name)
{
    lstrcpyW(to, folder);
    if (to[0] != 0 && to[wcslen(to) - 1] != L'\\')
        lstrcatW(to, L"\\");
    lstrcatW(to, name);
}

// The folder of the running program; of a program at a root it keeps the backslash.
void FindPackageFolder(wchar_t* folder)
{
    GetModuleFileNameW(nullptr, folder, kMaxPathLength);
    wchar_t* const last = wcsrchr(folder, L'\\');
    if (last != nullptr)
        last[last - folder == 2 ? 1 : 0] = 0;
}

char16_t AnsiCharacterOf(unsigned char byte)
{
    constexpr UINT kWesternCodePage = 1252;
    const char one = static_cast<char>(byte);
    wchar_t wide = L'?';
    MultiByteToWideChar(kWesternCodePage, 0, &one, 1, &wide, 1);
    return wide;
}

// The whole file; null where there is none or it is too large. HeapFree gives it back.
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

// A text of the language file that the package names. Windows' own functions for such files would
// take UTF-8 for the code page of the machine.
void ReadMessage(Paths& paths, const char* key, const wchar_t* otherwise)
{
    wchar_t language[MAX_PATH];
    Join(paths.scratch, paths.package, L"QNSETUP.INF");
    GetPrivateProfileStringW(L"Language", L"LanguageFile", L"SWEDISH.LNG", language, MAX_PATH,
                             paths.scratch);
    Join(paths.scratch, paths.package, language);
    lstrcpynW(paths.message, otherwise, kMaxMessageLength);
    DWORD size = 0;
    char* const bytes = ReadFileOf(paths.scratch, size);
    if (bytes == nullptr)
        return;
    char16_t text[kMaxMessageLength];
    if (quillon::FindStarterText({bytes, size}, key, AnsiCharacterOf, text, kMaxMessageLength))
        for (int i = 0; i == 0 || text[i - 1] != 0; ++i)
            paths.message[i] = text[i];
    HeapFree(GetProcessHeap(), 0, bytes);
}

int Refuse(Paths& paths, bool silent)
{
    if (silent)
        return kFailed;
    ReadMessage(paths, "Msg_NoRuntime",
                L"Installationen kan inte startas. Filen '%1' saknas eller \u00E4r skadad.");
    wchar_t* const mark = wcsstr(paths.message, L"%1");
    lstrcpynW(paths.scratch, paths.message,
              mark == nullptr ? kMaxMessageLength : static_cast<int>(mark - paths.message) + 1);
    if (mark != nullptr) {
        lstrcatW(paths.scratch, paths.refused);
        lstrcatW(paths.scratch, mark + 2);
    }
    MessageBoxW(nullptr, paths.scratch, L"Quillon", MB_OK | MB_ICONSTOP | MB_SETFOREGROUND);
    return kFailed;
}

HWND ShowWaitWindow(Paths& paths)
{
    ReadMessage(paths, "Msg_Extract", L"F\u00F6rbereder installationen. V\u00E4nta...");
    constexpr int kWidth = 320;
    constexpr int kHeight = 60;
    const HWND window = CreateWindowExW(WS_EX_DLGMODALFRAME, L"STATIC", paths.message,
                                        WS_POPUP | WS_VISIBLE | SS_CENTER | SS_CENTERIMAGE,
                                        (GetSystemMetrics(SM_CXSCREEN) - kWidth) / 2,
                                        (GetSystemMetrics(SM_CYSCREEN) - kHeight) / 2, kWidth,
                                        kHeight, nullptr, nullptr, nullptr, nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 TRUE);
    UpdateWindow(window);
    return window;
}

// Tells the folder from one that a killed setup has left behind, which the next setup removes. The
// system lets go of the lock with this program, however it ends.
bool TakeLock(Paths& paths)
{
    wchar_t* const path = paths.message;
    if (wcslen(paths.work) + 6 > sizeof paths.message / sizeof paths.message[0])
        return true;
    Join(path, paths.work, L"LOCK");
    paths.lock = CreateFileW(path, GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                             FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return paths.lock != INVALID_HANDLE_VALUE;
}

// A folder that did not exist before, so that nobody has laid anything into it.
bool MakeWorkFolder(Paths& paths)
{
    GetTempPathW(kMaxPathLength, paths.scratch);
    for (DWORD n = GetTickCount(), last = n + 1000; n != last; ++n) {
        wchar_t name[32];
        wsprintfW(name, L"QN%lu.TMP", n);
        Join(paths.work, paths.scratch, name);
        if (quillon::MakeLockedFolder(paths.work) && TakeLock(paths))
            return true;
    }
    return false;
}

bool CopyToWorkFolder(Paths& paths, wchar_t* to, const wchar_t* from, const wchar_t* name)
{
    Join(paths.scratch, paths.package, from);
    Join(to, paths.work, name);
    if (!CopyFileW(paths.scratch, to, TRUE))
        return false;
    // What comes from a CD is write-protected, and would stay behind.
    SetFileAttributesW(to, FILE_ATTRIBUTE_NORMAL);
    return true;
}

// The copies are looked at and not what they were made of: nobody else can change them any more.
bool CopyRuntime(Paths& paths)
{
    Join(paths.scratch, paths.package, L"PACKAGE.SHA256");
    const ListedFiles listed(paths.scratch);
    GetModuleFileNameW(nullptr, paths.scratch, kMaxPathLength);
    paths.refused = wcsrchr(paths.scratch, L'\\') + 1;
    if (listed.AreKnown() && !listed.Hold(paths.scratch)) {
        lstrcpyW(paths.commandLine, paths.refused);
        paths.refused = paths.commandLine;
        return false;
    }
    paths.refused = L"DUNZIP32.DLL";
    if (!CopyToWorkFolder(paths, paths.library, paths.refused, paths.refused) ||
        (listed.AreKnown() && !listed.Hold(paths.library, "DUNZIP32.DLL")))
        return false;
    paths.refused = L"QNS32X.BIN";
    return CopyToWorkFolder(paths, paths.program, paths.refused, L"QNS32X.EXE") &&
           (!listed.AreKnown() || listed.Hold(paths.program, "QNS32X.BIN"));
}

DWORD RunSetup(Paths& paths, const wchar_t* switches, HWND waitWindow, bool& started)
{
    if (wcslen(paths.program) + wcslen(paths.package) + wcslen(switches) + 64 > kMaxPathLength)
        return kFailed;
    lstrcpyW(paths.commandLine, L"\"");
    lstrcatW(paths.commandLine, paths.program);
    lstrcatW(paths.commandLine, L"\" /PACKAGE=\"");
    lstrcatW(paths.commandLine, paths.package);
    lstrcatW(paths.commandLine, L"\" ");
    lstrcatW(paths.commandLine, switches);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(paths.program, paths.commandLine, nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &startup, &process))
        return kFailed;
    started = true;
    if (waitWindow != nullptr) {
        WaitForInputIdle(process.hProcess, 10000);
        DestroyWindow(waitWindow);
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = kFailed;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR switches, int)
{
    quillon::StartProgram();
    // Too large for the stack; the system takes it back when the program ends.
    auto* const memory =
        static_cast<Paths*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, sizeof(Paths)));
    if (memory == nullptr)
        return kFailed;
    Paths& paths = *memory;
    paths.refused = L"QNS32X.BIN";
    FindPackageFolder(paths.package);
    const bool silent = quillon::HasSilentSwitch(switches);
    const HWND waitWindow = silent ? nullptr : ShowWaitWindow(paths);
    if (!MakeWorkFolder(paths))
        return Refuse(paths, silent);
    const bool copied = CopyRuntime(paths);
    bool started = false;
    DWORD code = kFailed;
    if (copied)
        code = RunSetup(paths, switches, waitWindow, started);
    DeleteFileW(paths.program);
    DeleteFileW(paths.library);
    CloseHandle(paths.lock);
    RemoveDirectoryW(paths.work);
    return started ? static_cast<int>(code) : Refuse(paths, silent);
}
