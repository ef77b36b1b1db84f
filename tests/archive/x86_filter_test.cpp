#include "archive/solid/x86_filter.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace quillon {
namespace {

using Direction = X86Filter::Direction;

// In pieces of this size, the unfinished bytes of one handed over with the next.
std::string Filtered(const std::string& bytes, Direction direction, std::size_t pieceSize)
{
    X86Filter filter(direction);
    std::string done;
    std::string piece;
    for (std::size_t i = 0; i < bytes.size(); i += pieceSize) {
        piece += bytes.substr(i, pieceSize);
        const bool isLast = i + pieceSize >= bytes.size();
        const std::size_t count = filter.Convert(std::as_writable_bytes(std::span(piece)), isLast);
        EXPECT_LE(piece.size() - count, 4U);
        done += piece.substr(0, count);
        piece.erase(0, count);
    }
    EXPECT_EQ(piece, "");
    return done;
}

std::string Bytes(std::initializer_list<unsigned char> bytes)
{
    return {bytes.begin(), bytes.end()};
}

TEST(X86Filter, WritesThePlaceInsteadOfTheDistance)
{
    // The instruction stands at 2; 0x10 and 2 are 0x12.
    const std::string call = Bytes({0x90, 0x90, 0xE8, 0x10, 0x00, 0x00, 0x00, 0x90});
    EXPECT_EQ(Filtered(call, Direction::Encode, 100),
              Bytes({0x90, 0x90, 0xE8, 0x12, 0x00, 0x00, 0x00, 0x90}));
    // A jump back, by 4; -4 and 2 are -2.
    const std::string jump = Bytes({0x90, 0x90, 0xE9, 0xFC, 0xFF, 0xFF, 0xFF});
    EXPECT_EQ(Filtered(jump, Direction::Encode, 100),
              Bytes({0x90, 0x90, 0xE9, 0xFE, 0xFF, 0xFF, 0xFF}));
}

TEST(X86Filter, LeavesFarDistancesAndShortEndsAlone)
{
    for (const std::string& bytes :
         {Bytes({0x90, 0xE8, 0x10, 0x00, 0x00, 0x01, 0x90}), Bytes({0x90, 0xE8, 0x10, 0x00, 0x00}),
          Bytes({0x90, 0xE7, 0x10, 0x00, 0x00, 0x00}), Bytes({0xE8}), std::string()})
        EXPECT_EQ(Filtered(bytes, Direction::Encode, 100), bytes);
}

TEST(X86Filter, CountsRoundAtTheEndOfItsNumbers)
{
    // 0xFFFFFF and 1 exceed the positive distances; the highest byte is still 00 or FF.
    const std::string bytes = Bytes({0x90, 0xE8, 0xFF, 0xFF, 0xFF, 0x00});
    const std::string encoded = Filtered(bytes, Direction::Encode, 100);
    EXPECT_EQ(encoded, Bytes({0x90, 0xE8, 0x00, 0x00, 0x00, 0xFF}));
    EXPECT_EQ(Filtered(encoded, Direction::Decode, 100), bytes);
}

TEST(X86Filter, IsUndoneWhateverTheBytesAndThePieces)
{
    std::mt19937 random(42);
    constexpr unsigned char kLikely[] = {0xE8, 0xE9, 0x00, 0xFF};
    for (int run = 0; run < 200; ++run) {
        std::string bytes(1 + random() % 300, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random() % 3 == 0 ? random() : kLikely[random() % 4]);
        const std::string encoded = Filtered(bytes, Direction::Encode, 1000);
        for (const std::size_t pieceSize : {1U, 2U, 3U, 5U, 7U, 64U, 1000U}) {
            ASSERT_TRUE(Filtered(bytes, Direction::Encode, pieceSize) == encoded) << run;
            ASSERT_TRUE(Filtered(encoded, Direction::Decode, pieceSize) == bytes) << run;
        }
    }
}

} // namespace
} // namespace quillon
