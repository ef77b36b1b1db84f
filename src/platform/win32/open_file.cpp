#include "platform/win32/open_file.h"

#include "platform/win32/win_failure.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

// One call never moves more, so that its length fits a DWORD and a network drive takes it.
constexpr std::size_t kMaxChunkSize = 1024 * 1024;

// Where the file then is.
std::uint64_t MoveTo(HANDLE file, std::uint64_t distance, DWORD origin, const Text& path)
{
    LARGE_INTEGER place;
    place.QuadPart = static_cast<LONGLONG>(distance);
    if (!SetFilePointerEx(file, place, &place, origin))
        FailAsWindowsSays(path);
    return static_cast<std::uint64_t>(place.QuadPart);
}

} // namespace

FileHandle::FileHandle(FileHandle&& other) noexcept
    : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE))
{
}

bool FileHandle::Close()
{
    return !IsOpen() || CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
}

WinInputFile::WinInputFile(FileHandle file, Text path)
    : file_(std::move(file)), path_(std::move(path)), size_(MoveTo(file_.Get(), 0, FILE_END, path_))
{
    MoveTo(file_.Get(), 0, FILE_BEGIN, path_);
}

void WinInputFile::Seek(std::uint64_t position)
{
    MoveTo(file_.Get(), position, FILE_BEGIN, path_);
}

std::size_t WinInputFile::Read(std::span<std::byte> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const auto wanted = static_cast<DWORD>(std::min(buffer.size() - filled, kMaxChunkSize));
        DWORD count = 0;
        if (!ReadFile(file_.Get(), buffer.data() + filled, wanted, &count, nullptr))
            FailAsWindowsSays(path_);
        if (count == 0)
            break;
        filled += count;
    }
    return filled;
}

WinOutputFile::WinOutputFile(FileHandle file, Text path)
    : file_(std::move(file)), path_(std::move(path))
{
}

// At the file's own place: Wine reports the end of each call that names one to its server.
void WinOutputFile::Write(std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMaxChunkSize));
        DWORD count = 0;
        const bool isWritten = WriteFile(file_.Get(), bytes.data(), wanted, &count, nullptr) != 0;
        // Some disks say that they are full by taking less, and call that a success.
        if (isWritten && count == 0)
            SetLastError(ERROR_DISK_FULL);
        if (!isWritten || count == 0)
            FailAsWindowsSays(path_);
        bytes = bytes.subspan(count);
        position_ += count;
    }
}

void WinOutputFile::WriteAt(std::uint64_t position, std::span<const std::byte> bytes)
{
    MoveTo(file_.Get(), position, FILE_BEGIN, path_);
    Write(bytes);
    position_ -= bytes.size();
    MoveTo(file_.Get(), position_, FILE_BEGIN, path_);
}

void WinOutputFile::Flush()
{
    if (!FlushFileBuffers(file_.Get()))
        FailAsWindowsSays(path_);
}

void WinOutputFile::Close()
{
    if (!file_.Close())
        FailAsWindowsSays(path_);
}

} // namespace quillon
