// Open files on a POSIX system, held by their descriptors.
#pragma once

#include "platform/file_system.h"

#include <string>

namespace quillon {

/// A descriptor that is closed when its holder goes.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }
    int Release();

private:
    int number_;
};

class PosixInputFile : public InputFile {
public:
    /// `path` is named in failures.
    PosixInputFile(Descriptor file, std::uint64_t size, Text path);

    std::size_t Read(std::span<std::byte> buffer) override;
    void Seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t Size() const override { return size_; }

private:
    Descriptor file_;
    std::uint64_t size_;
    std::uint64_t position_ = 0;
    Text path_;
};

class PosixOutputFile : public OutputFile {
public:
    /// A file that is held stays open until the object is destroyed, since closing it releases its
    /// lock.
    enum class Held { No, Yes };

    PosixOutputFile(Descriptor file, Text path, Held held = Held::No);

    void Write(std::span<const std::byte> bytes) override;
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override;
    std::uint64_t Position() const override { return position_; }
    void Flush() override;
    void Close() override;

private:
    Descriptor file_;
    std::uint64_t position_ = 0;
    Text path_;
    Held held_;
};

} // namespace quillon
