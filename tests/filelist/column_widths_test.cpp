#include "filelist/view/column_widths.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(ColumnWidths, ComeBackAsTheyWereWritten)
{
    const ColumnWidths widths{{Filename, 120}, {Destination, 300}, {Source, 250}};
    EXPECT_EQ(ColumnWidthsText(widths), "0:120 1:300 9:250");
    EXPECT_EQ(ReadColumnWidths("0:120 1:300 9:250"), widths);
    EXPECT_EQ(ColumnWidthsText({}), "");
    EXPECT_EQ(ReadColumnWidths(""), ColumnWidths());
}

TEST(ColumnWidths, PassOverWhatIsNone)
{
    const ColumnWidths one{{Destination, 300}};
    for (const char* const text :
         {"  1:300  ", "x 1:300", "1:300 15:40", "1:300 2:", ":5 1:300", "-1:40 1:300",
          "1:300 2:-4", "1:300 2:7", "1:300 3:10001", "1:300 3:1e3", "1:300 99999999999999999999:9",
          "1:300 2:99999999999999999999", "1:200 1:300", "0:1:2 1:300"})
        EXPECT_EQ(ReadColumnWidths(text), one) << text;
}

} // namespace quillon::test
