#include "helpers/swedish_order.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace quillon::test {
namespace {

std::vector<Text> InSwedishOrder(std::vector<Text> texts)
{
    std::ranges::sort(texts, {}, [](const Text& text) { return SwedishOrderKey(text); });
    return texts;
}

TEST(SwedishOrderKey, PutsRingAndDiaeresesBehindZ)
{
    EXPECT_THAT(InSwedishOrder({"ö", "ä", "zebra", "å", "a", "ängel", "år", "öl"}),
                testing::ElementsAre("a", "zebra", "å", "år", "ä", "ängel", "ö", "öl"));
    EXPECT_THAT(InSwedishOrder({"ØL", "ÄRA", "ÆRB", "ÅR", "Z"}),
                testing::ElementsAre("Z", "ÅR", "ÄRA", "ÆRB", "ØL"));
}

TEST(SwedishOrderKey, PutsOtherMarksBesideThePlainLetter)
{
    EXPECT_THAT(
        InSwedishOrder({"idf", "idé", "ide", "idéer", "idea", "über", "yb", "straße", "strast"}),
        testing::ElementsAre("ide", "idé", "idea", "idéer", "idf", "straße", "strast", "yb",
                             "über"));
}

TEST(SwedishOrderKey, LeavesAsciiAsItIs)
{
    for (const char* text : {"", "readme.txt", "A_B-C ~1"})
        EXPECT_EQ(SwedishOrderKey(text), text);
}

TEST(SwedishOrderKey, IsSharedByEqualTextsOnly)
{
    EXPECT_NE(SwedishOrderKey("é"), SwedishOrderKey("è"));
    EXPECT_NE(SwedishOrderKey("é"), SwedishOrderKey("e"));
    EXPECT_NE(SwedishOrderKey("ä"), SwedishOrderKey("æ"));
    EXPECT_NE(SwedishOrderKey("\x80"), SwedishOrderKey("å")) << "no character";
    EXPECT_EQ(SwedishOrderKey("å€"), SwedishOrderKey("å€"));
    EXPECT_LT(SwedishOrderKey("ö"), SwedishOrderKey("€")) << "what is no letter stays behind";
}

} // namespace
} // namespace quillon::test
