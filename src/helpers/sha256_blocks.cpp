#include "helpers/sha256_blocks.h"

#include "helpers/sha256_constants.h"

#include <bit>

namespace quillon {

namespace {

std::uint32_t BigEndian(const std::byte* bytes)
{
    return std::to_integer<std::uint32_t>(bytes[0]) << 24U |
           std::to_integer<std::uint32_t>(bytes[1]) << 16U |
           std::to_integer<std::uint32_t>(bytes[2]) << 8U |
           std::to_integer<std::uint32_t>(bytes[3]);
}

void MixBlock(Sha256State& state, const std::byte* block)
{
    std::uint32_t words[64];
    for (std::size_t i = 0; i < 16; ++i)
        words[i] = BigEndian(block + 4 * i);
    for (std::size_t i = 16; i < 64; ++i) {
        const std::uint32_t early = words[i - 15];
        const std::uint32_t late = words[i - 2];
        words[i] = words[i - 16] + words[i - 7] +
                   (std::rotr(early, 7) ^ std::rotr(early, 18) ^ early >> 3U) +
                   (std::rotr(late, 17) ^ std::rotr(late, 19) ^ late >> 10U);
    }
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < 64; ++i) {
        const std::uint32_t first = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                    ((e & f) ^ (~e & g)) + kSha256RoundConstants[i] + words[i];
        const std::uint32_t second =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + first;
        d = c;
        c = b;
        b = a;
        a = first + second;
    }
    const std::uint32_t mixed[8] = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < 8; ++i)
        state[i] += mixed[i];
}

} // namespace

void MixSha256Portably(Sha256State& state, std::span<const std::byte> blocks)
{
    for (; !blocks.empty(); blocks = blocks.subspan(kSha256BlockSize))
        MixBlock(state, blocks.data());
}

} // namespace quillon
