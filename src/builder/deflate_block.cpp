#include "builder/deflate_block.h"

#include <libdeflate.h>
#include <zlib.h>

#include <array>
#include <cassert>
#include <cstdint>
#include <new>
#include <stdexcept>

namespace quillon {

namespace {

// The level at which libdeflate beats the size of zlib's level 5 in a third of its time.
constexpr int kLibdeflateLevel = 4;

// An empty stored block: three bits, the rest of the byte, a length of 0 and its complement. It
// brings a stream to a whole byte.
constexpr std::array<std::byte, 4> kEmptyStoredBlock{std::byte{0}, std::byte{0}, std::byte{0xFF},
                                                     std::byte{0xFF}};
constexpr std::size_t kRoomToOpen = 1 + kEmptyStoredBlock.size();

/// Where a deflate stream must be changed so that another can follow.
struct StreamEnd {
    std::uint64_t lastBlockBit = 0;
    std::uint64_t endBit = 0;
};

// zlib's inflate can stop at the border of every block. Nothing cheaper finds the last block, since
// only decoding tells where a block ends; it costs a small part of the time of the deflating.
StreamEnd FindStreamEnd(std::span<const std::byte> stream)
{
    constexpr unsigned kAtBorder = 128;
    constexpr unsigned kInLastBlock = 64;
    constexpr unsigned kUnusedBits = 7;
    z_stream inflater{};
    if (inflateInit2(&inflater, -MAX_WBITS) != Z_OK)
        throw std::bad_alloc();
    const std::unique_ptr<z_stream, int (*)(z_stream*)> ender(&inflater, inflateEnd);
    std::vector<Bytef> ignored(64 * 1024);
    // zlib does not write to its input; its type is older than const.
    inflater.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(stream.data()));
    inflater.avail_in = static_cast<uInt>(stream.size());
    StreamEnd end;
    for (;;) {
        inflater.next_out = ignored.data();
        inflater.avail_out = static_cast<uInt>(ignored.size());
        if (inflate(&inflater, Z_BLOCK) != Z_OK)
            throw std::logic_error("libdeflate made a stream that zlib can't read");
        const auto state = static_cast<unsigned>(inflater.data_type);
        if ((state & kAtBorder) == 0)
            continue;
        const std::uint64_t bit = std::uint64_t(inflater.total_in) * 8 - (state & kUnusedBits);
        ((state & kInLastBlock) != 0 ? end.endBit : end.lastBlockBit) = bit;
        if ((state & kInLastBlock) != 0)
            return end;
    }
}

/// Takes the end mark off a stream and fills it up to a whole byte. `stream` has room behind it.
std::size_t OpenStream(std::span<std::byte> buffer, std::size_t size)
{
    const StreamEnd end = FindStreamEnd(buffer.first(size));
    buffer[static_cast<std::size_t>(end.lastBlockBit / 8)] &=
        ~(std::byte{1} << static_cast<int>(end.lastBlockBit % 8));

    const std::size_t usedBits = static_cast<std::size_t>(end.endBit % 8);
    if (usedBits != 0)
        buffer[size - 1] &= static_cast<std::byte>((1U << usedBits) - 1);
    const bool headFits = usedBits != 0 && usedBits <= 5;
    if (!headFits)
        buffer[size++] = std::byte{0};
    for (const std::byte byte : kEmptyStoredBlock)
        buffer[size++] = byte;
    return size;
}

} // namespace

struct BlockDeflater::State {
    std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor*)> compressor{
        libdeflate_alloc_compressor(kLibdeflateLevel), libdeflate_free_compressor};
};

BlockDeflater::BlockDeflater() : state_(std::make_unique<State>())
{
    if (!state_->compressor)
        throw std::bad_alloc();
}

BlockDeflater::~BlockDeflater() = default;

std::span<const std::byte> BlockDeflater::DeflateIfSmaller(std::span<const std::byte> raw)
{
    if (raw.size() < 2)
        return {};
    if (packed_.size() < raw.size())
        packed_.resize(raw.size());
    const std::size_t size = libdeflate_deflate_compress(
        state_->compressor.get(), raw.data(), raw.size(), packed_.data(), raw.size() - 1);
    return std::span<const std::byte>(packed_).first(size);
}

std::span<const std::byte> BlockDeflater::DeflatePart(std::span<const std::byte> raw, Place place)
{
    libdeflate_compressor* compressor = state_->compressor.get();
    const std::size_t bound = libdeflate_deflate_compress_bound(compressor, raw.size());
    if (packed_.size() < bound + kRoomToOpen)
        packed_.resize(bound + kRoomToOpen);
    std::size_t size =
        libdeflate_deflate_compress(compressor, raw.data(), raw.size(), packed_.data(), bound);
    assert(size > 0);
    if (place == Place::InTheMiddle)
        size = OpenStream(packed_, size);
    return std::span<const std::byte>(packed_).first(size);
}

} // namespace quillon
