#include "design/dragging.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr ScreenMetrics kScreen;
constexpr SurfacePlace kSurface{.Left = 80, .Top = 80, .Width = 9000, .Height = 6000};
constexpr SurfacePlace kObject{.Left = 400, .Top = 2950, .Width = 3000, .Height = 1485};

TEST(DesDrag, BeginsWithTheObjectsOwnRectangle)
{
    const DesDrag drag(kObject, kSurface, kScreen, 150, 300);
    // 400 / 15 is 27 and 80 / 15 is 5, each rounded by itself.
    EXPECT_EQ(drag.Start(), (DragRect{22, 192, 200, 99}));
}

TEST(DesDrag, MovesByWhatTheMouseMoves)
{
    DesDrag drag(kObject, kSurface, kScreen, 150, 300);
    EXPECT_EQ(drag.Move(300, 150), (DragRect{32, 182, 200, 99}));
    const auto place = drag.Release(300, 150);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->Left, 550);
    EXPECT_EQ(place->Top, 2800);
    EXPECT_EQ(place->Width, 3000);
}

TEST(DesDrag, WithoutAMoveLeavesTheObject)
{
    const DesDrag drag(kObject, kSurface, kScreen, 150, 300);
    EXPECT_FALSE(drag.Release(900, 900));
}

TEST(ClampDesPlace, KeepsBothDirectionsInside)
{
    const SurfacePlace place = ClampDesPlace({-10, 80, 3000, 1485}, kSurface, kScreen);
    EXPECT_EQ(place.Left, 80);
    EXPECT_EQ(place.Top, 95);
}

TEST(DesDragRectColor, IsALightGrey)
{
    EXPECT_EQ(kDesDragRectColor, 14737632);
}

} // namespace
} // namespace quillon
