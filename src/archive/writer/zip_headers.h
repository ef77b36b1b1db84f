// The headers of the entries of an archive that is being written, and what is at its end.
#pragma once

#include "archive/zip_records.h"
#include "helpers/date_text.h"
#include "helpers/text.h"

#include <cstdint>
#include <vector>

namespace quillon {

/// An entry as its headers describe it.
struct EntryRecord {
    Text name;
    Text comment;
    LocalTime modified;
    std::uint64_t size = 0;
    std::uint64_t packedSize = 0; // with what encryption adds
    std::uint64_t headerPosition = 0;
    std::uint32_t crc = 0;
    std::uint16_t method = zip::Method::kStored;
    bool isEncrypted = false;
    // The local header is written before the packed size is known; its length must not change.
    bool reservesZip64 = false;
};

/// True where the packed size may come to need ZIP64.
bool MayNeedZip64(std::uint64_t size);

zip::Bytes LocalHeaderBytes(const EntryRecord& entry);

/// The list of the entries, collected while they are written.
class DirectoryWriter {
public:
    /// The number of the entry comes back.
    std::size_t Add(EntryRecord entry);
    /// The entry serves more than was known when it was written.
    void ChangeComment(std::size_t entry, Text comment);
    /// The whole directory with the end records, to be written at this position.
    zip::Bytes Finish(std::uint64_t position);

private:
    std::vector<EntryRecord> entries_;
};

} // namespace quillon
