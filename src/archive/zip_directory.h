// The list of entries at the end of a ZIP file, read with distrust: whatever does not fit together
// to the byte is refused, so that no two programs can see two different lists in one archive.
#pragma once

#include "archive/zip_reader.h"
#include "archive/zip_records.h"

#include <cstdint>
#include <vector>

namespace quillon::zip {

struct Directory {
    /// The bytes from an entry's local header to the next one's, in the order of the file.
    struct Extent {
        std::uint64_t begin = 0;
        std::uint64_t end = 0;
    };

    std::vector<ZipEntry> entries;
    std::vector<Extent> extents;
};

/// Throws `ZipError`.
Directory ReadDirectory(InputFile& archive);

/// Fills the whole of `bytes` from this position on; throws `ZipError` where the file ends before.
void ReadExactly(InputFile& archive, std::uint64_t position, std::span<std::byte> bytes);

/// A name or comment as it is in a record. Throws `ZipError` where it says that it is UTF-8 and
/// isn't.
Text DecodeText(std::span<const std::byte> bytes, std::uint16_t flags);

struct Extras {
    Zip64Extra zip64;
    std::optional<AesExtra> aes;
};

/// The extra fields that are used. In `extras.zip64` the caller has set those numbers whose true
/// value is in the extra field. Throws `ZipError`.
void ReadExtras(std::span<const std::byte> bytes, Extras& extras);

[[noreturn]] void RefuseArchive(const char* what);

inline void Require(bool holds, const char* what)
{
    if (!holds)
        RefuseArchive(what);
}

} // namespace quillon::zip
