// SHA-1 (FIPS 180-4). CryptoAPI has it too, but a key derivation takes thousands of digests of one
// block each, and there a call costs far more than the digest.
#pragma once

#include "platform/crypto.h"

namespace quillon {

/// A copy goes on from where the original is.
class Sha1 {
public:
    void Add(std::span<const std::byte> bytes);
    std::array<std::byte, kSha1Size> Finish();

private:
    static constexpr std::size_t kBlock = 64;

    void Digest(const std::byte* block);

    std::array<std::uint32_t, 5> state_{0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
    std::array<std::byte, kBlock> pending_{};
    std::uint64_t length_ = 0; // bytes
};

} // namespace quillon
