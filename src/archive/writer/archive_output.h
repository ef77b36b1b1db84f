// The archive on its way to the disk: small writes are gathered, since an archive has several for
// each of many thousand files.
#pragma once

#include "archive/zip_records.h"
#include "platform/file_system.h"

#include <cstdint>
#include <span>

namespace quillon {

class ArchiveOutput {
public:
    explicit ArchiveOutput(OutputFile& file);

    std::uint64_t Position() const { return written_ + pending_.size(); }
    void Write(std::span<const std::byte> bytes);
    /// Over bytes that were written before.
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes);
    void Flush();

private:
    OutputFile& file_;
    std::uint64_t written_;
    zip::Bytes pending_;
};

} // namespace quillon
