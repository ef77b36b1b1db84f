#include "filelist/view/totals.h"

#include "filelist/list_builder.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

constexpr const char* kFailure =
    "Ett fel inträffade totalsumman av filstorlekarna skulle beräknas i fillistan! Kan bero på att "
    "decimalavskiljaren inte är av standardtyp (punkt eller komma).";

FileList ListOfSizes(std::initializer_list<const char*> sizes)
{
    FileList list;
    for (const char* const size : sizes) {
        list.rows.push_back(MakeRow("a.txt"));
        list.rows.back()[Size] = size;
    }
    return list;
}

} // namespace

TEST(GetTotalSizeOfFiles, SumsUpAndRoundsTheSumOnceHalvesToTheEvenNeighbour)
{
    ScriptedAsk ask;
    EXPECT_EQ(GetTotalSizeOfFiles(FileList(), ',', ask), 0);
    EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"10,5", "20,0"}), ',', ask), 30);
    EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"11,5", "20,0"}), ',', ask), 32);
    EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"0,3", "0,3"}), ',', ask), 1) << "not row by row";
    EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"0,0"}), ',', ask), 0);
    EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"", "0", "7"}), ',', ask), 7)
        << "folders have no size, vanished files 0";
    EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"1.5", "1.0"}), '.', ask), 2);
    EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"2147483647,0"}), ',', ask), 2147483647);
}

TEST(GetTotalSizeOfFiles, TellsASizeThatIsNoNumberHereAndGivesZero)
{
    for (const char* const size : {"1.5", "abc", "1,5x", "2147483648,0", "2147483647,5"}) {
        ScriptedAsk ask({{BoxKind::Critical, "Fel", kFailure}});
        EXPECT_EQ(GetTotalSizeOfFiles(ListOfSizes({"10,0", size}), ',', ask), 0) << size;
    }
}

TEST(GetTotalSizeOfFilesX, LeavesSystemFilesOutForNewWindowsOnly)
{
    FileList list = ListOfSizes({"1,0", "10,0", "100,0"});
    list.rows[1][Filename] = "mfc42.dll";
    ScriptedAsk ask;
    EXPECT_EQ(GetTotalSizeOfFilesX(list, 0, ',', ask), 111);
    EXPECT_EQ(GetTotalSizeOfFilesX(list, 1, ',', ask), 101);
    EXPECT_EQ(GetTotalSizeOfFiles(list, ',', ask), 111);
}

TEST(GetTotalSizeOfFilesX, TellsOnlyTheFailuresOfRowsThatCount)
{
    FileList list = ListOfSizes({"1,0", "x"});
    list.rows[1][Filename] = "MSVCRT.DLL";
    ScriptedAsk quiet;
    EXPECT_EQ(GetTotalSizeOfFilesX(list, 1, ',', quiet), 1);
    ScriptedAsk ask({{BoxKind::Critical, "Fel", kFailure}});
    EXPECT_EQ(GetTotalSizeOfFilesX(list, 0, ',', ask), 0);
}

} // namespace quillon::test
