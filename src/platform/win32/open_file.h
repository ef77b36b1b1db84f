// A file that is open for reading or for writing.
#pragma once

#include "platform/file_system.h"

#include <windows.h>

namespace quillon {

/// Others may read, write and remove the file while it is open.
inline constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class FileHandle {
public:
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    ~FileHandle() { Close(); }
    FileHandle(FileHandle&& other) noexcept;
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }
    /// False when Windows reports a failure of an earlier write only now.
    bool Close();

private:
    HANDLE handle_;
};

class WinInputFile : public InputFile {
public:
    /// Takes over the handle. Throws as `FileSystem::OpenInput` does.
    WinInputFile(FileHandle file, Text path);

    std::size_t Read(std::span<std::byte> buffer) override;
    void Seek(std::uint64_t position) override;
    std::uint64_t Size() const override { return size_; }

private:
    FileHandle file_;
    Text path_;
    std::uint64_t size_ = 0;
};

class WinOutputFile : public OutputFile {
public:
    WinOutputFile(FileHandle file, Text path);

    void Write(std::span<const std::byte> bytes) override;
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override;
    std::uint64_t Position() const override { return position_; }
    void Flush() override;
    void Close() override;

private:
    FileHandle file_;
    Text path_;
    std::uint64_t position_ = 0;
};

} // namespace quillon
