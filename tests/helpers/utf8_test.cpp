#include "helpers/utf8.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(Utf8, TakesNoOverlongOrHalfSequence)
{
    EXPECT_FALSE(IsUtf8("\xC0\xAF"));
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(IsUtf8("\xE2\x82"));
    EXPECT_TRUE(IsUtf8("\xF0\x9F\x99\x82"));
}

TEST(Utf8, WritesAndReadsTheFirstAndTheLastOfEachLength)
{
    const std::pair<char32_t, const char*> kEdges[] = {
        {0x7F, "\x7F"},
        {0x80, "\xC2\x80"},
        {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"},
        {0xD7FF, "\xED\x9F\xBF"},
        {0xE000, "\xEE\x80\x80"},
        {0xFFFF, "\xEF\xBF\xBF"},
        {0x10000, "\xF0\x90\x80\x80"},
        {0x10FFFF, "\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [codePoint, bytes] : kEdges) {
        std::string text;
        AppendCodePoint(text, codePoint);
        EXPECT_EQ(text, bytes);
        std::size_t position = 0;
        EXPECT_EQ(NextCodePoint(text, position), codePoint);
        EXPECT_EQ(position, text.size());
        EXPECT_TRUE(IsUtf8(text)) << bytes;
    }
}

TEST(Utf8, SkipsABrokenByteAlone)
{
    const std::string text = "\xE2\x82"
                             "a";
    std::size_t position = 0;
    EXPECT_EQ(NextCodePoint(text, position), kReplacementCharacter);
    EXPECT_EQ(position, 1U);
    EXPECT_EQ(NextCodePoint(text, position), kReplacementCharacter);
    EXPECT_EQ(NextCodePoint(text, position), U'a');
}

} // namespace quillon
