#include "filelist/view/sort.h"

#include "filelist/list_builder.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;

namespace {

FileList ThreeRows()
{
    FileList list = MakeList(
        {MakeRow("b", "%Z", "c:\\2"), MakeRow("A", "%y", "c:\\3"), MakeRow("c", "%X", "c:\\1")});
    const char* const dates[] = {"2004-02-01", "2003-12-31", "2004-01-15"};
    const char* const times[] = {"09:30", "23:59", "00:00"};
    const char* const icons[] = {"", "Ikon", "IkonD"};
    const char* const options[] = {"V", "DA", "VRA"};
    const char* const components[] = {"2", "", "1"};
    const char* const sizes[] = {"10,0", "9,0", "100,0"};
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
        list.rows[i][Date] = dates[i];
        list.rows[i][Time] = times[i];
        list.rows[i][IconMarker] = icons[i];
        list.rows[i][CopyOptions] = options[i];
        list.rows[i][ComponentNumber] = components[i];
        list.rows[i][Size] = sizes[i];
    }
    return list;
}

struct Click {
    const char* header;
    Column key;
    bool descending;
    std::vector<Text> names;
};

TEST(KeepStoredOrder, SortsByNameFromThenOnWhatStandsByName)
{
    FileList list = MakeList({MakeRow("a_1"), MakeRow("AB"), MakeRow("b")});
    std::swap(list.rows[0], list.rows[1]);
    list.sorted = false;
    list.sortKey = Date;
    list.sortDescending = true;
    KeepStoredOrder(list);
    EXPECT_TRUE(list.sorted);
    EXPECT_EQ(list.sortKey, Filename);
    EXPECT_FALSE(list.sortDescending);
    EXPECT_EQ(list.rows[0][Filename], "AB");
}

TEST(KeepStoredOrder, LeavesAnyOtherOrderAlone)
{
    FileList list = MakeList({MakeRow("b"), MakeRow("a")});
    KeepStoredOrder(list);
    EXPECT_FALSE(list.sorted);
    EXPECT_NE(list.sortKey, Filename) << "duplicates are looked for in the whole list";
    EXPECT_EQ(list.rows[0][Filename], "b");
    SortRows(list);
    EXPECT_EQ(list.rows[0][Filename], "b");
    FileList none;
    KeepStoredOrder(none);
    EXPECT_TRUE(none.sorted);
}

} // namespace

TEST(HandleColumnClick, SortsByTheColumnOfTheHeader)
{
    const Click clicks[] = {
        {"Filnamn", Filename, false, {"A", "b", "c"}},
        {"Destination", Destination, false, {"c", "A", "b"}},
        {"Datum", Date, false, {"A", "c", "b"}},
        {"Tid", Time, false, {"c", "b", "A"}},
        {"Ikon", IconMarker, true, {"c", "A", "b"}},
        {"Inst", CopyOptions, false, {"A", "b", "c"}},
        {"K", ComponentNumber, false, {"A", "c", "b"}},
        {"Källa", Source, false, {"c", "b", "A"}},
    };
    for (const Click& click : clicks) {
        FileList list = ThreeRows();
        list.sorted = false;
        list.sortDescending = true;
        HandleColumnClick(list, click.header);
        EXPECT_EQ(list.sortKey, click.key) << click.header;
        EXPECT_EQ(list.sortDescending, click.descending) << click.header;
        EXPECT_TRUE(list.sorted) << click.header;
        EXPECT_EQ(NamesOf(list), click.names) << click.header;
    }
}

TEST(HandleColumnClick, KeepsTheKeyOnAColumnWithoutEntryAndSortsAgainAscending)
{
    for (const char* const header : {"Storlek (kb)", "Ext", "IconDesc", ""}) {
        FileList list = ThreeRows();
        HandleColumnClick(list, "Ikon");
        HandleColumnClick(list, header);
        EXPECT_EQ(list.sortKey, IconMarker) << header;
        EXPECT_FALSE(list.sortDescending) << header;
        EXPECT_THAT(NamesOf(list), ElementsAre("b", "A", "c")) << header;
    }
}

TEST(SortRows, KeepsEqualRowsInTheirOrderBothWays)
{
    FileList list = MakeList({MakeRow("x", "%A", "1"), MakeRow("X", "%a", "2"),
                              MakeRow("a", "%B", "3"), MakeRow("x", "%A", "4")});
    SortRowsBy(list, Filename);
    EXPECT_THAT(list.rows[1][Source] + list.rows[2][Source] + list.rows[3][Source], "124");
    SortRowsBy(list, Filename, true);
    EXPECT_THAT(list.rows[0][Source] + list.rows[1][Source] + list.rows[2][Source], "124");
}

TEST(SortRows, LeavesAListAloneThatIsNotSorted)
{
    FileList list = ThreeRows();
    list.sorted = false;
    EXPECT_THAT(SortRows(list), ElementsAre(0, 1, 2));
    EXPECT_THAT(NamesOf(list), ElementsAre("b", "A", "c"));
}

TEST(SortRows, TellsWhereEachRowWent)
{
    FileList list = ThreeRows();
    EXPECT_THAT(SortRowsBy(list, Filename), ElementsAre(1, 0, 2));
    EXPECT_THAT(SortRowsBy(list, Filename), ElementsAre(0, 1, 2));
    EXPECT_THAT(SortRowsBy(list, Source), ElementsAre(2, 1, 0));
}

TEST(SortRows, FollowsTheSwedishAlphabet)
{
    for (const Column key : {Filename, Destination, Source}) {
        FileList list;
        for (const char* const text : {"öga", "Ängel", "zon", "år", "Idé", "idea", "IDF"})
            list.rows.emplace_back()[key] = text;
        SortRowsBy(list, key);
        std::vector<Text> texts;
        for (const FileListRow& row : list.rows)
            texts.push_back(row[key]);
        EXPECT_THAT(texts, ElementsAre("Idé", "idea", "IDF", "zon", "år", "Ängel", "öga"));
    }
}

TEST(SortRows, KeepsAFolderBesideItsSubFolders)
{
    FileList list =
        MakeList({MakeRow("1", "%D\\DATABASE"), MakeRow("2", "%D\\data\\sub"),
                  MakeRow("3", "%D\\Data"), MakeRow("4", "%D\\Äpple"), MakeRow("5", "%D\\äpple")});
    SortRowsBy(list, Destination);
    EXPECT_THAT(NamesOf(list), ElementsAre("3", "2", "1", "4", "5"));
}

} // namespace quillon::test
