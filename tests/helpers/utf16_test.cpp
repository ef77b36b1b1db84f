#include "helpers/utf16.h"

namespace quillon {
namespace {

TEST(FromUtf16, ReadsLettersAndPairs)
{
    EXPECT_EQ(FromUtf16(std::string("a\0\xE5\0\x3D\xD8\0\xDE", 8)), "aå\xF0\x9F\x98\x80");
    EXPECT_EQ(FromUtf16(std::string("\xFF\xD7\0\xE0", 4)), "\xED\x9F\xBF\xEE\x80\x80")
        << "the neighbours of the halves are characters";
    EXPECT_EQ(FromUtf16(""), "");
}

TEST(FromUtf16, ReplacesHalfAPairAndPassesOverALastOddByte)
{
    EXPECT_EQ(FromUtf16(std::string("\0\xD8\x61\0", 4)), "\xEF\xBF\xBD"
                                                         "a");
    EXPECT_EQ(FromUtf16(std::string("\0\xDC", 2)), "\xEF\xBF\xBD");
    EXPECT_EQ(FromUtf16(std::string("\x3D\xD8", 2)), "\xEF\xBF\xBD");
    EXPECT_EQ(FromUtf16(std::string("a\0b", 3)), "a");
}

} // namespace
} // namespace quillon
