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

TEST(RowTable, HoldsEveryKindOfRowHoweverManyHaveOneHash)
{
    constexpr RowNumber kKinds = 700;
    for (const std::size_t hashes : {std::size_t(1), std::size_t(50), std::size_t(100000)}) {
        RowTable table;
        for (RowNumber number = 0; number < 2000; ++number) {
            const auto hash = number % kKinds % hashes;
            EXPECT_EQ(table.Holds(hash, SameRemainder{number, kKinds}), number >= kKinds);
            table.Add(number, hash, SameRemainder{number, kKinds});
        }
    }
}

TEST(RowTable, FindsNothingThatIsOnlyOfTheSameHash)
{
    RowTable table;
    const auto isRowFive = [](RowNumber number) { return number == 5; };
    EXPECT_FALSE(table.Holds(1, isRowFive));
    table.Add(4, 1, isRowFive);
    EXPECT_FALSE(table.Holds(1, isRowFive));
    table.Add(5, 1, isRowFive);
    EXPECT_TRUE(table.Holds(1, isRowFive));
    EXPECT_FALSE(table.Holds(2, isRowFive));
}

} // namespace quillon::test
