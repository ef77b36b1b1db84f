#include "filelist/row_table.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

// Rows are alike when they leave the same remainder, whatever their hashes are.
struct SameRemainder {
    RowNumber number;
    RowNumber divisor;
    bool operator()(RowNumber other) const { return other % divisor == number % divisor; }
};

} // namespace

TEST(RowTable, TellsTheFirstAndTheLastOfTheRowsThatAreAlike)
{
    constexpr RowNumber kKinds = 700;
    for (const std::size_t hashes : {std::size_t(1), std::size_t(50), std::size_t(100000)}) {
        RowTable table;
        for (RowNumber number = 0; number < 2000; ++number)
            table.Add(number, number % kKinds % hashes, SameRemainder{number, kKinds});
        for (RowNumber kind = 0; kind < kKinds; ++kind) {
            const AlikeRows* const rows = table.Find(kind % hashes, SameRemainder{kind, kKinds});
            ASSERT_NE(rows, nullptr) << kind;
            EXPECT_EQ(rows->first, kind);
            EXPECT_EQ(rows->last, kind + (kind < 600 ? 1400 : 700));
        }
    }
}

TEST(RowTable, FindsNothingThatIsOnlyOfTheSameHash)
{
    RowTable table;
    const auto isRowFive = [](RowNumber number) { return number == 5; };
    EXPECT_EQ(table.Find(1, isRowFive), nullptr);
    table.Add(4, 1, isRowFive);
    EXPECT_EQ(table.Find(1, isRowFive), nullptr);
    table.Add(5, 1, isRowFive);
    ASSERT_NE(table.Find(1, isRowFive), nullptr);
    EXPECT_EQ(table.Find(1, isRowFive)->first, 5U);
    EXPECT_EQ(table.Find(2, isRowFive), nullptr);
}

} // namespace quillon::test
