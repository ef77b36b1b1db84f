// The records that a ZIP file is made of, each described once: writer and reader both walk
// `EachField`, so they cannot drift apart. All numbers are little-endian. Names, extra fields and
// comments stand after the fixed part of a record, which holds their lengths.
#pragma once

#include "helpers/date_text.h"
#include "helpers/little_endian.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quillon::zip {

using Bytes = std::vector<std::byte>;

// A field at its greatest value says that the true one is in the ZIP64 records.
inline constexpr std::uint16_t kFull16 = 0xFFFF;
inline constexpr std::uint32_t kFull32 = 0xFFFFFFFF;

namespace Flag {
inline constexpr std::uint16_t kEncrypted = 0x0001;
inline constexpr std::uint16_t kSizesFollowData = 0x0008;
inline constexpr std::uint16_t kPatchData = 0x0020;
inline constexpr std::uint16_t kStrongEncryption = 0x0040;
inline constexpr std::uint16_t kUtf8 = 0x0800;
inline constexpr std::uint16_t kMaskedHeader = 0x2000;
} // namespace Flag

namespace Method {
inline constexpr std::uint16_t kStored = 0;
inline constexpr std::uint16_t kDeflated = 8;
inline constexpr std::uint16_t kAes = 99;
} // namespace Method

// What a program must be able to do, as the version of the format that brought it.
namespace VersionNeeded {
inline constexpr std::uint16_t kStored = 10;
inline constexpr std::uint16_t kDeflated = 20;
inline constexpr std::uint16_t kZip64 = 45;
inline constexpr std::uint16_t kAes = 51;
} // namespace VersionNeeded

struct LocalHeader {
    static constexpr std::uint32_t kSignature = 0x04034B50;

    std::uint16_t versionNeeded = 0;
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint16_t time = 0;
    std::uint16_t date = 0;
    std::uint32_t crc = 0;
    std::uint32_t packedSize = 0;
    std::uint32_t size = 0;
    std::uint16_t nameLength = 0;
    std::uint16_t extraLength = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.versionNeeded);
        visit(self.flags);
        visit(self.method);
        visit(self.time);
        visit(self.date);
        visit(self.crc);
        visit(self.packedSize);
        visit(self.size);
        visit(self.nameLength);
        visit(self.extraLength);
    }
};

struct CentralHeader {
    static constexpr std::uint32_t kSignature = 0x02014B50;

    std::uint16_t versionMadeBy = 0;
    std::uint16_t versionNeeded = 0;
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint16_t time = 0;
    std::uint16_t date = 0;
    std::uint32_t crc = 0;
    std::uint32_t packedSize = 0;
    std::uint32_t size = 0;
    std::uint16_t nameLength = 0;
    std::uint16_t extraLength = 0;
    std::uint16_t commentLength = 0;
    std::uint16_t disk = 0;
    std::uint16_t internalAttributes = 0;
    std::uint32_t externalAttributes = 0;
    std::uint32_t headerPosition = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.versionMadeBy);
        visit(self.versionNeeded);
        visit(self.flags);
        visit(self.method);
        visit(self.time);
        visit(self.date);
        visit(self.crc);
        visit(self.packedSize);
        visit(self.size);
        visit(self.nameLength);
        visit(self.extraLength);
        visit(self.commentLength);
        visit(self.disk);
        visit(self.internalAttributes);
        visit(self.externalAttributes);
        visit(self.headerPosition);
    }
};

struct EndRecord {
    static constexpr std::uint32_t kSignature = 0x06054B50;

    std::uint16_t disk = 0;
    std::uint16_t directoryDisk = 0;
    std::uint16_t entriesOnDisk = 0;
    std::uint16_t entries = 0;
    std::uint32_t directorySize = 0;
    std::uint32_t directoryPosition = 0;
    std::uint16_t commentLength = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.disk);
        visit(self.directoryDisk);
        visit(self.entriesOnDisk);
        visit(self.entries);
        visit(self.directorySize);
        visit(self.directoryPosition);
        visit(self.commentLength);
    }
};

struct Zip64EndRecord {
    static constexpr std::uint32_t kSignature = 0x06064B50;
    // `recordSize` does not count the signature and itself.
    static constexpr std::uint64_t kLeadSize = 12;

    std::uint64_t recordSize = 44;
    std::uint16_t versionMadeBy = 0;
    std::uint16_t versionNeeded = 0;
    std::uint32_t disk = 0;
    std::uint32_t directoryDisk = 0;
    std::uint64_t entriesOnDisk = 0;
    std::uint64_t entries = 0;
    std::uint64_t directorySize = 0;
    std::uint64_t directoryPosition = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.recordSize);
        visit(self.versionMadeBy);
        visit(self.versionNeeded);
        visit(self.disk);
        visit(self.directoryDisk);
        visit(self.entriesOnDisk);
        visit(self.entries);
        visit(self.directorySize);
        visit(self.directoryPosition);
    }
};

