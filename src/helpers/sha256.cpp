#include "helpers/sha256.h"

#include "helpers/sha256_blocks.h"

#include <cstring>

namespace quillon {

namespace {

constexpr std::size_t kLengthSize = 8;

} // namespace

void Sha256::Add(std::span<const std::byte> bytes)
{
    const std::size_t filled = length_ % kBlock;
    length_ += bytes.size();
    if (filled > 0) {
        const std::size_t piece = bytes.size() < kBlock - filled ? bytes.size() : kBlock - filled;
        if (piece > 0)
            std::memcpy(pending_.data() + filled, bytes.data(), piece);
        bytes = bytes.subspan(piece);
        if (filled + piece < kBlock)
            return;
        Mix(pending_);
    }
    const std::size_t whole = bytes.size() - bytes.size() % kBlock;
    Mix(bytes.first(whole));
    bytes = bytes.subspan(whole);
    if (!bytes.empty())
        std::memcpy(pending_.data(), bytes.data(), bytes.size());
}

Sha256Digest Sha256::Finish()
{
    const std::uint64_t bits = length_ * 8;
    std::array<std::byte, kBlock> padding{std::byte{0x80}};
    const std::size_t filled = length_ % kBlock;
    const std::size_t toLength = kBlock - kLengthSize;
    Add(std::span(padding).first(filled < toLength ? toLength - filled
                                                   : kBlock + toLength - filled));
    std::array<std::byte, kLengthSize> length;
    for (std::size_t i = 0; i < kLengthSize; ++i)
        length[i] = static_cast<std::byte>(bits >> (56 - 8 * i));
    Add(length);
    Sha256Digest digest;
    for (std::size_t i = 0; i < digest.size(); ++i)
        digest[i] = static_cast<std::byte>(state_[i / 4] >> (24 - i % 4 * 8));
    return digest;
}

void Sha256::Mix(std::span<const std::byte> blocks)
{
#ifdef _WIN32
    MixSha256OfProgram(state_, blocks);
#else
    MixSha256ByLibrary(state_, blocks);
#endif
}

} // namespace quillon
