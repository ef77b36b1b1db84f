#include "filelist/adding/duplicates.h"

#include "filelist/list_builder.h"
#include "filelist/view/sort.h"
#include "helpers/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quillon::test {

namespace {

// The duplicate test in its plain form, a walk over all rows.
bool WalkOverList(const FileList& list, const Text& name, const Text& source,
                  const Text& destination)
{
    return std::ranges::any_of(list.rows, [&](const FileListRow& row) {
        return EqualIgnoreCase(row[Filename], name) &&
               (EqualIgnoreCase(row[Source], source) ||
                EqualIgnoreCase(row[Destination], destination));
    });
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

TEST(DuplicateIndex, FindsEveryRowOfALongListHoweverItIsSorted)
{
    for (const int count : {99, 100, 101, 103, 200})
        for (const ListKind& kind : kListKinds) {
            FileList list = RowsNamedByNumber(count);
            SortRowsBy(list, kind.sortKey, kind.descending);
            list.sorted = kind.sorted;
            const DuplicateIndex index(list);
            for (const FileListRow& row : list.rows)
                ASSERT_TRUE(index.IsFileAlreadyInList(row[Filename], row[Source], "%OTHER"))
                    << kind.name << ", " << count << " rows, " << row[Filename];
        }
}

TEST(DuplicateIndex, FindsEachOfManyRowsOfTheMiddleName)
{
    // A tree of a hundred folders with a file of the same name in each.
    FileList list;
    for (int i = 0; i < 100; ++i)
        list.rows.push_back(MakeRow("readme.txt", "%DESTDIR\\" + NumberText(i),
                                    "c:\\s\\" + NumberText(i) + "\\readme.txt"));
    const DuplicateIndex index(list);
    for (const FileListRow& row : list.rows) {
        EXPECT_TRUE(index.IsFileAlreadyInList("README.TXT", row[Source], "%OTHER"));
        EXPECT_TRUE(index.IsFileAlreadyInList("readme.txt", "c:\\other", row[Destination]));
    }
    EXPECT_FALSE(index.IsFileAlreadyInList("readme.txt", "c:\\s\\100\\readme.txt", "%OTHER"));
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
