// The compression function of SHA-256 over whole blocks: in plain code, which the programs of the
// setup carry, and OpenSSL's, which takes the processor's own instructions for it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quillon {

inline constexpr std::size_t kSha256BlockSize = 64;

using Sha256State = std::array<std::uint32_t, 8>;

/// `blocks` is a multiple of `kSha256BlockSize` long.
void MixSha256Portably(Sha256State& state, std::span<const std::byte> blocks);

#ifdef _WIN32
/// What a program carries: a small one plain code, and the setup the processor's own instructions
/// too.
void MixSha256OfProgram(Sha256State& state, std::span<const std::byte> blocks);
#else
void MixSha256ByLibrary(Sha256State& state, std::span<const std::byte> blocks);
#endif

} // namespace quillon
