// Files, folders and drives. Paths are Windows paths on every system; only an implementation knows
// where they lie on this machine.
//
// Failures are `RunError`s: 53 file not found, 76 path (a folder on the way) not found, 70
// permission denied, 75 path/file access (a folder where a file is wanted, a read-only disk), 61
// disk full, 52 a name that this system cannot hold, 57 any other failure of the device.
#pragma once

#include "helpers/date_text.h"
#include "helpers/text.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace quillon {

struct FileStatus {
    std::uint64_t size = 0;
    LocalTime modified;
    bool isFolder = false;
    bool isReadOnly = false;
    bool isHidden = false;
    bool isArchive = false;
    bool isSystem = false;
    // The same on every way that leads to a file or folder, links included; 0 where none is
    // reported.
    std::uint64_t identity = 0;
};

struct FolderEntry {
    Text name;
    FileStatus status;
};

class InputFile {
public:
    virtual ~InputFile() = default;

    /// Fills as much of `buffer` as there is left; 0 at the end of the file.
    virtual std::size_t Read(std::span<std::byte> buffer) = 0;
    virtual void Seek(std::uint64_t position) = 0;
    virtual std::uint64_t Size() const = 0;
};

class OutputFile {
public:
    /// An output that is destroyed without `Close` leaves what was written so far.
    virtual ~OutputFile() = default;

    virtual void Write(std::span<const std::byte> bytes) = 0;
    /// Overwrites bytes that were written before; the end of the file stays where it is.
    virtual void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) = 0;
    virtual std::uint64_t Position() const = 0;
    /// Waits until what was written is on the disk itself, where a power failure leaves it.
    virtual void Flush() {}
    /// Ends the writing; a failure that shows only now is thrown from here.
    virtual void Close() = 0;
};

/// Keeps other programs out while it exists. The system releases it when its program ends, in
/// whatever way.
class FileLock {
public:
    virtual ~FileLock() = default;
};

enum class LockWait { None, UntilFree };

enum class DriveKind { Unknown = 0, NoRoot = 1, Removable = 2, Fixed = 3, Remote = 4, Cd = 5 };

class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual bool FileExists(const Text& path) const = 0;
    virtual bool DirExists(const Text& path) const = 0;
    /// Throws 53 or 76 where nothing exists at the path.
    virtual FileStatus Status(const Text& path) const = 0;
    /// What is in a folder, without "." and "..", in byte order of the names.
    virtual std::vector<FolderEntry> List(const Text& folder) const = 0;

    virtual std::unique_ptr<InputFile> OpenInput(const Text& path) const = 0;
    /// An existing file is emptied.
    virtual std::unique_ptr<OutputFile> OpenOutput(const Text& path) = 0;
    /// A file where nothing exists yet; nothing comes back where something does. It is this
    /// program's for as long as the output lives, also after `Close`.
    virtual std::unique_ptr<OutputFile> OpenNew(const Text& path)
    {
        return FileExists(path) || DirExists(path) ? nullptr : OpenOutput(path);
    }
    /// Removes a file of `OpenNew` that the program which made it can no longer remove, because it
    /// was killed. Everything else stays, and nothing is thrown.
    virtual void RemoveAbandoned(const Text& /*path*/) {}
    /// Creates the lock file and locks it; the file is removed with the lock. Nothing comes back
    /// where another program has the lock. On a disk without locks the lock has no effect.
    virtual std::unique_ptr<FileLock> Lock(const Text& /*path*/, LockWait)
    {
        return std::make_unique<FileLock>();
    }

    /// Creates the folder with all missing parents; false on failure, true also where it exists.
    virtual bool DirCreate(const Text& path) = 0;
    /// Content and modification date; an existing target is replaced.
    virtual void CopyContent(const Text& from, const Text& to) = 0;
    virtual void RemoveFile(const Text& path) = 0;
    /// An empty folder only.
    virtual void RemoveFolder(const Text& path) = 0;
    virtual void Rename(const Text& from, const Text& to) = 0;
    /// Puts a finished file in the place of another on the same disk; at no time is the file half
    /// written or missing. Rights, owner and links of the one that was there are kept. Throws where
    /// they can't be, and both files are then as they were.
    virtual void Replace(const Text& from, const Text& to) { Rename(from, to); }
    /// The file under a second name as well, which must be free; a copy where the disk has no
    /// links.
    virtual void LinkOrCopy(const Text& path, const Text& second) { CopyContent(path, second); }
    /// Where the file is that a link leads to; the path itself where there is no link.
    virtual Text RealPath(const Text& path) const { return path; }
    virtual void SetModified(const Text& path, const LocalTime& time) = 0;
    virtual void SetReadOnly(const Text& path, bool readOnly) = 0;

    /// Bytes that can still be written to the disk that holds this folder.
    virtual std::uint64_t FreeSpace(const Text& folder) const = 0;
    virtual DriveKind DriveType(const Text& root) const = 0;
    virtual Text GetVolumeName(const Text& root) const = 0;
    /// The short form of a path where the system has one, else the path as it is.
    virtual Text ShortPath(const Text& path) const = 0;
};

} // namespace quillon
