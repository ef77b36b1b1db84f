#include "platform/posix/posix_files.h"

#include "platform/posix/disk_info.h"
#include "platform/posix/file_lock.h"
#include "platform/posix/file_status.h"
#include "platform/posix/open_file.h"
#include "platform/posix/posix_error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr std::size_t kCopyPiece = 256 * 1024;
constexpr mode_t kWriteBits = S_IWUSR | S_IWGRP | S_IWOTH;

std::string FolderOf(const std::string& hostPath)
{
    const std::size_t last = hostPath.rfind('/');
    return last == 0 ? "/" : hostPath.substr(0, last);
}

bool IsFolder(const std::string& hostPath)
{
    struct stat status {};
    return stat(hostPath.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// A pipe, a socket or a device has nothing that could be packed, and reading one may never end.
bool IsFileOrFolder(const struct stat& status)
{
    return S_ISREG(status.st_mode) || S_ISDIR(status.st_mode);
}

[[noreturn]] void Fail(const Text& path, const std::string& hostPath, Doing doing)
{
    const int errorCode = errno;
    throw PosixFailure(errorCode, path, doing, IsFolder(FolderOf(hostPath)));
}

std::string HostPath(const DriveMap& drives, const Text& path)
{
    const bool canBe = path.find('\0') == Text::npos;
    const auto hostPath = drives.ToHost(path);
    if (!hostPath)
        throw RunError(canBe ? ErrorNumber::kPathNotFound : ErrorNumber::kBadFileName, path);
    return *hostPath;
}

struct stat StatOf(const Text& path, const std::string& hostPath)
{
    struct stat status {};
    if (stat(hostPath.c_str(), &status) != 0)
        Fail(path, hostPath, Doing::Reading);
    return status;
}

// A file whose owner may not write it has what Windows calls the read-only attribute. It must hold
// for an administrator too, whom the system itself would not stop.
void RefuseReadOnly(const Text& path, const std::string& hostPath)
{
    struct stat status {};
    const bool exists = stat(hostPath.c_str(), &status) == 0;
    if (exists && S_ISREG(status.st_mode) && (status.st_mode & S_IWUSR) == 0)
        throw RunError(ErrorNumber::kPathFileAccess, path);
}

/// Non-blocking, so that opening a pipe without a writer does not block.
Descriptor OpenToRead(const Text& path, const std::string& hostPath)
{
    Descriptor file(open(hostPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.IsOpen())
        Fail(path, hostPath, Doing::Reading);
    struct stat status {};
    if (fstat(file.Number(), &status) != 0)
        Fail(path, hostPath, Doing::Reading);
    if (!S_ISREG(status.st_mode))
        throw RunError(ErrorNumber::kPathFileAccess, path);
    return file;
}

/// Gives a finished file the owner and the rights of the one that it replaces; false where this
/// user may not. Where the group has the same rights as the owner, a file of another user can
/// become this user's, since it stays open to the group.
bool TakesOver(const std::string& hostPath, const struct stat& own, const struct stat& old)
{
    const bool isOthers = own.st_uid != old.st_uid;
    const bool groupMayAll = ((old.st_mode >> 3U) & 6U) == ((old.st_mode >> 6U) & 6U);
    const uid_t keepsOwner = static_cast<uid_t>(-1);
    const bool sameOwners = !isOthers && own.st_gid == old.st_gid;
    const bool taken =
        sameOwners || chown(hostPath.c_str(), old.st_uid, old.st_gid) == 0 ||
        (isOthers && groupMayAll && chown(hostPath.c_str(), keepsOwner, old.st_gid) == 0);
    return taken && chmod(hostPath.c_str(), old.st_mode & 07777U) == 0;
}

/// Waits until the folder's names lie on the disk. A folder that may not be read can't be waited
/// for, nor can one on a disk without a cache.
void FlushFolderOf(const Text& path, const std::string& hostPath)
{
    const Descriptor folder(open(FolderOf(hostPath).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen() && fsync(folder.Number()) != 0 && errno != EINVAL)
        Fail(path, hostPath, Doing::Writing);
}

using HostName = std::unique_ptr<char, void (*)(void*)>;

/// Null where nothing exists at the path, or where a link leads nowhere.
HostName BehindLinks(const std::string& hostPath)
{
    return {realpath(hostPath.c_str(), nullptr), free};
}

void CopyBytes(InputFile& from, OutputFile& to)
{
    std::vector<std::byte> piece(kCopyPiece);
    while (const std::size_t count = from.Read(piece))
        to.Write(std::span(piece).first(count));
}

} // namespace

bool PosixFiles::FileExists(const Text& path) const
{
    const auto hostPath = drives_.ToHost(path);
    struct stat status {};
    return hostPath && stat(hostPath->c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool PosixFiles::DirExists(const Text& path) const
{
    const auto hostPath = drives_.ToHost(path);
    return hostPath && IsFolder(*hostPath);
}

FileStatus PosixFiles::Status(const Text& path) const
{
    const struct stat status = StatOf(path, HostPath(drives_, path));
    if (!IsFileOrFolder(status))
        throw RunError(ErrorNumber::kPathFileAccess, path);
    return StatusOf(status);
}

std::vector<FolderEntry> PosixFiles::List(const Text& folder) const
{
    const std::string hostPath = HostPath(drives_, folder);
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(hostPath.c_str()), closedir);
    if (!listing)
        throw PosixFailure(errno, folder, Doing::Reading, false);

    std::vector<FolderEntry> entries;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string name = entry->d_name;
        struct stat status {};
        // A link that leads nowhere is listed all the same, so that its loss shows when it is read.
        const bool found =
            fstatat(dirfd(listing.get()), name.c_str(), &status, 0) == 0 ||
            fstatat(dirfd(listing.get()), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
        const bool isOne = found && (IsFileOrFolder(status) || S_ISLNK(status.st_mode));
        if (isOne && name != "." && name != "..")
            entries.push_back({name, StatusOf(status)});
    }
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    return entries;
}

std::unique_ptr<InputFile> PosixFiles::OpenInput(const Text& path) const
{
    const std::string hostPath = HostPath(drives_, path);
    Descriptor file = OpenToRead(path, hostPath);
    struct stat status {};
    if (fstat(file.Number(), &status) != 0)
        Fail(path, hostPath, Doing::Reading);
    return std::make_unique<PosixInputFile>(std::move(file), std::uint64_t(status.st_size), path);
}

std::unique_ptr<OutputFile> PosixFiles::OpenOutput(const Text& path)
{
    const std::string hostPath = HostPath(drives_, path);
    RefuseReadOnly(path, hostPath);
    Descriptor file(
        open(hostPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK, 0666));
    if (!file.IsOpen())
        Fail(path, hostPath, Doing::Writing);
    drives_.Names().NoteCreated(hostPath);
    return std::make_unique<PosixOutputFile>(std::move(file), path);
}

std::unique_ptr<OutputFile> PosixFiles::OpenNew(const Text& path)
{
    const std::string hostPath = HostPath(drives_, path);
    Descriptor file(open(hostPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.IsOpen() && errno == EEXIST)
        return nullptr;
    if (!file.IsOpen())
        Fail(path, hostPath, Doing::Writing);
    drives_.Names().NoteCreated(hostPath);
    // Another program can take the new file for an abandoned one before it is locked.
    if (TakeLock(file, LockWait::None) == LockResult::Busy || !IsFileAt(file, hostPath))
        return nullptr;
    return std::make_unique<PosixOutputFile>(std::move(file), path, PosixOutputFile::Held::Yes);
}

void PosixFiles::RemoveAbandoned(const Text& path)
{
    const auto hostPath = drives_.ToHost(path);
    if (!hostPath)
        return;
    const Descriptor file(open(hostPath->c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.IsOpen() && TakeLock(file, LockWait::None) == LockResult::Taken &&
        IsFileAt(file, *hostPath) && unlink(hostPath->c_str()) == 0)
        drives_.Names().NoteRemoved(*hostPath);
}

std::unique_ptr<FileLock> PosixFiles::Lock(const Text& path, LockWait wait)
{
    const std::string hostPath = HostPath(drives_, path);
    for (;;) {
        Descriptor file = OpenLockFile(hostPath);
        if (!file.IsOpen())
            Fail(path, hostPath, Doing::Writing);
        if (TakeLock(file, wait) == LockResult::Busy)
            return nullptr;
        // The former holder has removed the file, so a lock on it would keep no one out.
        if (IsFileAt(file, hostPath))
            return std::make_unique<PosixFileLock>(std::move(file), hostPath);
    }
}

bool PosixFiles::DirCreate(const Text& path)
{
    const auto hostPath = drives_.ToHost(path);
    if (!hostPath)
        return false;
    for (std::size_t end = 1; end != std::string::npos;) {
        end = hostPath->find('/', end + 1);
        const std::string folder = hostPath->substr(0, end);
        if (IsFolder(folder))
            continue;
        if (mkdir(folder.c_str(), 0777) != 0 && !IsFolder(folder))
            return false;
        drives_.Names().NoteCreated(folder);
    }
    return true;
}

void PosixFiles::CopyContent(const Text& from, const Text& to)
{
    const std::string source = HostPath(drives_, from);
    const std::string target = HostPath(drives_, to);
    const struct stat status = StatOf(from, source);
    struct stat old {};
    const bool isReplaced = stat(target.c_str(), &old) == 0;
    // Emptying the target first would empty the source.
    if (isReplaced && old.st_dev == status.st_dev && old.st_ino == status.st_ino)
        throw RunError(ErrorNumber::kPermissionDenied, to);

    const auto input = OpenInput(from);
    const auto output = OpenOutput(to);
    try {
        CopyBytes(*input, *output);
        output->Close();
    } catch (const RunError&) {
        // Half a file looks like a whole one. What is no file, such as a device, stays.
        if (!isReplaced || S_ISREG(old.st_mode)) {
            unlink(target.c_str());
            drives_.Names().NoteRemoved(target);
        }
        throw;
    }
    const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
    if (utimensat(AT_FDCWD, target.c_str(), times.data(), 0) != 0)
        Fail(to, target, Doing::Writing);
}

void PosixFiles::RemoveFile(const Text& path)
{
    const std::string hostPath = HostPath(drives_, path);
    if (IsFolder(hostPath))
        throw RunError(ErrorNumber::kPathFileAccess, path);
    RefuseReadOnly(path, hostPath);
    if (unlink(hostPath.c_str()) != 0)
        Fail(path, hostPath, Doing::Reading);
    drives_.Names().NoteRemoved(hostPath);
}

void PosixFiles::RemoveFolder(const Text& path)
{
    const std::string hostPath = HostPath(drives_, path);
    if (rmdir(hostPath.c_str()) != 0) {
        const Doing doing =
            errno == ENOTDIR && !IsFolder(hostPath) ? Doing::Writing : Doing::Reading;
        throw PosixFailure(errno, path, doing, false);
    }
    drives_.Names().NoteRemoved(hostPath);
}

void PosixFiles::Rename(const Text& from, const Text& to)
{
    const std::string source = HostPath(drives_, from);
    std::string target = HostPath(drives_, to);
    StatOf(from, source);
    // A new spelling of the same name: the look-up has found the old one.
    if (target == source)
        target = FolderOf(source) + "/" + to.substr(to.find_last_of("\\/") + 1);
    if (rename(source.c_str(), target.c_str()) == 0) {
        drives_.Names().NoteRemoved(source);
        drives_.Names().NoteCreated(target);
        return;
    }
    if (errno != EXDEV || IsFolder(source))
        Fail(to, target, Doing::Writing);
    CopyContent(from, to);
    RemoveFile(from);
}

void PosixFiles::Replace(const Text& from, const Text& to)
{
    const std::string source = HostPath(drives_, from);
    const std::string named = HostPath(drives_, to);
    struct stat old {};
    if (stat(named.c_str(), &old) != 0) {
        Rename(from, to);
        return FlushFolderOf(to, named);
    }
    RefuseReadOnly(to, named);
    if (!S_ISREG(old.st_mode))
        throw RunError(ErrorNumber::kPathFileAccess, to);
    // A link is followed to the file that the name means.
    const HostName real = BehindLinks(named);
    const struct stat own = StatOf(from, source);
    if (!real || access(named.c_str(), W_OK) != 0 || !TakesOver(source, own, old) ||
        rename(source.c_str(), real.get()) != 0)
        Fail(to, named, Doing::Writing);
    drives_.Names().NoteRemoved(source);
    FlushFolderOf(to, real.get());
}

void PosixFiles::LinkOrCopy(const Text& path, const Text& second)
{
    const std::string hostPath = HostPath(drives_, path);
    const std::string target = HostPath(drives_, second);
    if (link(hostPath.c_str(), target.c_str()) == 0)
        return drives_.Names().NoteCreated(target);
    if (errno == EEXIST)
        Fail(second, target, Doing::Writing);
    const mode_t mode = StatOf(path, hostPath).st_mode & 07777U;
    CopyContent(path, second);
    if (chmod(target.c_str(), mode) != 0)
        Fail(second, target, Doing::Writing);
}

Text PosixFiles::RealPath(const Text& path) const
{
    const auto hostPath = drives_.ToHost(path);
    const HostName real = hostPath ? BehindLinks(*hostPath) : HostName(nullptr, free);
    return !real || *hostPath == real.get() ? path : drives_.ToWindows(real.get()).value_or(path);
}

void PosixFiles::SetModified(const Text& path, const LocalTime& time)
{
    const std::string hostPath = HostPath(drives_, path);
    const timespec moment{.tv_sec = MomentOf(time), .tv_nsec = 0};
    const std::array<timespec, 2> times{timespec{.tv_sec = 0, .tv_nsec = UTIME_OMIT}, moment};
    if (utimensat(AT_FDCWD, hostPath.c_str(), times.data(), 0) != 0)
        Fail(path, hostPath, Doing::Reading);
}

void PosixFiles::SetReadOnly(const Text& path, bool readOnly)
{
    const std::string hostPath = HostPath(drives_, path);
    const mode_t mode = StatOf(path, hostPath).st_mode & 07777;
    const mode_t changed = readOnly ? mode & ~kWriteBits : mode | S_IWUSR;
    if (chmod(hostPath.c_str(), changed) != 0)
        Fail(path, hostPath, Doing::Reading);
}

std::uint64_t PosixFiles::FreeSpace(const Text& folder) const
{
    const std::string hostPath = HostPath(drives_, folder);
    const auto space = FreeSpaceOf(hostPath);
    if (!space)
        throw PosixFailure(errno, folder, Doing::Reading, false);
    return *space;
}

std::optional<std::uint64_t> PosixFiles::SizeOf(const Text& folder) const
{
    const auto hostPath = drives_.ToHost(folder);
    return hostPath ? SizeOfDisk(*hostPath) : std::nullopt;
}

DriveKind PosixFiles::DriveType(const Text& root) const
{
    const auto hostPath = drives_.ToHost(root);
    if (!hostPath || !IsFolder(*hostPath))
        return DriveKind::NoRoot;
    // Windows keeps these two letters for floppy drives, whichever folder is mapped to one here.
    const bool isFloppyLetter = std::string_view("AaBb").find(root[0]) != std::string_view::npos;
    return isFloppyLetter ? DriveKind::Removable : KindOfDisk(*hostPath);
}

Text PosixFiles::GetVolumeName(const Text& root) const
{
    const auto hostPath = drives_.ToHost(root);
    return hostPath ? FirstCharacters(LabelOfDisk(*hostPath), kMaxVolumeNameLength) : Text();
}

} // namespace quillon
