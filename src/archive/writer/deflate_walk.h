// Walks over a deflate stream (RFC 1951) from block to block without unpacking it. Only the codes
// tell where a block ends, so each is read, but what it stands for is of no interest here; that
// makes the walk several times faster than an unpacking.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace quillon {

/// Where a stream must be changed so that another can follow, in bits from its first one.
struct StreamEnd {
    std::uint64_t lastBlockBit = 0;
    std::uint64_t endBit = 0;
};

/// Throws `std::logic_error` for what is no stream: the streams here are our own.
StreamEnd FindStreamEnd(std::span<const std::byte> stream);

} // namespace quillon
