// The addresses that a program's calls and jumps lead to, written so that equal targets look equal.
//
// CALL (E8) and JMP (E9) hold how far away their target is, so two calls of one function differ.
// The filter writes the target's place in the file instead, which packs better. Of E8 or E9 and the
// number after it the highest byte has to be 00 or FF, as of a distance of less than 16 MiB; the
// lowest 25 bits of the number are counted round, so it is one of the two afterwards as well.
// Whether it was or not, the next look is at what follows the five bytes: a number that was passed
// over must not change later. So both directions stop at the same places, and each undoes the
// other whatever the bytes are, programs or not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace quillon {

class X86Filter {
public:
    enum class Direction { Encode, Decode };

    explicit X86Filter(Direction direction) : direction_(direction) {}

    /// Converts the bytes where they are and says how many at the front are done. The rest, at
    /// most four, has to come again at the front of the next call; after `isLast` there is no rest.
    std::size_t Convert(std::span<std::byte> bytes, bool isLast);

private:
    Direction direction_;
    std::uint32_t position_ = 0;
};

} // namespace quillon
