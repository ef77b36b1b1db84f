// SHA-256 (FIPS 180-4) for tool, setup and starter. No memory is asked for, and on Windows nothing
// of a library is used, so that the starter can carry it, and Windows before XP SP3, whose own
// library knows no SHA-256, needs none.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quillon {

using Sha256Digest = std::array<std::byte, 32>;

class Sha256 {
public:
    void Add(std::span<const std::byte> bytes);
    /// Once, after the last `Add`.
    Sha256Digest Finish();

private:
    static constexpr std::size_t kBlock = 64;

    void Mix(std::span<const std::byte> blocks);

    std::array<std::uint32_t, 8> state_{0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                                        0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};
    std::array<std::byte, kBlock> pending_{};
    std::uint64_t length_ = 0; // bytes
};

} // namespace quillon
