// The work on one piece of a source, as each thread does it: read, checksum, deflate, encrypt.
#pragma once

#include "archive/writer/compression_result.h"
#include "archive/writer/deflate_block.h"
#include "archive/writer/entry_salt.h"
#include "archive/zip_records.h"
#include "platform/file_system.h"

#include <cstdint>
#include <functional>

namespace quillon {

enum class Packing {
    Stored,
    DeflatedIfSmaller, // a source that is one block
    DeflatedInParts    // a block of a larger source
};

struct SourceBlock {
    const Text* path = nullptr;
    const Text* name = nullptr; // of the entry
    std::uint64_t fileSize = 0;
    std::uint64_t begin = 0;
    std::size_t length = 0;
    Packing packing = Packing::Stored;

    bool IsFirst() const { return begin == 0; }
    bool IsLast() const { return begin + length == fileSize; }
    bool IsWhole() const { return IsFirst() && IsLast(); }
};

struct PackedBlock {
    zip::Bytes bytes;
    std::uint32_t crc = 0; // of what was read
    std::uint16_t method = 0;
};

/// What one thread needs to pack blocks.
class BlockPacker {
public:
    /// `salts` and `password` are those of an encrypted archive, else null and empty. A source that
    /// is one block comes back encrypted, a part of a larger one does not, since its key depends on
    /// the parts before it.
    BlockPacker(const FileSystem& files, const SaltMaker* salts, const Text& password)
        : files_(files), salts_(salts), password_(password)
    {
    }

    PackedBlock operator()(const SourceBlock& block);

private:
    void Encrypt(const SourceBlock& block, PackedBlock& packed) const;

    const FileSystem& files_;
    const SaltMaker* salts_;
    const Text& password_;
    BlockDeflater deflater_;
};

/// Runs what reads a source, with the failures of the machine as results.
void ReadingSource(const Text& path, const std::function<void()>& work);

/// Opens a source; fails where it no longer has this size.
std::unique_ptr<InputFile> OpenSource(const FileSystem& files, const Text& path,
                                      std::uint64_t size);

/// Fills all of `bytes`; fails where the source ends before.
void ReadSource(InputFile& file, const Text& path, std::span<std::byte> bytes);

} // namespace quillon
