#include "filelist/duplicates.h"

#include "filelist/list_builder.h"
#include "filelist/sort.h"
#include "helpers/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quillon::test {

namespace {

// The duplicate test as it is told: a walk over a list whose rows stand in their order.
bool WalkOverList(const FileList& list, const Text& name, const Text& source,
                  const Text& destination)
{
    if (list.rows.empty())
        return false;
    std::size_t first = 0;
    std::size_t last = list.rows.size() - 1;
    if (list.rows.size() >= 100 && list.sortKey == Filename) {
        const double half = static_cast<double>(list.rows.size()) / 2;
        const auto middle = static_cast<std::size_t>(RoundToEven(half)) - 1;
        if (UpperCase(name) > UpperCase(list.rows[middle][Filename]))
            first = middle;
        else
            last = middle;
    }
    for (std::size_t i = first; i <= last; ++i) {
        const FileListRow& row = list.rows[i];
        if (EqualIgnoreCase(row[Filename], name) &&
            (EqualIgnoreCase(row[Source], source) ||
             EqualIgnoreCase(row[Destination], destination)))
            return true;
    }
    return false;
}

void PutWhereItBelongs(FileList& list, const FileListRow& row)
{
    list.rows.push_back(row);
    SortRows(list);
}

struct ListKind {
    const char* name;
    Column sortKey;
    bool descending;
    bool sorted;
};

constexpr ListKind kListKinds[] = {
    {"ascending", Filename, false, true},
    {"descending", Filename, true, true},
    {"as added", Filename, false, false},
    {"by another column", Destination, false, true},
};

class RandomRows {
public:
    explicit RandomRows(unsigned seed) : random_(seed) {}

    FileListRow Next()
    {
        static const std::vector<Text> kLetters = {"a", "B", "b", "_", "å", "Å", "z", "."};
        const Text name = kLetters[Below(8)] + kLetters[Below(8)] + kLetters[Below(4)];
        const Text folder = "C:\\" + NumberText(static_cast<int>(Below(6))) + "\\";
        return MakeRow(name, "%D" + NumberText(static_cast<int>(Below(6))), folder + name);
    }

private:
    std::size_t Below(std::size_t count) { return random_() % count; }

    std::mt19937 random_;
};

FileList RowsNamedByNumber(int count)
{
    FileList list;
    for (int i = 1; i <= count; ++i) {
        const Text number = NumberText(1000 + i);
        list.rows.push_back(MakeRow("f" + number, "%D" + number, "c:\\s\\" + number));
    }
    return list;
}

} // namespace

TEST(DuplicateIndex, AgreesWithTheWalkOverTheListForEveryAdditionToAnyKindOfList)
{
    for (const ListKind& kind : kListKinds)
        for (unsigned seed = 1; seed <= 6; ++seed) {
            FileList grown;
            grown.sortKey = kind.sortKey;
            grown.sortDescending = kind.descending;
            grown.sorted = kind.sorted;
            FileList ordered = grown;
            RandomRows random(seed);
            for (unsigned i = 0; i < 40 * seed; ++i) {
                grown.rows.push_back(random.Next());
                PutWhereItBelongs(ordered, grown.rows.back());
            }
            grown = ordered;

            DuplicateIndex index(grown);
            int found = 0;
            for (int i = 0; i < 300; ++i) {
                const FileListRow row = random.Next();
                const bool told =
                    index.IsFileAlreadyInList(row[Filename], row[Source], row[Destination]);
                ASSERT_EQ(told, WalkOverList(ordered, row[Filename], row[Source], row[Destination]))
                    << kind.name << ", " << ordered.rows.size() << " rows, " << row[Filename];
                found += told ? 1 : 0;
                grown.rows.push_back(row);
                index.NoteNewRow();
                PutWhereItBelongs(ordered, row);
            }
            EXPECT_GT(found, 0);
            EXPECT_LT(found, 300);
            SortRows(grown);
            EXPECT_EQ(grown.rows, ordered.rows) << kind.name;
        }
}

TEST(DuplicateIndex, FindsNothingInAnEmptyList)
{
    const FileList list;
    EXPECT_FALSE(DuplicateIndex(list).IsFileAlreadyInList("", "", ""));
}

TEST(DuplicateIndex, WantsTheNameAndEitherTheSourceOrTheDestination)
{
    const FileList list = MakeList({MakeRow("Läs.TXT", "%DESTDIR\\Å", "c:\\data\\läs.txt")});
    const DuplicateIndex index(list);
    const auto inList = [&](const Text& name, const Text& source, const Text& destination) {
        return index.IsFileAlreadyInList(name, source, destination);
    };
    EXPECT_TRUE(inList("läs.txt", "C:\\DATA\\LÄS.TXT", "%WINDIR")) << "same source";
    EXPECT_TRUE(inList("LÄS.txt", "c:\\other\\läs.txt", "%destdir\\å")) << "same destination";
    EXPECT_FALSE(inList("läs.txt", "c:\\other\\läs.txt", "%WINDIR"));
    EXPECT_FALSE(inList("annan.txt", "c:\\data\\läs.txt", "%DESTDIR\\Å")) << "another name";
}

