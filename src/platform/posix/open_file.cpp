#include "platform/posix/open_file.h"

#include "platform/posix/posix_error.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace quillon {

Descriptor::~Descriptor()
{
    if (IsOpen())
        close(number_);
}

int Descriptor::Release()
{
    return std::exchange(number_, -1);
}

PosixInputFile::PosixInputFile(Descriptor file, std::uint64_t size, Text path)
    : file_(std::move(file)), size_(size), path_(std::move(path))
{
}

std::size_t PosixInputFile::Read(std::span<std::byte> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const ssize_t count = pread(file_.Number(), buffer.data() + filled, buffer.size() - filled,
                                    static_cast<off_t>(position_));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw PosixFailure(errno, path_, Doing::Reading, true);
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
        position_ += static_cast<std::uint64_t>(count);
    }
    return filled;
}

PosixOutputFile::PosixOutputFile(Descriptor file, Text path, Held held)
    : file_(std::move(file)), path_(std::move(path)), held_(held)
{
}

void PosixOutputFile::Write(std::span<const std::byte> bytes)
{
    WriteAt(position_, bytes);
    position_ += bytes.size();
}

void PosixOutputFile::WriteAt(std::uint64_t position, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count =
            pwrite(file_.Number(), bytes.data(), bytes.size(), static_cast<off_t>(position));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw PosixFailure(errno, path_, Doing::Writing, true);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        position += static_cast<std::uint64_t>(count);
    }
}

void PosixOutputFile::Flush()
{
    // A disk that can't be waited for has no cache to lose.
    if (fsync(file_.Number()) != 0 && errno != EINVAL)
        throw PosixFailure(errno, path_, Doing::Writing, true);
}

void PosixOutputFile::Close()
{
    if (!file_.IsOpen())
        return;
    // Disks across a network report a full disk only when a descriptor is closed, any of the
    // file's. The one given here is gone in any case.
    const int closing =
        held_ == Held::Yes ? fcntl(file_.Number(), F_DUPFD_CLOEXEC, 0) : file_.Release();
    if (close(closing) != 0 && errno != EINTR)
        throw PosixFailure(errno, path_, Doing::Writing, true);
}

} // namespace quillon
