// Locks that the system takes back when a program ends, be it killed. They lie on open files, so a
// lock file that is left over locks nobody out.
#pragma once

#include "platform/file_system.h"
#include "platform/posix/open_file.h"

#include <string>

namespace quillon {

// NoLocks: the disk knows none.
enum class LockResult { Taken, Busy, NoLocks };

LockResult TakeLock(const Descriptor& file, LockWait wait);

/// Whether the open file is still the one that the path names.
bool IsFileAt(const Descriptor& file, const std::string& hostPath);

/// Opens the file, which is made where it is missing; a link is not followed. A descriptor that is
/// not open leaves the reason in errno.
Descriptor OpenLockFile(const std::string& hostPath);

/// The lock file goes while the lock is still held, so that nobody else's is removed.
class PosixFileLock : public FileLock {
public:
    PosixFileLock(Descriptor file, std::string hostPath);
    ~PosixFileLock() override;
    PosixFileLock(const PosixFileLock&) = delete;
    PosixFileLock& operator=(const PosixFileLock&) = delete;

private:
    Descriptor file_;
    std::string hostPath_;
};

} // namespace quillon