TEST(DuplicateIndex, LetsEmptyFolderRowsStandSideBySide)
{
    const FileList list = MakeList({MakeRow("<Dir>", "%DESTDIR\\Temp")});
    const DuplicateIndex index(list);
    EXPECT_FALSE(index.IsFileAlreadyInList("a.txt", "c:\\a.txt", "%DESTDIR\\Temp"));
    EXPECT_TRUE(index.IsFileAlreadyInList("<Dir>", "c:\\<dir>", "%DESTDIR\\Temp"))
        << "but a file of that name meets them";
}

TEST(DuplicateIndex, FindsEveryRowOfAnAscendingListOfAHundredTheMiddleOneTooFromBothHalves)
{
    FileList list = RowsNamedByNumber(100);
    const DuplicateIndex index(list);
    for (const FileListRow& row : list.rows)
        EXPECT_TRUE(index.IsFileAlreadyInList(row[Filename], row[Source], "%OTHER"));

    // Row 50 is the middle one: as its own name it ends the first half.
    list.rows[50][Filename] = list.rows[49][Filename];
    const DuplicateIndex twins(list);
    EXPECT_TRUE(twins.IsFileAlreadyInList("f1050", "c:\\s\\1050", "%OTHER"));
    EXPECT_FALSE(twins.IsFileAlreadyInList("f1050", "c:\\s\\1051", "%OTHER"))
        << "kept: a second row of the middle name lies behind the half that is looked at";
}

TEST(DuplicateIndex, MissesRowsOfADescendingListFromAHundredOn)
{
    for (const int count : {99, 100}) {
        FileList list = RowsNamedByNumber(count);
        SortRowsBy(list, Filename, true);
        const DuplicateIndex index(list);
        const bool missesLongLists = count == 100;
        EXPECT_EQ(index.IsFileAlreadyInList("f1001", "c:\\s\\1001", ""), !missesLongLists);
        EXPECT_EQ(index.IsFileAlreadyInList("f1090", "c:\\s\\1090", ""), !missesLongLists);
    }
}

TEST(DuplicateIndex, SearchesTheWholeListUnderAnotherSortKey)
{
    FileList list = RowsNamedByNumber(200);
    std::ranges::reverse(list.rows);
    list.sorted = false;
    list.sortKey = Date;
    EXPECT_TRUE(DuplicateIndex(list).IsFileAlreadyInList("f1001", "c:\\s\\1001", ""));
    list.sortKey = Filename;
    EXPECT_FALSE(DuplicateIndex(list).IsFileAlreadyInList("f1001", "c:\\s\\1001", ""));
}

TEST(DuplicateIndex, RoundsTheMiddleOfAnOddCountToTheEvenRow)
{
    // 101 rows have their middle at row 50, 103 rows at row 52: rows 51 and 53 lie behind it.
    for (const auto& [count, middle] : {std::pair(101, 50), std::pair(103, 52)}) {
        FileList list = RowsNamedByNumber(count);
        const auto behindMiddle = static_cast<std::size_t>(middle);
        list.rows[behindMiddle][Filename] = list.rows[behindMiddle - 1][Filename];
        const DuplicateIndex index(list);
        const Text name = list.rows[behindMiddle][Filename];
        EXPECT_TRUE(index.IsFileAlreadyInList(name, list.rows[behindMiddle - 1][Source], ""));
        EXPECT_FALSE(index.IsFileAlreadyInList(name, list.rows[behindMiddle][Source], ""));
    }
}

TEST(DuplicateIndex, NeverMissesANameWithAnUnderscoreInAnAscendingList)
{
    FileList list;
    for (int i = 0; i < 100; ++i)
        list.rows.push_back(
            MakeRow((i % 2 == 0 ? "a_" : "Ab") + NumberText(100 + i), "%D", "c:\\x"));
    SortRowsBy(list, Filename);
    const DuplicateIndex index(list);
    for (const FileListRow& row : list.rows)
        EXPECT_TRUE(index.IsFileAlreadyInList(row[Filename], "c:\\x", "%OTHER")) << row[Filename];
}

TEST(IsFilenameInFileList, ComparesWholeNamesWithoutCase)
{
    const FileList list = MakeList({MakeRow("a.txt"), MakeRow("Ö.DLL")});
    EXPECT_TRUE(IsFilenameInFileList(list, "ö.dll"));
    EXPECT_TRUE(IsFilenameInFileList(list, "A.TXT"));
    EXPECT_FALSE(IsFilenameInFileList(list, "a.tx"));
    EXPECT_FALSE(IsFilenameInFileList(FileList(), ""));
}

} // namespace quillon::test
