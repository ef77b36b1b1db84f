#include "runtime/win32/qnxunin/self_removal.h"

#include "formats/runtime_programs.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "runtime/win32/private_folder.h"
#include "runtime/work_folders.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <vector>

namespace quillon {

namespace {

constexpr const char* kCleaner = RuntimePrograms::kUninstaller.name;
constexpr std::string_view kSwitch =
    "/CLEAN="; // <the first one's process>,<the cleaner's own file>

bool Delete(const Text& path)
{
    return DeleteFileW(WidePath(path).c_str()) != 0;
}

bool RemoveEmpty(const Text& folder)
{
    return RemoveDirectoryW(WidePath(folder).c_str()) != 0;
}

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
bool RenameOpenFile(HANDLE file, const Text& path)
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
    if (set == nullptr)
        return false;
    const std::wstring name = WidePath(path);
    const std::size_t bytes = name.size() * sizeof(wchar_t);
    // Bytes all of which are zero: a type with padding would leave some of them to chance.
    std::vector<std::uint64_t> buffer((sizeof(RenameInformation) + bytes) / sizeof(std::uint64_t) +
                                      1);
    auto* const information = new (buffer.data()) RenameInformation{};
    information->length = static_cast<DWORD>(bytes);
    std::copy(name.begin(), name.end(), information->name);
    return set(file, kRename, information,
               static_cast<DWORD>(buffer.size() * sizeof(std::uint64_t))) != 0;
}

// The cleaner's own file goes when its last handle is closed, so it has to leave the folder first.
void RemoveOwnFolder(HANDLE ownFile)
{
    const Text folder = ProgramFolder();
    RenameOpenFile(ownFile, folder + "~");
    if (!Attempt([&] { return RemoveEmpty(folder); }))
        MoveFileExW(WidePath(folder).c_str(), nullptr, MOVEFILE_DELAY_UNTIL_REBOOT);
}

} // namespace

void SelfRemoval::MoveAway(const Text& uninstaller)
{
    if (!EqualIgnoreCase(host_.files.ShortPath(ProgramPath()), host_.files.ShortPath(uninstaller)))
        return;
    const Text folder = MakePrivateFolder(host_);
    const Text away = JoinPath(folder, kMovedUninstaller);
    if (MoveFileExW(WidePath(uninstaller).c_str(), WidePath(away).c_str(), 0))
        folder_ = folder;
    else
        RemoveEmpty(folder);
}

void SelfRemoval::RemoveAfterEnd()
{
    if (folder_.empty())
        return;
    const Text cleaner = JoinPath(folder_, kCleaner);
    if (!CopyFileW(WidePath(JoinPath(folder_, kMovedUninstaller)).c_str(),
                   WidePath(cleaner).c_str(), TRUE))
        return;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const FileHandle file(CreateFileW(WidePath(cleaner).c_str(), GENERIC_READ | DELETE,
                                      FILE_SHARE_READ | FILE_SHARE_DELETE, &inherited,
                                      OPEN_EXISTING, FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    HANDLE self = nullptr;
    DuplicateHandle(GetCurrentProcess(), GetCurrentProcess(), GetCurrentProcess(), &self,
                    SYNCHRONIZE, TRUE, 0);
    std::wstring line =
        Wide("\"" + cleaner + "\" " + Text(kSwitch) + NumberText(reinterpret_cast<INT_PTR>(self)) +
             "," + NumberText(reinterpret_cast<INT_PTR>(file.Get())));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(Wide(cleaner).c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                        Wide(ExtractDirectory(folder_)).c_str(), &startup, &process))
        return;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

std::optional<int> CleanUpForParent(std::string_view commandLine)
{
    if (!commandLine.starts_with(kSwitch))
        return std::nullopt;
    const std::string_view numbers = commandLine.substr(kSwitch.size());
    const std::size_t comma = std::min(numbers.find(','), numbers.size() - 1);
    const auto handle = [](std::string_view number) {
        return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(LeadingNumber(number)));
    };
    // Without a parent that waits to be followed, somebody else has started this.
    if (WaitForSingleObject(handle(numbers), INFINITE) != WAIT_OBJECT_0)
        return 1;
    if (!Attempt([] { return Delete(JoinPath(ProgramFolder(), kMovedUninstaller)); }))
        return 1;
    RemoveOwnFolder(handle(numbers.substr(comma + 1)));
    return 0;
}

} // namespace quillon
