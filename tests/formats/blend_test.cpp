#include "formats/blend.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(BlendColour, GoesFromOneColourToTheOther)
{
    struct {
        Colour from;
        Colour to;
        Long depth;
        int at;
        int last;
        Colour colour;
    } const cases[] = {
        // All the way, and each part of the colour for itself.
        {0xFF0000, 0x000000, 100, 0, 100, 0xFF0000},
        {0xFF0000, 0x000000, 100, 100, 100, 0x000000},
        {0x0000FF, 0x00FF00, 100, 50, 100, 0x00807F},
        {0x102030, 0x304050, 100, 1, 2, 0x203040},
        // Half the depth ends half-way, and twice the depth is there in the middle.
        {0x000000, 0xC8C8C8, 50, 10, 10, 0x646464},
        {0x000000, 0xC8C8C8, 200, 5, 10, 0xC8C8C8},
        {0x000000, 0xC8C8C8, 200, 10, 10, 0xC8C8C8},
        {0x000000, 0xC8C8C8, 0, 10, 10, 0x000000},
        {0x000000, 0xC8C8C8, -5, 10, 10, 0x000000},
        {0x000000, 0xC8C8C8, 2147483647, 30000, 32000, 0xC8C8C8},
        // A single pixel, and a single colour.
        {0x123456, 0xFFFFFF, 100, 0, 0, 0x123456},
        {0x123456, 0x123456, 100, 7, 9, 0x123456},
    };
    for (const auto& c : cases)
        EXPECT_EQ(BlendColour(c.from, c.to, c.depth, c.at, c.last), c.colour)
            << std::hex << c.from << " to " << c.to << std::dec << " depth " << c.depth << " at "
            << c.at;
}

TEST(BlendColour, LooksAtTheThreePartsOfAColourAlone)
{
    EXPECT_EQ(BlendColour(0x01020304, 0, 100, 0, 1), 0x020304);
    EXPECT_EQ(BlendColour(-1, 0, 100, 0, 1), 0xFFFFFF);
}

} // namespace
} // namespace quillon
