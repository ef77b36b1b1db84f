#include "archive/writer/zip_headers.h"

#include <algorithm>
#include <utility>

namespace quillon {

using namespace zip;

namespace {

// Format version 6.3 brought UTF-8; the upper byte 0 says that attributes are those of Windows.
constexpr std::uint16_t kVersionMadeBy = 63;
constexpr std::uint32_t kArchiveAttribute = 0x20;

// Deflate adds at most five bytes to each 65,535 that it can't shrink; a thousandth is far more.
constexpr std::uint64_t kMaxGrowthPart = 1000;
constexpr std::uint64_t kMaxGrowthFixed = 65536;

std::uint32_t Short32(std::uint64_t number)
{
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(number, kFull32));
}

std::uint16_t Short16(std::uint64_t number)
{
    return static_cast<std::uint16_t>(std::min<std::uint64_t>(number, kFull16));
}

std::optional<std::uint64_t> WhereFull(std::uint64_t number)
{
    return number >= kFull32 ? std::optional(number) : std::nullopt;
}

void AppendText(Bytes& bytes, const Text& text)
{
    const auto all = std::as_bytes(std::span(text));
    bytes.insert(bytes.end(), all.begin(), all.end());
}

Bytes ExtraFields(const EntryRecord& entry, const Zip64Extra& zip64)
{
    Bytes bytes;
    AppendExtra(bytes, zip64);
    if (entry.isEncrypted)
        AppendExtra(bytes, AesExtra{.method = entry.method});
    return bytes;
}

std::uint16_t VersionFor(const EntryRecord& entry, bool hasZip64)
{
    std::uint16_t version =
        entry.method == Method::kStored ? VersionNeeded::kStored : VersionNeeded::kDeflated;
    if (hasZip64)
        version = VersionNeeded::kZip64;
    return entry.isEncrypted ? VersionNeeded::kAes : version;
}

/// The fields that both headers of an entry have.
template <class Header>
void FillCommonFields(Header& header, const EntryRecord& entry)
{
    header.flags =
        static_cast<std::uint16_t>(Flag::kUtf8 | (entry.isEncrypted ? Flag::kEncrypted : 0));
    header.method = entry.isEncrypted ? Method::kAes : entry.method;
    header.time = DosTime(entry.modified);
    header.date = DosDate(entry.modified);
    header.crc = entry.isEncrypted ? 0 : entry.crc;
    header.nameLength = Short16(entry.name.size());
}

} // namespace

bool MayNeedZip64(std::uint64_t size)
{
    return size + size / kMaxGrowthPart + kMaxGrowthFixed >= kFull32;
}

Bytes LocalHeaderBytes(const EntryRecord& entry)
{
    Zip64Extra zip64;
    if (entry.reservesZip64)
        zip64 = {.size = entry.size, .packedSize = entry.packedSize};
    const Bytes extra = ExtraFields(entry, zip64);
    LocalHeader header;
    FillCommonFields(header, entry);
    header.versionNeeded = VersionFor(entry, entry.reservesZip64);
    header.size = entry.reservesZip64 ? kFull32 : Short32(entry.size);
    header.packedSize = entry.reservesZip64 ? kFull32 : Short32(entry.packedSize);
    header.extraLength = Short16(extra.size());
    Bytes bytes;
    AppendRecord(bytes, header);
    AppendText(bytes, entry.name);
    bytes.insert(bytes.end(), extra.begin(), extra.end());
    return bytes;
}

namespace {

void AppendCentralHeader(Bytes& bytes, const EntryRecord& entry)
{
    const Zip64Extra zip64{.size = WhereFull(entry.size),
                           .packedSize = WhereFull(entry.packedSize),
                           .headerPosition = WhereFull(entry.headerPosition)};
    const Bytes extra = ExtraFields(entry, zip64);
    CentralHeader header;
    FillCommonFields(header, entry);
    header.versionMadeBy = kVersionMadeBy;
    header.versionNeeded = VersionFor(entry, entry.reservesZip64 || FieldsSize(zip64) > 0);
    header.size = Short32(entry.size);
    header.packedSize = Short32(entry.packedSize);
    header.headerPosition = Short32(entry.headerPosition);
    header.extraLength = Short16(extra.size());
    header.commentLength = Short16(entry.comment.size());
    header.externalAttributes = kArchiveAttribute;
    AppendRecord(bytes, header);
    AppendText(bytes, entry.name);
    bytes.insert(bytes.end(), extra.begin(), extra.end());
    AppendText(bytes, entry.comment);
}

} // namespace

std::size_t DirectoryWriter::Add(EntryRecord entry)
{
    entries_.push_back(std::move(entry));
    return entries_.size() - 1;
}

void DirectoryWriter::ChangeComment(std::size_t entry, Text comment)
{
    entries_[entry].comment = std::move(comment);
}

Bytes DirectoryWriter::Finish(std::uint64_t position)
{
    Bytes bytes;
    for (const EntryRecord& entry : entries_)
        AppendCentralHeader(bytes, entry);
    const std::uint64_t size = bytes.size();
    const std::uint64_t count = entries_.size();
    if (count >= kFull16 || size >= kFull32 || position >= kFull32) {
        AppendRecord(bytes, Zip64EndRecord{.versionMadeBy = kVersionMadeBy,
                                           .versionNeeded = VersionNeeded::kZip64,
                                           .entriesOnDisk = count,
                                           .entries = count,
                                           .directorySize = size,
                                           .directoryPosition = position});
        AppendRecord(bytes, Zip64Locator{.endRecordPosition = position + size});
    }
    AppendRecord(bytes, EndRecord{.entriesOnDisk = Short16(count),
                                  .entries = Short16(count),
                                  .directorySize = Short32(size),
                                  .directoryPosition = Short32(position)});
    return bytes;
}

} // namespace quillon
