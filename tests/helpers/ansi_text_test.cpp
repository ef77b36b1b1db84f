#include "helpers/ansi_text.h"

#include "helpers/utf8.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(AnsiText, EveryByteSurvivesTheWayInAndOut)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const Text text = AnsiText::FromBytes(all);
    EXPECT_TRUE(IsUtf8(text));
    EXPECT_TRUE(AnsiText::Holds(text));
    EXPECT_EQ(AnsiText::ToBytes(text), all);
}

TEST(AnsiText, KnowsTheLettersOfTheCodePage)
{
    EXPECT_EQ(AnsiText::ToBytes("Å€š"), "\xC5\x80\x9A");
    EXPECT_EQ(AnsiText::FromBytes("\x9D\x9E"), "\xC2\x9D\xC5\xBE");
}

TEST(AnsiText, SaysWhatItCannotHold)
{
    EXPECT_TRUE(AnsiText::Holds("räksmörgås"));
    EXPECT_FALSE(AnsiText::Holds("Ω"));
    EXPECT_FALSE(AnsiText::Holds("a\xC3")) << "a name that is no text at all";
    EXPECT_EQ(AnsiText::ToBytes("aΩ"), "a?");
}

} // namespace quillon
