#include "runtime/pages/window_place.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr PixelRect kFirst{0, 0, 1024, 738}; // with a task bar below
constexpr PixelRect kLeftOfIt{-1920, -200, 0, 880};
constexpr PixelRect kRightOfIt{1024, 0, 1824, 600};

TEST(WindowPlace, IsTheMiddleOfTheDisplay)
{
    EXPECT_EQ(InTheMiddle(kFirst, 500, 400), (WindowPlace{262, 169}));
    EXPECT_EQ(InTheMiddle(kRightOfIt, 500, 400), (WindowPlace{1174, 100}));
    EXPECT_EQ(InTheMiddle(kLeftOfIt, 500, 400), (WindowPlace{-1210, 140}));
}

TEST(WindowPlace, OfALargerWindowBeginsAtTheCorner)
{
    EXPECT_EQ(InTheMiddle(kRightOfIt, 801, 700), (WindowPlace{1024, 0}));
    EXPECT_EQ(InTheMiddle(kLeftOfIt, 2000, 1081), (WindowPlace{-1920, -200}));
    EXPECT_EQ(AtColumnAndRow(kRightOfIt, 3, 3, 900, 700), (WindowPlace{1024, 0}));
    EXPECT_EQ(AtColumnAndRow(kRightOfIt, 2, 2, 900, 700), (WindowPlace{1024, 0}));
}

TEST(WindowPlace, IsOneOfNine)
{
    EXPECT_EQ(AtColumnAndRow(kFirst, 1, 1, 424, 138), (WindowPlace{24, 24}));
    EXPECT_EQ(AtColumnAndRow(kFirst, 2, 2, 424, 138), (WindowPlace{300, 300}));
    EXPECT_EQ(AtColumnAndRow(kFirst, 3, 3, 424, 138), (WindowPlace{576, 576}));
    EXPECT_EQ(AtColumnAndRow(kLeftOfIt, 1, 3, 420, 130), (WindowPlace{-1896, 726}));
    EXPECT_EQ(AtColumnAndRow(kRightOfIt, 3, 1, 400, 100), (WindowPlace{1400, 24}));
    // A package that says nothing of it.
    EXPECT_EQ(AtColumnAndRow(kFirst, 0, 0, 424, 138), (WindowPlace{300, 300}));
}

} // namespace
} // namespace quillon
