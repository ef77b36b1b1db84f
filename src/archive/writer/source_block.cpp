#include "archive/writer/source_block.h"

#include "platform/run_error.h"

#include <libdeflate.h>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

namespace {

void RequireEnd(InputFile& file, const Text& path)
{
    std::array<std::byte, 1> more{};
    if (file.Read(more) > 0)
        throw CompressionFailure(CompressionResult::kSourceChanged, path);
}

zip::Bytes ReadBlock(const FileSystem& files, const SourceBlock& block)
{
    zip::Bytes raw(block.length);
    ReadingSource(*block.path, [&] {
        const auto file = OpenSource(files, *block.path, block.fileSize);
        if (block.begin > 0)
            file->Seek(block.begin);
        ReadSource(*file, *block.path, raw);
        if (block.IsLast())
            RequireEnd(*file, *block.path);
    });
    return raw;
}

} // namespace

void ReadingSource(const Text& path, const std::function<void()>& work)
{
    try {
        work();
    } catch (const RunError& error) {
        throw CompressionFailure(ResultOfReading(error), path);
    }
}

std::unique_ptr<InputFile> OpenSource(const FileSystem& files, const Text& path, std::uint64_t size)
{
    auto file = files.OpenInput(path);
    if (file->Size() != size)
        throw CompressionFailure(CompressionResult::kSourceChanged, path);
    return file;
}

void ReadSource(InputFile& file, const Text& path, std::span<std::byte> bytes)
{
    while (!bytes.empty()) {
        const std::size_t got = file.Read(bytes);
        if (got == 0)
            throw CompressionFailure(CompressionResult::kSourceChanged, path);
        bytes = bytes.subspan(got);
    }
}

PackedBlock BlockPacker::operator()(const SourceBlock& block)
{
    PackedBlock packed{ReadBlock(files_, block), 0, zip::Method::kStored};
    packed.crc = libdeflate_crc32(0, packed.bytes.data(), packed.bytes.size());
    std::span<const std::byte> deflated;
    if (block.packing == Packing::DeflatedIfSmaller)
        deflated = deflater_.DeflateIfSmaller(packed.bytes);
    if (block.packing == Packing::DeflatedInParts)
        deflated =
            deflater_.DeflatePart(packed.bytes, block.IsLast() ? BlockDeflater::Place::AtTheEnd
                                                               : BlockDeflater::Place::InTheMiddle);
    if (!deflated.empty()) {
        packed.bytes.assign(deflated.begin(), deflated.end());
        packed.method = zip::Method::kDeflated;
    }
    if (salts_ != nullptr && block.IsWhole())
        Encrypt(block, packed);
    return packed;
}

void BlockPacker::Encrypt(const SourceBlock& block, PackedBlock& packed) const
{
    const zip::Salt salt = salts_->Make({*block.name, block.fileSize, packed.method}, packed.bytes);
    zip::EntryCipher cipher(password_, salt);
    cipher.Encrypt(packed.bytes);
    const zip::Authentication authentication = cipher.Finish();
    zip::Bytes all;
    all.reserve(packed.bytes.size() + zip::kEncryptionSize);
    all.insert(all.end(), salt.begin(), salt.end());
    all.insert(all.end(), cipher.PasswordVerifier().begin(), cipher.PasswordVerifier().end());
    all.insert(all.end(), packed.bytes.begin(), packed.bytes.end());
    all.insert(all.end(), authentication.begin(), authentication.end());
    packed.bytes = std::move(all);
}

} // namespace quillon
