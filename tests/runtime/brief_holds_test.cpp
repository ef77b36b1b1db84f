// Files that another program holds for a moment.
#include "runtime/brief_holds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>

namespace quillon {
namespace {

using testing::ElementsAre;

class BriefHoldsTest : public testing::Test {
protected:
    /// Fails so many times with that number; how often it was tried.
    int Try(int failures, int number, bool (*mayBeBrief)(int) = BriefHolds::OfFile)
    {
        int tries = 0;
        holds.Outlast(mayBeBrief, [&] {
            if (++tries <= failures)
                throw RunError(number, "C:\\a.txt");
        });
        return tries;
    }

    std::vector<int> pauses;
    BriefHolds holds{[this](int milliseconds) { pauses.push_back(milliseconds); }};
};

TEST_F(BriefHoldsTest, AreWaitedForInLongerAndLongerPauses)
{
    EXPECT_EQ(Try(0, ErrorNumber::kFileInUse), 1);
    EXPECT_THAT(pauses, ElementsAre());
    EXPECT_EQ(Try(2, ErrorNumber::kFileInUse), 3);
    EXPECT_EQ(Try(1, ErrorNumber::kPermissionDenied), 2);
    EXPECT_THAT(pauses, ElementsAre(20, 50, 20));
    EXPECT_EQ(Try(4, ErrorNumber::kFileInUse), 5);
}

TEST_F(BriefHoldsTest, ThatDoNotEndFailAsTheLastTryDoes)
{
    EXPECT_EQ(RunErrorNumber([&] { Try(99, ErrorNumber::kFileInUse); }), ErrorNumber::kFileInUse);
    EXPECT_THAT(pauses, ElementsAre(20, 50, 100, 200));
}

TEST_F(BriefHoldsTest, AreNoReasonForOtherFailures)
{
    EXPECT_EQ(RunErrorNumber([&] { Try(1, ErrorNumber::kDiskFull); }), ErrorNumber::kDiskFull);
    EXPECT_EQ(RunErrorNumber([&] { Try(1, ErrorNumber::kPathFileAccess); }),
              ErrorNumber::kPathFileAccess);
    EXPECT_THAT(pauses, ElementsAre());
    EXPECT_EQ(Try(1, ErrorNumber::kPathFileAccess, BriefHolds::OfFolder), 2);
}

TEST_F(BriefHoldsTest, AreWaitedForNoLongerWhereThatHasBeenInVainTooOften)
{
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(RunErrorNumber([&] { Try(99, ErrorNumber::kFileInUse); }),
                  ErrorNumber::kFileInUse);
    EXPECT_LE(std::accumulate(pauses.begin(), pauses.end(), 0), 1500);
    // What succeeds shows that waiting helps.
    EXPECT_EQ(Try(0, ErrorNumber::kFileInUse), 1);
    EXPECT_EQ(Try(2, ErrorNumber::kFileInUse), 3);
}

} // namespace
} // namespace quillon
