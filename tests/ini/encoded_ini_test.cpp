#include "ini/encoded_ini.h"

#include "helpers/utf16.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

const std::string kMark = "\xFF\xFE";

std::string InUtf16(std::string_view text)
{
    return kMark + ToUtf16(text);
}

} // namespace

TEST(EncodedIni, ChangesAFileInUtf16AndLeavesTheRestOfItsBytes)
{
    auto file = EncodedIni::Read(InUtf16("; Ж 😀\r\n[Ärenden]\r\n Ö = щ \r\n"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->Decoded(*file->ini.LineOf(file->Coded("ärenden"), file->Coded("ö"))),
              " Ö = щ ");
    file->ini.SetValue(file->Coded("ÄRENDEN"), file->Coded("Namn"), file->Coded("Юля"));
    EXPECT_EQ(file->Bytes(), InUtf16("; Ж 😀\r\n[Ärenden]\r\n Ö = щ \r\nNamn=Юля\r\n"));
}

TEST(EncodedIni, KeepsTheCodePageOfAFileWithoutAMark)
{
    auto file = EncodedIni::Read("[\xC4]\r\nx=1\r\n");
    ASSERT_TRUE(file);
    file->ini.SetValue(file->Coded("Ä"), file->Coded("x"), file->Coded("å"));
    EXPECT_EQ(file->Bytes(), "[\xC4]\r\nx=\xE5\r\n");
    EXPECT_EQ(file->Decoded("\xE5"), "å");
    // A mark of UTF-8 is three letters of the code page to Windows.
    EXPECT_TRUE(EncodedIni::Read("\xEF\xBB\xBF[A]\r\n"));
    EXPECT_EQ(EncodedIni::Read("\xEF\xBB\xBF[A]\r\n")->Bytes(), "\xEF\xBB\xBF[A]\r\n");
}

TEST(EncodedIni, IsWholeWithNothingButItsMark)
{
    auto file = EncodedIni::Read(kMark);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->ini.Bytes(), "");
    EXPECT_EQ(file->Bytes(), kMark);
    file->ini.SetValue("A", "b", "c");
    EXPECT_EQ(file->Bytes(), InUtf16("[A]\r\nb=c\r\n"));
    // Of the two, only this one is Windows' own.
    EXPECT_TRUE(EncodedIni::Read("\xFF"));
}

TEST(EncodedIni, IsNoneWhereItCouldNotBeWrittenBack)
{
    const std::string text = InUtf16("[A]\r\n");
    EXPECT_TRUE(EncodedIni::Read(text));
    EXPECT_FALSE(EncodedIni::Read(text + "x")) << "an odd byte";
    EXPECT_FALSE(EncodedIni::Read(text + std::string("\x3D\xD8", 2))) << "a high surrogate alone";
    EXPECT_FALSE(EncodedIni::Read(text + std::string("\x00\xDE", 2))) << "a low surrogate alone";
    EXPECT_FALSE(EncodedIni::Read(std::string("\xFE\xFF\0[\0A\0]", 8))) << "high bytes first";
}

// U+FFFD itself is a character like any other, and so is NUL.
TEST(EncodedIni, KeepsCharactersThatLookLikeFaults)
{
    const std::string odd = InUtf16(std::string("\xEF\xBF\xBD\0[A]\r\n", 9));
    ASSERT_TRUE(EncodedIni::Read(odd));
    EXPECT_EQ(EncodedIni::Read(odd)->Bytes(), odd);
}

} // namespace quillon
