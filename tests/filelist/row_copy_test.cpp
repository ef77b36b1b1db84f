#include "filelist/row_copy.h"

#include "filelist/list_builder.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(TabSeparatedRows, HasALineForEachRowAndATabBetweenColumns)
{
    const FileList list = MakeList({MakeRow("a.txt", "%DESTDIR", "c:\\a.txt"), MakeRow("b.txt"),
                                    MakeRow("å.txt", "%WINDIR", "c:\\å.txt")});
    const std::size_t rows[] = {0, 2};
    const Column columns[] = {Filename, Size, Destination};
    EXPECT_EQ(TabSeparatedRows(list, rows, columns), "a.txt\t\t%DESTDIR\nå.txt\t\t%WINDIR\n");
    EXPECT_EQ(TabSeparatedRows(list, {}, columns), "");
}

TEST(WholeRows, ComeBackWithAllTheirColumns)
{
    FileListRow row = MakeRow("å.txt", "%WINDIR\\Å", "c:\\å.txt");
    row[Size] = "12,5";
    row[IconDesc] = "Räknaren = 1";
    row[IconDocReader] = "<Ingen>";
    const FileList list = MakeList({row, MakeRow("b.txt"), MakeRow("<Dir>", "%DESTDIR\\Temp")});
    const std::size_t rows[] = {0, 2};
    const std::string bytes = WholeRows(list, rows);
    EXPECT_EQ(bytes, "Quillon FileList 1\r\n"
                     "F1=\xE5.txt;%WINDIR\\\xC5;12,5;;;;;;;c:\\\xE5.txt;R\xE4knaren = "
                     "1;;;;<Ingen>;\r\n"
                     "F2=<Dir>;%DESTDIR\\Temp;;;;;;;;;;;;;;\r\n");
    const auto back = RowsOfBytes(bytes, ',');
    ASSERT_EQ(back.size(), 2U);
    EXPECT_EQ(back[0], list.rows[0]);
    EXPECT_EQ(back[1], list.rows[2]);
    EXPECT_EQ(RowsOfBytes(bytes, '.')[0][Size], "12.5") << "the sign of the machine";
}

TEST(WholeRows, AreNothingOfAnotherKindAndEndAtABrokenLine)
{
    EXPECT_TRUE(RowsOfBytes("", ',').empty());
    EXPECT_TRUE(RowsOfBytes("F1=a;;;;;;;;;;;;;;;\r\n", ',').empty());
    const std::string whole = "Quillon FileList 1\r\nF1=a;;;;;;;;;;;;;;;\r\n";
    EXPECT_EQ(RowsOfBytes(whole, ',').size(), 1U);
    EXPECT_EQ(RowsOfBytes(whole + "F2=b;c;\r\nF3=d;;;;;;;;;;;;;;;\r\n", ',').size(), 1U);
    EXPECT_EQ(RowsOfBytes(whole + "F2=b;;;;;;;;;;;;;;;", ',').size(), 1U) << "no line end";
}

} // namespace
} // namespace quillon::test
