// Locks that the system releases when a program ends, also when it is killed. They are on open
// files, so a lock file that is left over keeps no program out.
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

/// The lock file is removed while the lock is still held, so that no other program's lock file is
/// removed.
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
