#include "platform/posix/file_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillon {

LockResult TakeLock(const Descriptor& file, LockWait wait)
{
    const int how = wait == LockWait::None ? LOCK_EX | LOCK_NB : LOCK_EX;
    int result = flock(file.Number(), how);
    while (result != 0 && errno == EINTR)
        result = flock(file.Number(), how);
    if (result == 0)
        return LockResult::Taken;
    return errno == EWOULDBLOCK ? LockResult::Busy : LockResult::NoLocks;
}

bool IsFileAt(const Descriptor& file, const std::string& hostPath)
{
    struct stat own {};
    struct stat there {};
    return fstat(file.Number(), &own) == 0 && lstat(hostPath.c_str(), &there) == 0 &&
           own.st_dev == there.st_dev && own.st_ino == there.st_ino;
}

Descriptor OpenLockFile(const std::string& hostPath)
{
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    for (;;) {
        // Disks across a network lock for writing only what is open for writing.
        Descriptor there(open(hostPath.c_str(), O_RDWR | kFlags));
        if (there.IsOpen())
            return there;
        if (errno == EACCES)
            return Descriptor(open(hostPath.c_str(), O_RDONLY | kFlags));
        if (errno != ENOENT)
            return there;
        Descriptor made(open(hostPath.c_str(), O_RDWR | kFlags | O_CREAT | O_EXCL, 0666));
        if (made.IsOpen() || errno != EEXIST)
            return made;
    }
}

PosixFileLock::PosixFileLock(Descriptor file, std::string hostPath)
    : file_(std::move(file)), hostPath_(std::move(hostPath))
{
}

PosixFileLock::~PosixFileLock()
{
    if (IsFileAt(file_, hostPath_))
        unlink(hostPath_.c_str());
}

} // namespace quillon
