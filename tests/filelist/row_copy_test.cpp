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

} // namespace
} // namespace quillon::test