struct Zip64Locator {
    static constexpr std::uint32_t kSignature = 0x07064B50;

    std::uint32_t disk = 0;
    std::uint64_t endRecordPosition = 0;
    std::uint32_t disks = 1;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.disk);
        visit(self.endRecordPosition);
        visit(self.disks);
    }
};

/// The header of each extra field: what it is, and how many bytes follow.
struct ExtraHeader {
    std::uint16_t id = 0;
    std::uint16_t length = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.id);
        visit(self.length);
    }
};

/// The true sizes and position of an entry. Each is there only where its field in the header is
/// full, always in this order.
struct Zip64Extra {
    static constexpr std::uint16_t kId = 0x0001;

    std::optional<std::uint64_t> size;
    std::optional<std::uint64_t> packedSize;
    std::optional<std::uint64_t> headerPosition;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        if (self.size)
            visit(*self.size);
        if (self.packedSize)
            visit(*self.packedSize);
        if (self.headerPosition)
            visit(*self.headerPosition);
    }
};

struct AesExtra {
    static constexpr std::uint16_t kId = 0x9901;
    static constexpr std::uint16_t kVendor = 'A' + 256 * 'E';
    static constexpr std::uint8_t kAes256 = 3;
    // AE-1 keeps the CRC of the content; AE-2 leaves it 0, since it would reveal something of the
    // content.
    static constexpr std::uint16_t kAe1 = 1;
    static constexpr std::uint16_t kAe2 = 2;

    std::uint16_t version = kAe2;
    std::uint16_t vendor = kVendor;
    std::uint8_t strength = kAes256;
    std::uint16_t method = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.version);
        visit(self.vendor);
        visit(self.strength);
        visit(self.method);
    }
};

/// Bytes that the fields take, without the signature.
template <class Record>
constexpr std::size_t FieldsSize(const Record& record)
{
    std::size_t size = 0;
    Record::EachField(record, [&](const auto& field) { size += sizeof(field); });
    return size;
}

/// Bytes that a record with a signature takes.
template <class Record>
inline constexpr std::size_t kRecordSize = sizeof(std::uint32_t) + FieldsSize(Record{});

template <class Number>
Number ReadNumber(std::span<const std::byte> bytes)
{
    Number number = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        number = static_cast<Number>(number | (static_cast<Number>(bytes[i]) << (8 * i)));
    return number;
}

template <class Record>
void AppendFields(Bytes& bytes, const Record& record)
{
    Record::EachField(record, [&](const auto& field) { AppendNumber(bytes, field); });
}

template <class Record>
void AppendRecord(Bytes& bytes, const Record& record)
{
    AppendNumber(bytes, Record::kSignature);
    AppendFields(bytes, record);
}

template <class Extra>
void AppendExtra(Bytes& bytes, const Extra& extra)
{
    const std::size_t length = FieldsSize(extra);
    if (length == 0)
        return;
    AppendFields(bytes, ExtraHeader{Extra::kId, static_cast<std::uint16_t>(length)});
    AppendFields(bytes, extra);
}

/// False when there are too few bytes; `record` is then half filled.
template <class Record>
bool ReadFields(std::span<const std::byte> bytes, Record& record)
{
    bool enough = true;
    Record::EachField(record, [&](auto& field) {
        enough = enough && bytes.size() >= sizeof(field);
        if (!enough)
            return;
        field = ReadNumber<std::remove_reference_t<decltype(field)>>(bytes);
        bytes = bytes.subspan(sizeof(field));
    });
    return enough;
}

/// Nothing when the bytes do not begin with such a record.
template <class Record>
std::optional<Record> ReadRecord(std::span<const std::byte> bytes)
{
    Record record;
    const bool found = bytes.size() >= sizeof(std::uint32_t) &&
                       ReadNumber<std::uint32_t>(bytes) == Record::kSignature &&
                       ReadFields(bytes.subspan(sizeof(std::uint32_t)), record);
    return found ? std::optional(record) : std::nullopt;
}

// Dates of entries are local, begin with 1980 and count in steps of two seconds.
inline std::uint16_t DosDate(const LocalTime& time)
{
    if (time.year < 1980)
        return 1 + (1 << 5);
    const int year = std::min(time.year, 2107) - 1980;
    return static_cast<std::uint16_t>((year << 9) | (time.month << 5) | time.day);
}

inline std::uint16_t DosTime(const LocalTime& time)
{
    if (time.year < 1980)
        return 0;
    return static_cast<std::uint16_t>((time.hour << 11) | (time.minute << 5) | (time.second / 2));
}

/// Numbers that no date has (month 0, hour 31) come back unchanged.
inline LocalTime FromDosTime(std::uint16_t date, std::uint16_t time)
{
    return {1980 + (date >> 9), (date >> 5) & 15, date & 31,
            time >> 11,         (time >> 5) & 63, (time & 31) * 2};
}

} // namespace quillon::zip
