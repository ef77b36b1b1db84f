#include "runtime/registry/registry_data.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(TextData, IsUtf16WithAZeroBehind)
{
    EXPECT_EQ(TextData("Aå").bytes, std::string("A\0\xE5\0\0\0", 6));
    EXPECT_EQ(TextData("").bytes, std::string("\0\0", 2));
    EXPECT_EQ(TextData("😀").bytes, std::string("\x3D\xD8\x00\xDE\0\0", 6));
}

TEST(TextData, GoesRound)
{
    for (const char* text : {"", "C:\\Program", "åäö ÅÄÖ", "€", "😀 x"})
        EXPECT_EQ(TextOf(TextData(text)), text);
}

TEST(TextOf, EndsAtTheZeroAndBearsDamage)
{
    EXPECT_EQ(TextOf({kRegistryText, std::string("A\0\0\0B\0", 6)}), "A");
    EXPECT_EQ(TextOf({kRegistryText, "A"}), "");
    EXPECT_EQ(TextOf({kRegistryExpandText, std::string("A\0", 2)}), "A");
    EXPECT_EQ(TextOf(NumberData(1)), std::nullopt);
}

TEST(NumberData, IsFourBytesLowFirst)
{
    EXPECT_EQ(NumberData(0x12345678).bytes, "\x78\x56\x34\x12");
    EXPECT_EQ(NumberOf(NumberData(0xFFFFFFFBU)), 0xFFFFFFFBU);
    EXPECT_EQ(NumberOf(TextData("1")), std::nullopt);
    EXPECT_EQ(NumberOf({kRegistryNumber, "ab"}), std::nullopt);
}

TEST(HexText, GoesRound)
{
    EXPECT_EQ(HexText(std::string("\xA2\x00\x3F", 3)), "A2003F");
    EXPECT_EQ(BytesOfHex("a2003F"), std::string("\xA2\x00\x3F", 3));
    EXPECT_EQ(BytesOfHex(""), "");
    EXPECT_EQ(BytesOfHex("A"), std::nullopt);
    EXPECT_EQ(BytesOfHex("0G"), std::nullopt);
}

} // namespace quillon
