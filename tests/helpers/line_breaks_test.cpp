#include "helpers/line_breaks.h"

#include "helpers/ansi_text.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(EncodeLineBreaks, MakesTheBytes157And158)
{
    EXPECT_EQ(AnsiText::ToBytes(EncodeLineBreaks("a\r\nb")), "a\x9D\x9E"
                                                             "b");
    EXPECT_EQ(EncodeLineBreaks(""), "");
}

TEST(EncodeLineBreaks, LetsALoneCarriageReturnEatTheNextCharacter)
{
    EXPECT_EQ(DecodeLineBreaks(EncodeLineBreaks("a\råb")), "a\r\nb");
    EXPECT_EQ(DecodeLineBreaks(EncodeLineBreaks("a\r")), "a\r\n");
}

TEST(DecodeLineBreaks, LetsATypedByte157EatTheNextCharacter)
{
    EXPECT_EQ(DecodeLineBreaks(AnsiText::FromBytes("a\x9Dxb")), "a\r\nb");
    EXPECT_EQ(DecodeLineBreaks(AnsiText::FromBytes("\x9D")), "\r\n");
    EXPECT_EQ(DecodeLineBreaks(AnsiText::FromBytes("\x9E")), AnsiText::FromBytes("\x9E"));
}

TEST(FirstLineOnly, CutsBeforeTheFirstLineBreak)
{
    EXPECT_EQ(FirstLineOnly("a\r\nb"), "a");
    EXPECT_EQ(FirstLineOnly("\r\nb"), "");
    EXPECT_EQ(FirstLineOnly("a\nb"), "a\nb");
}

} // namespace quillon
