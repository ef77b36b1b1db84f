// What a solid payload says about its files: docs/self-extractor.md has the format.
#pragma once

#include "archive/zip_records.h"
#include "helpers/sha256.h"
#include "helpers/text.h"

#include <optional>

namespace quillon {

enum class SolidFilter : std::uint8_t { None = 0, X86 = 1 };

/// A part of a file whose bytes all go through one filter.
struct SolidRun {
    std::uint64_t size = 0;
    SolidFilter filter = SolidFilter::None;

    bool operator==(const SolidRun&) const = default;
};

struct SolidFile {
    Text name; // below the folder that it is unpacked to, '/' between folders
    std::uint64_t size = 0;
    std::optional<LocalTime> modified; // in steps of two seconds
    std::uint32_t attributes = 0;      // those of `SolidAttribute`
    std::vector<SolidRun> runs;        // from the first byte to the last

    bool operator==(const SolidFile&) const = default;
};

/// As Windows counts them.
namespace SolidAttribute {
inline constexpr std::uint32_t kReadOnly = 0x01;
inline constexpr std::uint32_t kHidden = 0x02;
inline constexpr std::uint32_t kSystem = 0x04;
inline constexpr std::uint32_t kArchive = 0x20;
inline constexpr std::uint32_t kAll = kReadOnly | kHidden | kSystem | kArchive;
} // namespace SolidAttribute

/// A text for the program that unpacks the payload, by number.
struct SolidProperty {
    std::uint32_t number = 0;
    Text value;

    bool operator==(const SolidProperty&) const = default;
};

struct SolidTable {
    std::vector<SolidProperty> properties;
    std::vector<SolidFile> files; // in the order of the stream

    /// The value of that number; empty where there is none.
    Text Property(std::uint32_t number) const;
    std::uint64_t TotalSize() const;

    bool operator==(const SolidTable&) const = default;
};

inline constexpr std::uint64_t kMaxSolidTableSize = 64 * 1024 * 1024;
/// The largest window of the stream, and so what unpacking takes of memory.
inline constexpr int kMaxSolidWindowLog = 27;

zip::Bytes SolidTableBytes(const SolidTable& table);

/// Throws `SolidError` for whatever is not as it has to be: names that lead out of the folder or
/// that Windows can't hold, two files of one name, parts that don't make up their file.
SolidTable ReadSolidTable(std::span<const std::byte> bytes);

/// The end of the payload: what finds it, and its digest.
struct SolidTrailer {
    static constexpr std::uint64_t kMark = 0x1A44494C4F534E51; // "QNSOLID" and 1A
    static constexpr std::uint32_t kVersion = 1;

    std::uint64_t mark = kMark;
    std::uint32_t version = kVersion;
    std::uint32_t flags = 0; // none are known yet
    std::uint64_t streamBegin = 0;
    std::uint64_t streamSize = 0;
    std::uint64_t tableSize = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.mark);
        visit(self.version);
        visit(self.flags);
        visit(self.streamBegin);
        visit(self.streamSize);
        visit(self.tableSize);
    }
};

inline constexpr std::size_t kSolidTrailerFields = zip::FieldsSize(SolidTrailer{});
inline constexpr std::size_t kSolidTrailerSize =
    kSolidTrailerFields + std::tuple_size_v<Sha256Digest>;
/// The end of the trailer stands at such a place, where a table of certificates can follow.
inline constexpr std::uint64_t kSolidAlignment = 8;

} // namespace quillon
