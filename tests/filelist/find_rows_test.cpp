#include "filelist/find_rows.h"

#include "filelist/list_builder.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

constexpr Column kColumns[] = {Filename, Destination};

class FindRows : public testing::Test {
protected:
    /// "row place/count"
    Text Find(const Text& text, std::size_t from, FindStep step)
    {
        const auto found = FindRow(list, text, kColumns, from, step);
        return found ? std::to_string(found->row) + " " + std::to_string(found->place) + "/" +
                           std::to_string(found->count)
                     : "none";
    }

    FileList list = MakeList({MakeRow("Åtta.txt"), MakeRow("b.dll", "%SYSDIR"), MakeRow("c.txt"),
                              MakeRow("d.dll", "%WINDIR", "c:\\åtta.txt")});
};

TEST_F(FindRows, LooksIntoTheColumnsWithoutRegardToCase)
{
    EXPECT_EQ(Find("åT", 0, FindStep::Here), "0 1/1") << "the source is no column of these";
    EXPECT_EQ(Find("sysd", 0, FindStep::Here), "1 1/1");
    EXPECT_EQ(Find("nothing", 0, FindStep::Here), "none");
    EXPECT_EQ(Find("", 0, FindStep::Here), "none");
}

TEST_F(FindRows, StaysAtARowThatStillHoldsTheText)
{
    EXPECT_EQ(Find(".DLL", 1, FindStep::Here), "1 1/2");
    EXPECT_EQ(Find(".dll", 2, FindStep::Here), "3 2/2");
}

TEST_F(FindRows, GoesRoundTheListBothWays)
{
    EXPECT_EQ(Find(".dll", 1, FindStep::Next), "3 2/2");
    EXPECT_EQ(Find(".dll", 3, FindStep::Next), "1 1/2");
    EXPECT_EQ(Find(".dll", 3, FindStep::Previous), "1 1/2");
    EXPECT_EQ(Find(".dll", 1, FindStep::Previous), "3 2/2");
    EXPECT_EQ(Find("c.txt", 2, FindStep::Next), "2 1/1") << "the only one";
}

TEST_F(FindRows, FindsNothingInAnEmptyList)
{
    EXPECT_FALSE(FindRow({}, "a", kColumns, 0, FindStep::Here));
}

} // namespace
} // namespace quillon::test
