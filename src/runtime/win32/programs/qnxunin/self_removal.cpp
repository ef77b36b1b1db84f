#include "runtime/win32/programs/qnxunin/self_removal.h"

#include "runtime/work_folders.h"

#include <cwchar>

namespace quillon {

namespace {

constexpr const char* kCleaner = RuntimePrograms::kUninstaller.name;
constexpr wchar_t kSwitch[] = L"/CLEAN="; // <the first one's process>,<the cleaner's own file>

// A program that has ended, or a scanner, may hold a file for a moment longer.
constexpr int kAttempts = 50;
constexpr DWORD kPause = 100; // milliseconds

template <class Work>
bool Attempt(Work work)
{
    for (int i = 0; i < kAttempts; ++i) {
        if (work())
            return true;
        Sleep(kPause);
    }
    return false;
}

// Through the handle that the file goes with. Systems before Windows Vista have no such function.
void RenameOpenFile(HANDLE file, const wchar_t* path)
{
    struct RenameInformation {
        BOOL replace;
        HANDLE root;
        DWORD length;
        wchar_t name[1];
    };
    using Set = BOOL(WINAPI*)(HANDLE, int, void*, DWORD);
    constexpr int kRename = 3; // FileRenameInfo
    const auto set = reinterpret_cast<Set>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetFileInformationByHandle")));
    const auto length = static_cast<DWORD>(wcslen(path) * sizeof(wchar_t));
    const DWORD size = sizeof(RenameInformation) + length;
    auto* const information =
        static_cast<RenameInformation*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, size));
    if (set == nullptr || information == nullptr)
        return;
    information->length = length;
    lstrcpyW(information->name, path);
    set(file, kRename, information, size);
}

// The cleaner's own file goes when its last handle is closed, so it has to leave the folder first.
void RemoveOwnFolder(Starter& starter, HANDLE ownFile)
{
    lstrcpyW(starter.scratch, starter.folder);
    lstrcatW(starter.scratch, L"~");
    RenameOpenFile(ownFile, starter.scratch);
    if (!Attempt([&] { return RemoveDirectoryW(starter.folder) != 0; }))
        MoveFileExW(starter.folder, nullptr, MOVEFILE_DELAY_UNTIL_REBOOT);
}

HANDLE TakeHandle(const wchar_t*& digits)
{
    ULONG_PTR number = 0;
    for (; *digits >= L'0' && *digits <= L'9'; ++digits)
        number = number * 10 + static_cast<ULONG_PTR>(*digits - L'0');
    return reinterpret_cast<HANDLE>(number);
}

int CleanUp(Starter& starter, HANDLE parent, HANDLE ownFile)
{
    // Without a parent to wait for, the program was not started by the uninstaller.
    if (WaitForSingleObject(parent, INFINITE) != WAIT_OBJECT_0)
        return 1;
    JoinPaths(starter.scratch, starter.folder, RuntimePrograms::kMovedUninstaller);
    if (!Attempt([&] { return DeleteFileW(starter.scratch) != 0; }))
        return 1;
    RemoveOwnFolder(starter, ownFile);
    return 0;
}

bool StartCleaner(Starter& starter)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE file =
        CreateFileW(starter.extra, GENERIC_READ | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                    &inherited, OPEN_EXISTING, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    HANDLE self = nullptr;
    DuplicateHandle(GetCurrentProcess(), GetCurrentProcess(), GetCurrentProcess(), &self,
                    SYNCHRONIZE, TRUE, 0);
    wchar_t handles[32];
    wsprintfW(handles, L"%lu,%lu", HandleToUlong(self), HandleToUlong(file));
    const wchar_t* const pieces[] = {L"\"", starter.extra, L"\" ", kSwitch, handles};
    starter.commandLine[0] = 0;
    for (const wchar_t* piece : pieces)
        lstrcatW(starter.commandLine, piece);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    // Both handles that are left open go with this program.
    return CreateProcessW(starter.extra, starter.commandLine, nullptr, nullptr, TRUE, 0, nullptr,
                          nullptr, &startup, &process) != 0;
}

} // namespace

bool KeepCleaner(Starter& starter)
{
    SetRefused(starter, wcsrchr(starter.own, L'\\') + 1);
    JoinPaths(starter.extra, starter.work, kCleaner);
    if (!CopyFileW(starter.own, starter.extra, TRUE))
        return NoteFailure(starter);
    SetFileAttributesW(starter.extra, FILE_ATTRIBUTE_NORMAL);
    return true;
}

void RemoveWorkFolderAndItself(Starter& starter)
{
    JoinPaths(starter.scratch, starter.work, RuntimePrograms::kMovedUninstaller);
    if (GetFileAttributesW(starter.scratch) == INVALID_FILE_ATTRIBUTES) {
        DeleteFileW(starter.extra);
        RemoveWorkFolder(starter);
        return;
    }
    CloseHandle(starter.lock);
    StartCleaner(starter);
}

bool CleanUpForParent(const wchar_t* commandLine, int& code)
{
    constexpr int kSwitchLength = 7;
    static_assert(sizeof kSwitch == (kSwitchLength + 1) * sizeof(wchar_t));
    if (wcsncmp(commandLine, kSwitch, kSwitchLength) != 0)
        return false;
    code = 1;
    Starter* const starter = MakeStarter();
    if (starter == nullptr)
        return true;
    const wchar_t* at = commandLine + kSwitchLength;
    const HANDLE parent = TakeHandle(at);
    if (*at == L',')
        ++at;
    code = CleanUp(*starter, parent, TakeHandle(at));
    return true;
}

} // namespace quillon
