#include "platform/win32/win_files.h"

#include "helpers/windows_path.h"
#include "platform/win32/open_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "platform/win32/win_time.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

DWORD AttributesOf(const Text& path)
{
    return path.find('\0') == Text::npos ? GetFileAttributesW(WidePath(path).c_str())
                                         : INVALID_FILE_ATTRIBUTES;
}

bool Has(DWORD attributes, DWORD attribute)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

// Windows denies access to a folder that is taken for a file, and to a file that is
// write-protected, as it does where rights are missing. Users see two different messages.
[[noreturn]] void FailAtFile(const Text& path)
{
    const DWORD errorCode = GetLastError();
    const DWORD kind = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    if (errorCode == ERROR_ACCESS_DENIED && Has(AttributesOf(path), kind))
        throw RunError(ErrorNumber::kPathFileAccess, path);
    throw WindowsFailure(errorCode, path);
}

// The records of FindFirstFile and of GetFileAttributesEx share these members.
template <class Record>
FileStatus StatusOf(const Record& record)
{
    const DWORD attributes = record.dwFileAttributes;
    const bool isFolder = Has(attributes, FILE_ATTRIBUTE_DIRECTORY);
    const auto size = static_cast<std::uint64_t>(record.nFileSizeHigh) << 32U;
    return {.size = isFolder ? 0 : size | record.nFileSizeLow,
            .modified = LocalTimeOf(record.ftLastWriteTime),
            .isFolder = isFolder,
            .isReadOnly = Has(attributes, FILE_ATTRIBUTE_READONLY),
            .isHidden = Has(attributes, FILE_ATTRIBUTE_HIDDEN),
            .isArchive = Has(attributes, FILE_ATTRIBUTE_ARCHIVE),
            .isSystem = Has(attributes, FILE_ATTRIBUTE_SYSTEM)};
}

FileHandle OpenOrFail(const Text& path, DWORD access, DWORD sharing, DWORD creation)
{
    FileHandle file(CreateFileW(WidePath(path).c_str(), access, sharing, nullptr, creation,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen())
        FailAtFile(path);
    return file;
}

// Windows refuses this, but Wine allows it to an administrator.
void RefuseReadOnly(const Text& path)
{
    const DWORD attributes = AttributesOf(path);
    if (Has(attributes, FILE_ATTRIBUTE_READONLY) && !Has(attributes, FILE_ATTRIBUTE_DIRECTORY))
        throw RunError(ErrorNumber::kPathFileAccess, path);
}

// Windows removes the file with the handle, also when the program is killed.
class WinFileLock : public FileLock {
public:
    explicit WinFileLock(FileHandle file) : file_(std::move(file)) {}

private:
    FileHandle file_;
};

std::wstring RootOf(const Text& path)
{
    return Wide(RemoveLastBackslash(path) + "\\");
}

} // namespace

bool WinFiles::FileExists(const Text& path) const
{
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !Has(attributes, FILE_ATTRIBUTE_DIRECTORY);
}

bool WinFiles::DirExists(const Text& path) const
{
    return Has(AttributesOf(path), FILE_ATTRIBUTE_DIRECTORY);
}

FileStatus WinFiles::Status(const Text& path) const
{
    WIN32_FILE_ATTRIBUTE_DATA record{};
    if (!GetFileAttributesExW(WidePath(path).c_str(), GetFileExInfoStandard, &record))
        FailAsWindowsSays(path);
    return StatusOf(record);
}

std::vector<FolderEntry> WinFiles::List(const Text& folder) const
{
    // The mark for all names counts towards the limit of a path.
    const std::wstring pattern = WidePath(JoinPath(folder, "*"));
    WIN32_FIND_DATAW record{};
    const HANDLE search = FindFirstFileW(pattern.c_str(), &record);
    if (search == INVALID_HANDLE_VALUE) {
        // The root of an empty drive holds not even ".".
        if (GetLastError() == ERROR_FILE_NOT_FOUND && DirExists(folder))
            return {};
        throw RunError(ErrorNumber::kPathNotFound, folder);
    }
    std::vector<FolderEntry> entries;
    do {
        const Text name = Narrow(record.cFileName);
        if (name != "." && name != "..")
            entries.push_back({name, StatusOf(record)});
    } while (FindNextFileW(search, &record));
    FindClose(search);
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    return entries;
}

std::unique_ptr<InputFile> WinFiles::OpenInput(const Text& path) const
{
    return std::make_unique<WinInputFile>(OpenOrFail(path, GENERIC_READ, kShareAll, OPEN_EXISTING),
                                          path);
}

std::unique_ptr<OutputFile> WinFiles::OpenOutput(const Text& path)
{
    RefuseReadOnly(path);
    return std::make_unique<WinOutputFile>(
        OpenOrFail(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS), path);
}

