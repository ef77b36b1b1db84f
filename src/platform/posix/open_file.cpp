#include "platform/posix/open_file.h"

#include "platform/posix/posix_error.h"

#include <cerrno>
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

PosixOutputFile::PosixOutputFile(Descriptor file, Text path)
    : file_(std::move(file)), path_(std::move(path))
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

void PosixOutputFile::Close()
{
    // Disks across a network tell of a full disk only here. The descriptor is gone in any case.
    if (file_.IsOpen() && close(file_.Release()) != 0 && errno != EINTR)
        throw PosixFailure(errno, path_, Doing::Writing, true);
}

} // namespace quillon
