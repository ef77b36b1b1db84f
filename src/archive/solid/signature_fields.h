// What a signature changes in a Windows program: the checksum, the entry that says where the table
// of certificates is, and the table itself after all else. Everything else is as it was built, so
// a digest that leaves these out holds before and after signing. The layout is described in
// Microsoft's "PE Format" page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quillon {

struct SignatureFields {
    static constexpr std::uint64_t kChecksumSize = 4;
    static constexpr std::uint64_t kEntrySize = 8;

    std::uint64_t checksum = 0; // where the checksum is in the file
    std::uint64_t entry = 0;    // where the entry of the table is
    std::uint32_t tableBegin = 0;
    std::uint32_t tableSize = 0; // 0 in a program that is not signed
};

/// As many bytes from the front of a program as `FindSignatureFields` wants to see.
inline constexpr std::size_t kProgramHeadersSize = 4096;

/// Nothing where the file is no Windows program.
std::optional<SignatureFields> FindSignatureFields(std::span<const std::byte> headers);

} // namespace quillon
