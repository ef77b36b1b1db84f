#include "platform/win32/open_file.h"

#include "platform/win32/win_failure.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

// One call never moves more, so that its length fits a DWORD and a network drive takes it.
constexpr std::size_t kMaxChunkSize = 1024 * 1024;

OVERLAPPED At(std::uint64_t position)
{
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(position);
    place.OffsetHigh = static_cast<DWORD>(position >> 32U);
    return place;
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
    : file_(std::move(file)), path_(std::move(path))
{
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file_.Get(), &size))
        FailAsWindowsSays(path_);
    size_ = static_cast<std::uint64_t>(size.QuadPart);
}

std::size_t WinInputFile::Read(std::span<std::byte> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        OVERLAPPED place = At(position_);
        const auto wanted = static_cast<DWORD>(std::min(buffer.size() - filled, kMaxChunkSize));
        DWORD count = 0;
        if (!ReadFile(file_.Get(), buffer.data() + filled, wanted, &count, &place) &&
            GetLastError() != ERROR_HANDLE_EOF)
            FailAsWindowsSays(path_);
        if (count == 0)
            break;
        filled += count;
        position_ += count;
    }
    return filled;
}

WinOutputFile::WinOutputFile(FileHandle file, Text path)
    : file_(std::move(file)), path_(std::move(path))
{
}

void WinOutputFile::Write(std::span<const std::byte> bytes)
{
    WriteAt(position_, bytes);
    position_ += bytes.size();
}

void WinOutputFile::WriteAt(std::uint64_t position, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        OVERLAPPED place = At(position);
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMaxChunkSize));
        DWORD count = 0;
        if (!WriteFile(file_.Get(), bytes.data(), wanted, &count, &place))
            FailAsWindowsSays(path_);
        // Some disks say that they are full by taking less, and call that a success.
        if (count == 0)
            throw RunError(ErrorNumber::kDiskFull, path_);
        bytes = bytes.subspan(count);
        position += count;
    }
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
