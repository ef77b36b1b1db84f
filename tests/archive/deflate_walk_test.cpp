#include "archive/writer/deflate_walk.h"

#include <gtest/gtest.h>
#include <libdeflate.h>
#include <zlib.h>

#include <memory>
#include <random>
#include <stdexcept>
#include <string>

namespace quillon::test {

namespace {

using Stream = std::vector<std::byte>;

Stream Deflated(const std::string& raw, int level)
{
    const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor*)> compressor(
        libdeflate_alloc_compressor(level), libdeflate_free_compressor);
    Stream stream(libdeflate_deflate_compress_bound(compressor.get(), raw.size()));
    stream.resize(libdeflate_deflate_compress(compressor.get(), raw.data(), raw.size(),
                                              stream.data(), stream.size()));
    return stream;
}

Stream DeflatedByZlib(const std::string& raw, int strategy)
{
    z_stream deflater{};
    EXPECT_EQ(deflateInit2(&deflater, 6, Z_DEFLATED, -MAX_WBITS, 8, strategy), Z_OK);
    Stream stream(deflateBound(&deflater, static_cast<uLong>(raw.size())));
    deflater.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(raw.data()));
    deflater.avail_in = static_cast<uInt>(raw.size());
    deflater.next_out = reinterpret_cast<Bytef*>(stream.data());
    deflater.avail_out = static_cast<uInt>(stream.size());
    EXPECT_EQ(deflate(&deflater, Z_FINISH), Z_STREAM_END);
    stream.resize(deflater.total_out);
    deflateEnd(&deflater);
    return stream;
}

// The expected end, by unpacking: zlib can stop at the border of every block.
StreamEnd EndByUnpacking(const Stream& stream)
{
    z_stream inflater{};
    EXPECT_EQ(inflateInit2(&inflater, -MAX_WBITS), Z_OK);
    inflater.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(stream.data()));
    inflater.avail_in = static_cast<uInt>(stream.size());
    std::vector<Bytef> ignored(4096);
    StreamEnd end;
    for (bool isDone = false; !isDone;) {
        inflater.next_out = ignored.data();
        inflater.avail_out = static_cast<uInt>(ignored.size());
        const int result = inflate(&inflater, Z_BLOCK);
        EXPECT_TRUE(result == Z_OK || result == Z_STREAM_END) << result;
        const auto state = static_cast<unsigned>(inflater.data_type);
        isDone = (state & 64U) != 0 && (state & 128U) != 0;
        const std::uint64_t bit = std::uint64_t(inflater.total_in) * 8 - (state & 7U);
        if ((state & 128U) != 0)
            (isDone ? end.endBit : end.lastBlockBit) = bit;
    }
    inflateEnd(&inflater);
    return end;
}

std::string RandomText(unsigned seed, std::size_t size, unsigned letters)
{
    std::mt19937 random(seed);
    std::string text;
    while (text.size() < size) {
        // Sometimes repeats what came before, and changes the letters, so that there are matches of
        // all distances and blocks of several codes.
        if (random() % 50 == 0 && text.size() > 300)
            text += text.substr(random() % (text.size() - 300), random() % 300);
        const unsigned shift = static_cast<unsigned>(text.size() / 40000) * 17;
        text += static_cast<char>(random() % letters * (random() % 3) + shift);
    }
    text.resize(size);
    return text;
}

void ExpectSameEnd(const Stream& stream)
{
    const StreamEnd walked = FindStreamEnd(stream);
    const StreamEnd unpacked = EndByUnpacking(stream);
    EXPECT_EQ(walked.lastBlockBit, unpacked.lastBlockBit);
    EXPECT_EQ(walked.endBit, unpacked.endBit);
}

} // namespace

TEST(FindStreamEnd, AgreesWithAnUnpackingForEveryKindOfStream)
{
    for (const std::size_t size : {0U, 1U, 2U, 100U, 5000U, 70000U, 600000U})
        for (const unsigned letters : {1U, 2U, 30U, 256U})
            for (const int level : {0, 1, 4, 6, 12}) {
                SCOPED_TRACE(std::to_string(size) + " bytes of " + std::to_string(letters) +
                             " letters at level " + std::to_string(level));
                ExpectSameEnd(Deflated(RandomText(letters, size, letters), level));
            }
}

TEST(FindStreamEnd, AgreesWithAnUnpackingForTheFixedCodesAndCodesWithoutMatches)
{
    for (const int strategy : {Z_FIXED, Z_HUFFMAN_ONLY, Z_RLE, Z_DEFAULT_STRATEGY})
        ExpectSameEnd(DeflatedByZlib(RandomText(7, 300000, 100), strategy));
}

TEST(FindStreamEnd, RefusesAStreamThatIsCut)
{
    const Stream stream = Deflated(RandomText(3, 5000, 60), 6);
    for (std::size_t size = 0; size < stream.size(); ++size)
        EXPECT_THROW(FindStreamEnd(std::span(stream).first(size)), std::logic_error) << size;
}

TEST(FindStreamEnd, SurvivesEveryDamagedByte)
{
    const Stream stream = Deflated(RandomText(3, 3000, 60), 6);
    for (std::size_t i = 0; i < stream.size(); ++i) {
        Stream damaged = stream;
        damaged[i] ^= std::byte{0x5A};
        try {
            EXPECT_LE(FindStreamEnd(damaged).endBit, damaged.size() * 8);
        } catch (const std::logic_error&) {
        }
    }
}

} // namespace quillon::test
