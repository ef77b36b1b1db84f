#include "platform/win32/sha1.h"

#include <algorithm>
#include <bit>

namespace quillon {

namespace {

constexpr std::size_t kRounds = 80;
constexpr std::size_t kLengthSize = 8;

std::uint32_t Mix(std::size_t round, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    switch (round / 20) {
    case 0:
        return ((b & c) | (~b & d)) + 0x5A827999;
    case 1:
        return (b ^ c ^ d) + 0x6ED9EBA1;
    case 2:
        return ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDC;
    default:
        return (b ^ c ^ d) + 0xCA62C1D6;
    }
}

} // namespace

void Sha1::Add(std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const std::size_t filled = length_ % kBlock;
        const std::size_t piece = std::min(bytes.size(), kBlock - filled);
        std::copy_n(bytes.begin(), piece, pending_.begin() + std::ptrdiff_t(filled));
        length_ += piece;
        bytes = bytes.subspan(piece);
        if (length_ % kBlock == 0)
            Digest(pending_.data());
    }
}

std::array<std::byte, kSha1Size> Sha1::Finish()
{
    const std::uint64_t bits = length_ * 8;
    const std::byte mark{0x80};
    Add({&mark, 1});
    const std::byte none{};
    while (length_ % kBlock != kBlock - kLengthSize)
        Add({&none, 1});
    for (unsigned shift = 64; shift > 0;) {
        shift -= 8;
        const auto byte = static_cast<std::byte>(bits >> shift);
        Add({&byte, 1});
    }
    std::array<std::byte, kSha1Size> digest;
    for (std::size_t i = 0; i < kSha1Size; ++i)
        digest[i] = static_cast<std::byte>(state_[i / 4] >> (24 - i % 4 * 8));
    return digest;
}

void Sha1::Digest(const std::byte* block)
{
    std::array<std::uint32_t, kRounds> words{};
    for (std::size_t i = 0; i < kBlock; ++i)
        words[i / 4] = words[i / 4] << 8U | std::to_integer<std::uint32_t>(block[i]);
    for (std::size_t i = kBlock / 4; i < kRounds; ++i)
        words[i] = std::rotl(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);

    auto [a, b, c, d, e] = state_;
    for (std::size_t i = 0; i < kRounds; ++i) {
        const std::uint32_t next = std::rotl(a, 5) + Mix(i, b, c, d) + e + words[i];
        e = d;
        d = c;
        c = std::rotl(b, 30);
        b = a;
        a = next;
    }
    state_[0] += a;
    state_[1] += b;
    state_[2] += c;
    state_[3] += d;
    state_[4] += e;
}

} // namespace quillon
