#include "helpers/date_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr LocalTime kMorning{2004, 2, 9, 7, 5, 3};

TEST(DateText, StandsYearFirstWithAllItsZeros)
{
    EXPECT_EQ(DateText(kMorning), "2004-02-09");
    EXPECT_EQ(DateText({1999, 12, 31}), "1999-12-31");
    EXPECT_EQ(DateText({2004, 10, 10}), "2004-10-10");
    EXPECT_EQ(DateText({999, 1, 1}), "0999-01-01") << "dates sort as texts";
}

TEST(TimeText, HasTwentyFourHoursAndSecondsOnlyWhereAskedFor)
{
    EXPECT_EQ(TimeText(kMorning), "07:05");
    EXPECT_EQ(TimeTextWithSeconds(kMorning), "07:05:03");
    EXPECT_EQ(TimeText({2004, 1, 1, 23, 59, 59}), "23:59");
    EXPECT_EQ(TimeTextWithSeconds({2004, 1, 1, 10, 10, 10}), "10:10:10");
    EXPECT_EQ(TimeTextWithSeconds({2004, 1, 1}), "00:00:00");
}

} // namespace
} // namespace quillon
