// Sources that change or fail while they are read, or that are far larger than memory.
#pragma once

#include "platform/run_error.h"
#include "support/memory_host.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>

namespace quillon::test {

/// A file whose bytes are computed, so that its size costs nothing.
class MadeUpInput : public InputFile {
public:
    using Fill = std::function<void(std::uint64_t position, std::span<std::byte> bytes)>;

    MadeUpInput(std::uint64_t size, std::uint64_t claimedSize, Fill fill)
        : size_(size), claimedSize_(claimedSize), fill_(std::move(fill))
    {
    }

    std::size_t Read(std::span<std::byte> buffer) override
    {
        const std::uint64_t left = position_ < size_ ? size_ - position_ : 0;
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size()));
        fill_(position_, buffer.first(count));
        position_ += count;
        return count;
    }
    void Seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t Size() const override { return claimedSize_; }

private:
    std::uint64_t size_;
    std::uint64_t claimedSize_;
    Fill fill_;
    std::uint64_t position_ = 0;
};

inline void FillWithZeros(std::uint64_t, std::span<std::byte> bytes)
{
    std::memset(bytes.data(), 0, bytes.size());
}

/// Text-like bytes, different at each place.
inline void FillWithText(std::uint64_t position, std::span<std::byte> bytes)
{
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::uint64_t mixed = ((position + i) * 0x9E3779B97F4A7C15U) >> 40U;
        bytes[i] = std::byte{static_cast<unsigned char>('a' + (mixed ^ (mixed >> 7U)) % 16)};
    }
}

/// A machine on which some files are opened as the test says.
class TrickyFiles : public MemoryFiles {
public:
    using Open = std::function<std::unique_ptr<InputFile>()>;

    /// `size` is what the folder says about the file.
    void PutTricky(const Text& path, std::uint64_t size, Open open)
    {
        Put(path, "");
        At(path).status.size = size;
        tricks_[LowerCase(path)] = std::move(open);
    }

    std::unique_ptr<InputFile> OpenInput(const Text& path) const override
    {
        const auto trick = tricks_.find(LowerCase(path));
        return trick == tricks_.end() ? MemoryFiles::OpenInput(path) : trick->second();
    }

private:
    std::map<Text, Open> tricks_;
};

/// An output on the real disk in which zeros take no room.
class SparseOutput : public OutputFile {
public:
    explicit SparseOutput(const std::string& path) : file_(path, std::ios::binary) {}

    void Write(std::span<const std::byte> bytes) override
    {
        WriteAt(position_, bytes);
        position_ += bytes.size();
    }
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override
    {
        if (std::ranges::all_of(bytes, [](std::byte byte) { return byte == std::byte{0}; }))
            return;
        file_.seekp(static_cast<std::streamoff>(position));
        file_.write(reinterpret_cast<const char*>(bytes.data()),
                    static_cast<std::streamsize>(bytes.size()));
    }
    std::uint64_t Position() const override { return position_; }
    void Close() override { file_.close(); }

private:
    std::ofstream file_;
    std::uint64_t position_ = 0;
};

/// A file of the real disk.
class RealInput : public InputFile {
public:
    explicit RealInput(const std::string& path)
        : file_(path, std::ios::binary), size_(std::filesystem::file_size(path))
    {
    }

    std::size_t Read(std::span<std::byte> buffer) override
    {
        file_.read(reinterpret_cast<char*>(buffer.data()),
                   static_cast<std::streamsize>(buffer.size()));
        return static_cast<std::size_t>(file_.gcount());
    }
    void Seek(std::uint64_t position) override
    {
        file_.clear();
        file_.seekg(static_cast<std::streamoff>(position));
    }
    std::uint64_t Size() const override { return size_; }

private:
    std::ifstream file_;
    std::uint64_t size_;
};

} // namespace quillon::test
