#include "design/surface.h"

#include "platform/run_error.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::ScriptedAsk;

namespace {

TEST(PlaceDesignArea, LeavesAMarginRoundTheSurface)
{
    struct {
        Long tabWidth;
        Long tabHeight;
        bool hasTallCaption;
        Long width;
        Long height;
    } const cases[] = {
        {9160, 6485, false, 9000, 6000},
        {9160, 6485, true, 8970, 6000},
        {161, 486, false, 1, 1},
        // No room: the size stays what it was.
        {160, 485, false, 3000, 2000},
        {0, 0, false, 3000, 2000},
        {190, 6485, true, 3000, 6000},
        {9160, 485, false, 9000, 2000},
    };
    for (const auto& c : cases) {
        SurfacePlace surface{.Left = 5, .Top = 6, .Width = 3000, .Height = 2000};
        PlaceDesignArea(surface, c.tabWidth, c.tabHeight, c.hasTallCaption);
        EXPECT_EQ(surface.Left, 80);
        EXPECT_EQ(surface.Top, 80);
        EXPECT_EQ(surface.Width, c.width) << c.tabWidth;
        EXPECT_EQ(surface.Height, c.height) << c.tabHeight;
    }
}

TEST(HasTallCaption, IsAMatterOfWindowsXP)
{
    EXPECT_TRUE(HasTallCaption(true, 21));
    EXPECT_FALSE(HasTallCaption(true, 20));
    EXPECT_FALSE(HasTallCaption(false, 40));
}

TEST(SetBlend, TakesTheColoursOfTheRecord)
{
    struct {
        Integer direction;
        Text depth;
        Colour to;
        Long shownDepth;
        BlendStyle style;
    } const cases[] = {
        {1, "", 2, 100, BlendStyle::ToTheRight},
        {2, "50", 2, 50, BlendStyle::ToTheLeft},
        {3, "200", 2, 200, BlendStyle::Upwards},
        {4, "100", 2, 100, BlendStyle::Downwards},
        {5, "99999999999", 2, 2147483647, BlendStyle::Outwards},
        {5, "x", 2, 0, BlendStyle::Outwards},
        // Kept: a single colour leaves the depth.
        {0, "50", 1, 77, BlendStyle::ToTheLeft},
        {-1, "50", 1, 77, BlendStyle::ToTheLeft},
    };
    for (const auto& c : cases) {
        const section::DesBackground background{
            .BackColor1 = 1, .BackColor2 = 2, .BlendDirection = c.direction, .BlendDepth = c.depth};
        SurfacePaint paint{.BlendDepth = 77};
        SetBlend(paint, background);
        EXPECT_EQ(paint.ColorFrom, 1);
        EXPECT_EQ(paint.ColorTo, c.to) << c.direction;
        EXPECT_EQ(paint.BlendDepth, c.shownDepth) << c.direction;
        EXPECT_EQ(paint.BlendStyle, c.style) << c.direction;
        EXPECT_EQ(background.BackColor2, 2);
    }
}

TEST(ShowErrorBoxIfPictureError, SaysAWordAboutTwoNumbers)
{
    ScriptedAsk ask(
        {{BoxKind::Critical, "Fel bildformat", "Filen som du valde är ej ett giltigt bildformat!"},
         {BoxKind::Critical, "Design Screen Error",
          "Internal Error #13 - Type mismatch error occured in Design screen!"}});
    for (const int number : {kInvalidPicture, ErrorNumber::kTypeMismatch,
                             ErrorNumber::kFileNotFound, ErrorNumber::kPathNotFound, 0})
        ShowErrorBoxIfPictureError(ask, number);
}

} // namespace
} // namespace quillon