std::unique_ptr<OutputFile> WinFiles::OpenNew(const Text& path)
{
    FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen() && GetLastError() == ERROR_FILE_EXISTS)
        return nullptr;
    if (!file.IsOpen())
        FailAtFile(path);
    return std::make_unique<WinOutputFile>(std::move(file), path);
}

// One that a program still writes is not shared for deletion.
void WinFiles::RemoveAbandoned(const Text& path)
{
    DeleteFileW(WidePath(path).c_str());
}

std::unique_ptr<FileLock> WinFiles::Lock(const Text& path, LockWait wait)
{
    constexpr DWORD kPause = 20; // milliseconds; Windows does not notify when a file is free
    for (;;) {
        FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        if (file.IsOpen())
            return std::make_unique<WinFileLock>(std::move(file));
        if (GetLastError() != ERROR_SHARING_VIOLATION)
            FailAtFile(path);
        if (wait == LockWait::None)
            return nullptr;
        Sleep(kPause);
    }
}

bool WinFiles::DirCreate(const Text& path)
{
    if (DirExists(path))
        return true;
    // A failure at a folder above shows at the last one. The functions for paths would cut a long
    // path.
    const std::size_t last = path.find_last_of("\\/");
    if (last != Text::npos && last > 0 && path[last - 1] != ':')
        DirCreate(path.substr(0, last));
    return CreateDirectoryW(WidePath(path).c_str(), nullptr) != 0 || DirExists(path);
}

void WinFiles::CopyContent(const Text& from, const Text& to)
{
    if (CopyFileW(WidePath(from).c_str(), WidePath(to).c_str(), FALSE))
        return;
    const DWORD errorCode = GetLastError();
    const bool isSourceMissing = !FileExists(from) && !DirExists(from);
    SetLastError(errorCode);
    if (isSourceMissing || DirExists(from))
        FailAtFile(from);
    FailAtFile(to);
}

void WinFiles::RemoveFile(const Text& path)
{
    RefuseReadOnly(path);
    if (!DeleteFileW(WidePath(path).c_str()))
        FailAtFile(path);
}

void WinFiles::RemoveFolder(const Text& path)
{
    if (!RemoveDirectoryW(WidePath(path).c_str()))
        FailAsWindowsSays(path);
}

void WinFiles::Rename(const Text& from, const Text& to)
{
    if (!MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED))
        FailAtFile(FileExists(from) || DirExists(from) ? to : from);
}

// Without the right to copy: a copy would first empty the file that is there.
void WinFiles::Replace(const Text& from, const Text& to)
{
    RefuseReadOnly(to);
    if (!MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        FailAtFile(FileExists(from) ? to : from);
}

void WinFiles::SetModified(const Text& path, const LocalTime& time)
{
    // A folder opens with this flag only, and a read-only file with this right only.
    const FileHandle file(CreateFileW(WidePath(path).c_str(), FILE_WRITE_ATTRIBUTES, kShareAll,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    const FILETIME moment = MomentOf(time);
    if (!file.IsOpen() || !SetFileTime(file.Get(), nullptr, nullptr, &moment))
        FailAsWindowsSays(path);
}

void WinFiles::SetReadOnly(const Text& path, bool readOnly)
{
    const std::wstring wide = WidePath(path);
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        FailAsWindowsSays(path);
    const DWORD changed = readOnly ? attributes | FILE_ATTRIBUTE_READONLY
                                   : attributes & ~DWORD(FILE_ATTRIBUTE_READONLY);
    if (changed != attributes && !SetFileAttributesW(wide.c_str(), changed))
        FailAsWindowsSays(path);
}

std::uint64_t WinFiles::FreeSpace(const Text& folder) const
{
    ULARGE_INTEGER free{};
    if (!GetDiskFreeSpaceExW(WidePath(folder).c_str(), &free, nullptr, nullptr))
        FailAsWindowsSays(folder);
    return free.QuadPart;
}

DriveKind WinFiles::DriveType(const Text& root) const
{
    const UINT kind = GetDriveTypeW(RootOf(root).c_str());
    return kind <= DRIVE_CDROM ? static_cast<DriveKind>(kind) : DriveKind::Unknown;
}

Text WinFiles::GetVolumeName(const Text& root) const
{
    wchar_t name[MAX_PATH + 1] = {};
    GetVolumeInformationW(RootOf(root).c_str(), name, MAX_PATH, nullptr, nullptr, nullptr, nullptr,
                          0);
    return Narrow(name);
}

Text WinFiles::ShortPath(const Text& path) const
{
    const std::wstring wide = WidePath(path);
    std::wstring shortPath(kMaxPathLength, L'\0');
    const DWORD length = GetShortPathNameW(wide.c_str(), shortPath.data(), kMaxPathLength);
    return length > 0 && length < kMaxPathLength ? Narrow(shortPath.substr(0, length)) : path;
}

} // namespace quillon
