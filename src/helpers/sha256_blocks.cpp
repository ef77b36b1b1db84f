#include "helpers/sha256_blocks.h"

#include <bit>

namespace quillon {

namespace {

// FIPS 180-4, 4.2.2
constexpr std::uint32_t kRoundConstants[64] = {
    0x428A2F98, 0x71374491, 0xB5C0FBCF, 0xE9B5DBA5, 0x3956C25B, 0x59F111F1, 0x923F82A4, 0xAB1C5ED5,
    0xD807AA98, 0x12835B01, 0x243185BE, 0x550C7DC3, 0x72BE5D74, 0x80DEB1FE, 0x9BDC06A7, 0xC19BF174,
    0xE49B69C1, 0xEFBE4786, 0x0FC19DC6, 0x240CA1CC, 0x2DE92C6F, 0x4A7484AA, 0x5CB0A9DC, 0x76F988DA,
    0x983E5152, 0xA831C66D, 0xB00327C8, 0xBF597FC7, 0xC6E00BF3, 0xD5A79147, 0x06CA6351, 0x14292967,
    0x27B70A85, 0x2E1B2138, 0x4D2C6DFC, 0x53380D13, 0x650A7354, 0x766A0ABB, 0x81C2C92E, 0x92722C85,
    0xA2BFE8A1, 0xA81A664B, 0xC24B8B70, 0xC76C51A3, 0xD192E819, 0xD6990624, 0xF40E3585, 0x106AA070,
    0x19A4C116, 0x1E376C08, 0x2748774C, 0x34B0BCB5, 0x391C0CB3, 0x4ED8AA4A, 0x5B9CCA4F, 0x682E6FF3,
    0x748F82EE, 0x78A5636F, 0x84C87814, 0x8CC70208, 0x90BEFFFA, 0xA4506CEB, 0xBEF9A3F7, 0xC67178F2};

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
                                    ((e & f) ^ (~e & g)) + kRoundConstants[i] + words[i];
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
