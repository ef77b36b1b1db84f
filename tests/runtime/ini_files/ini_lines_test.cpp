#include "runtime/ini_files/ini_lines.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(ReadIniLines, GivesEachValueItsFileAndSection)
{
    const IniList list = ReadIniLines("-- WIN.INI --\r\n[Settings]\r\nPath=%DESTDIR\r\nTom=\r\n"
                                      "\r\n-- APP.INI --\r\n[A]\r\n[B]\r\nx = a=b \r\n");
    EXPECT_TRUE(list.unreadable.empty());
    ASSERT_EQ(list.lines.size(), 6U);
    EXPECT_EQ(list.lines[0].section, "Settings");
    EXPECT_EQ(list.lines[0].name, "");
    EXPECT_EQ(list.lines[1].file, "WIN.INI");
    EXPECT_EQ(list.lines[1].name, "Path");
    EXPECT_EQ(list.lines[1].value, "%DESTDIR");
    EXPECT_EQ(list.lines[2].value, "");
    EXPECT_EQ(list.lines[3].file, "APP.INI");
    EXPECT_EQ(list.lines[3].section, "A");
    EXPECT_EQ(list.lines[5].section, "B");
    EXPECT_EQ(list.lines[5].name, "x");
    EXPECT_EQ(list.lines[5].value, " a=b");
}

TEST(ReadIniLines, TellsWhyALineIsNone)
{
    const IniList list = ReadIniLines("[A]\r\nx=1\r\n-- A.INI --\r\ny=1\r\n[A]\r\nz\r\n=1\r\n;k\r\n"
                                      "-- B.INI --\r\nw=1");
    ASSERT_EQ(list.unreadable.size(), 7U);
    EXPECT_EQ(list.unreadable[0].reason, Message::SkipIniNoFile);
    EXPECT_EQ(list.unreadable[1].line, "x=1");
    EXPECT_EQ(list.unreadable[2].reason, Message::SkipIniNoSection);
    EXPECT_EQ(list.unreadable[3].reason, Message::SkipIniUnreadable);
    EXPECT_EQ(list.unreadable[4].line, "=1");
    EXPECT_EQ(list.unreadable[5].reason, Message::SkipIniComment);
    // A new file header ends the section above it.
    EXPECT_EQ(list.unreadable[6].line, "w=1");
    ASSERT_EQ(list.lines.size(), 1U);
}

TEST(ReadIniLines, TakesAnEmptyList)
{
    EXPECT_TRUE(ReadIniLines("").lines.empty());
    EXPECT_TRUE(ReadIniLines("").unreadable.empty());
}

} // namespace quillon
