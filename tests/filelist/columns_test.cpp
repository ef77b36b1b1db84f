#include "filelist/view/columns.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(ListColumns, StandInTheOrderOfTheFieldsWithTheirHeadersAndWidths)
{
    struct Shown {
        std::string_view header;
        int width;
    };
    const std::array<Shown, 15> expected = {{{"Filnamn", 1440},
                                             {"Destination", 2800},
                                             {"Storlek (kb)", 1100},
                                             {"Datum", 1050},
                                             {"Tid", 650},
                                             {"Ikon", 550},
                                             {"Inst", 1000},
                                             {"K", 40},
                                             {"Ext", 0},
                                             {"Källa", 0},
                                             {"IconDesc", 0},
                                             {"IconPar", 0},
                                             {"IconWorkDir", 0},
                                             {"IconFile", 0},
                                             {"IconDocReader", 0}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(kListColumns[i].column, static_cast<Column>(i));
        EXPECT_EQ(kListColumns[i].header, expected[i].header);
        EXPECT_EQ(kListColumns[i].width, expected[i].width) << expected[i].header;
    }
}

} // namespace quillon::test
