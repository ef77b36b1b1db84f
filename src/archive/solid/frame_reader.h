// A frame of Zstandard (RFC 8878) in a file, unpacked byte after byte.
#pragma once

#include "archive/solid/frame_decoding.h"
#include "archive/zip_records.h"
#include "platform/file_system.h"

namespace quillon {

class FrameReader {
public:
    /// Throws what the format in question has for a damaged file; `what` is a literal.
    using Refuse = void (*)(const char* what);

    /// The file has to live as long.
    FrameReader(InputFile& file, const FrameDecoding& decoding, int maxWindowLog, Refuse refuse);
    ~FrameReader();
    FrameReader(const FrameReader&) = delete;
    FrameReader& operator=(const FrameReader&) = delete;

    /// Begins the frame at this place of the file; one that was begun before is left.
    void Open(std::uint64_t position, std::uint64_t size);
    /// Fills all of `bytes`. Refuses a frame that ends before.
    void Read(std::span<std::byte> bytes);
    /// Refuses where there is more in the frame, or after it.
    void Finish();

private:
    bool HasInput() const { return inputBegin_ < inputEnd_ || left_ > 0; }
    void Refill();
    std::size_t Decode(std::span<std::byte> output);

    InputFile& file_;
    const FrameDecoding decoding_;
    const Refuse refuse_;
    void* const decoder_;
    std::uint64_t position_ = 0; // of what is read next from the file
    std::uint64_t left_ = 0;
    zip::Bytes buffer_;
    std::size_t inputBegin_ = 0;
    std::size_t inputEnd_ = 0;
    bool isComplete_ = false;
};

} // namespace quillon
