// Finds where a deflate stream (RFC 1951) has its last block and where it ends, to the bit, so that
// another stream can follow in the same entry of an archive.
//
// The constraints that shaped it:
//
// - The deflater (libdeflate) marks the last block of whatever it is given as the last one of a
//   stream, and a block says nowhere how long it is: only reading all of its codes shows it. Zlib
//   could be made to leave the mark out, but deflates far slower.
// - So every block of 4 MiB of a large source is walked once more after it was packed. The walk
//   reads codes alone, with no window and no output, and runs in the threads that pack.
// - A table entry holds the bits of a code together with its extra bits, so a literal costs one
//   look-up and one shift, a match two. 10 bits of look-up hold most codes that occur and keep
//   each table at 4 KiB; longer codes are counted out bit by bit.
// - The reader refills to at least 56 bits. A literal (15) and the length of a match with its extra
//   bits (20) fit into one refill, a distance with its own (28) takes the next.
// - The streams are our own output. What is malformed is a programming error, not bad input; still
//   no read leaves the span, and no loop goes on without taking bits.
//
// Rejected: unpacking with zlib to find the end (it does much more work); noting the end while
// packing (libdeflate keeps it to itself); a stored block as a seam before the last one (the last
// block's mark still has to be found and cleared).
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
