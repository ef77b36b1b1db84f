// The painter of the screen, pixel by pixel.
#include "design/background.h"
#include "design/picture.h"
#include "design/text_panel.h"
#include "design/title_block.h"
#include "design/underline.h"
#include "formats/blend.h"
#include "support/block_letters.h"

#include <gmock/gmock.h>

namespace quillon {

using test::BlockLetters;
using testing::Each;
using testing::ElementsAre;

namespace {

/// A canvas of its own, grey at first.
class Image {
public:
    Image(int width, int height, Pixel background = 0xFF808080)
        : width_(width),
          pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), background),
          canvas(WholeCanvas(pixels_.data(), width, height))
    {
    }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    Pixel At(int x, int y) const { return pixels_[static_cast<std::size_t>(y * width_ + x)]; }
    const std::vector<Pixel>& Pixels() const { return pixels_; }

private:
    int width_;
    std::vector<Pixel> pixels_;

public:
    Canvas canvas;
};

Pixel Step(const Blend& blend, int at, int last)
{
    return PixelOf(BlendColour(blend.ColorFrom, blend.ColorTo, blend.BlendDepth, at, last));
}

TEST(PixelOf, TurnsTheOrderOfTheColoursRound)
{
    EXPECT_EQ(PixelOf(0x00123456), 0xFF563412U);
    EXPECT_EQ(PixelOf(0x7F0000FF), 0xFFFF0000U); // what stands above the three parts is no colour
}

TEST(Over, MixesByTheAlphaOfWhatLiesAbove)
{
    EXPECT_EQ(Over(0, 0xFF123456), 0xFF123456U);
    EXPECT_EQ(Over(0xFFABCDEF, 0xFF123456), 0xFFABCDEFU);
    EXPECT_EQ(Over(Covering(0xFFFFFFFF, 128), 0xFF000000), 0xFF808080U);
    EXPECT_EQ(Over(Covering(0xFF000000, 51), 0xFFFFFFFF), 0xFFCCCCCCU);
    for (Pixel coverage = 0; coverage < 256; ++coverage)
        EXPECT_EQ(Over(Covering(0xFF406080, coverage), 0xFF406080) >> 24, 255U);
}

TEST(FillRect, StaysInsideTheClip)
{
    Image image(4, 3);
    image.canvas.clip = {1, 1, 3, 3};
    FillRect(image.canvas, {-5, -5, 99, 2}, 0xFF000001);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(image.At(x, y), y == 1 && (x == 1 || x == 2) ? 0xFF000001 : 0xFF808080);
}

TEST(PaintBlend, GoesInEveryDirection)
{
    const Blend right{.ColorFrom = 0, .ColorTo = 0x0000FF, .BlendStyle = BlendStyle::ToTheRight};
    for (const BlendStyle style : {BlendStyle::ToTheRight, BlendStyle::ToTheLeft,
                                   BlendStyle::Upwards, BlendStyle::Downwards, BlendStyle(77)}) {
        Blend blend = right;
        blend.BlendStyle = style;
        Image image(7, 5);
        PaintBlend(image.canvas, RectAt(0, 0, 7, 5), blend);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 7; ++x) {
                const Pixel expected = style == BlendStyle::ToTheRight  ? Step(blend, x, 6)
                                       : style == BlendStyle::ToTheLeft ? Step(blend, 6 - x, 6)
                                       : style == BlendStyle::Upwards   ? Step(blend, 4 - y, 4)
                                                                        : Step(blend, y, 4);
                EXPECT_EQ(image.At(x, y), expected) << x << "," << y << " " << int(style);
            }
    }
}

TEST(PaintBlend, OutwardsHasTheFirstColourInTheMiddle)
{
    const Blend blend{.ColorFrom = 0, .ColorTo = 0xFFFFFF, .BlendStyle = BlendStyle::Outwards};
    for (const auto& [width, height] :
         {std::pair{9, 5}, {8, 5}, {5, 9}, {4, 4}, {1, 5}, {5, 1}, {2, 2}, {1, 1}, {31, 7}}) {
        Image image(width, height);
        PaintBlend(image.canvas, RectAt(0, 0, width, height), blend);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const int across = std::abs(2 * x - (width - 1));
                const int down = std::abs(2 * y - (height - 1));
                // As parts of the whole: across / (width - 1) against down / (height - 1).
                const bool isColumn =
                    width == 1 ? height == 1 || down == 0
                               : height == 1 || across * (height - 1) >= down * (width - 1);
                const Pixel expected =
                    isColumn ? Step(blend, across, width - 1) : Step(blend, down, height - 1);
                EXPECT_EQ(image.At(x, y), expected)
                    << x << "," << y << " of " << width << "x" << height;
            }
    }
}

TEST(PaintBlend, PaintsAPartAsItWouldPaintTheWhole)
{
    for (const BlendStyle style :
         {BlendStyle::ToTheLeft, BlendStyle::Upwards, BlendStyle::Outwards}) {
        const Blend blend{.ColorFrom = 0x102030, .ColorTo = 0xF0E0D0, .BlendStyle = style};
        Image whole(40, 30);
        PaintBlend(whole.canvas, RectAt(0, 0, 40, 30), blend);
        Image parts(40, 30);
        for (const PixelRect& clip :
             {PixelRect{0, 0, 11, 30}, PixelRect{11, 0, 40, 7}, PixelRect{11, 7, 40, 30}}) {
            parts.canvas.clip = clip;
            PaintBlend(parts.canvas, RectAt(0, 0, 40, 30), blend);
        }
        EXPECT_EQ(parts.Pixels(), whole.Pixels());
    }
}

Picture Gradient(int width, int height)
{
    Picture picture{width, height, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.pixels.push_back(0xFF000000 | static_cast<Pixel>(x) << 16 |
                                     static_cast<Pixel>(y));
    return picture;
}

TEST(Scaled, KeepsASingleColour)
{
    const Picture one{3, 2, std::vector<Pixel>(6, 0xFFABCDEF)};
    for (const auto& [width, height] :
         {std::pair{1, 1}, {3, 2}, {7, 5}, {2, 9}, {100, 1}, {3, 3}}) {
        const Picture scaled = Scaled(one, width, height);
        EXPECT_EQ(scaled.width, width);
        EXPECT_EQ(scaled.pixels.size(), static_cast<std::size_t>(width * height));
        EXPECT_THAT(scaled.pixels, Each(0xFFABCDEF));
    }
}

TEST(Scaled, TakesTheMeanWhereItBecomesSmaller)
{
    const Picture picture{4, 1, {0xFF000000, 0xFF000064, 0xFF0000C8, 0xFF0000C8}};
    EXPECT_THAT(Scaled(picture, 2, 1).pixels, ElementsAre(0xFF000032, 0xFF0000C8));
    EXPECT_THAT(Scaled(picture, 1, 1).pixels, ElementsAre(0xFF00007D));
}

TEST(Scaled, MixesNeighboursWhereItBecomesLarger)
{
    const Picture picture{2, 1, {0xFF000000, 0xFF000064}};
    EXPECT_THAT(Scaled(picture, 4, 1).pixels,
                ElementsAre(0xFF000000, 0xFF000019, 0xFF00004B, 0xFF000064));
}

TEST(Scaled, OfAStripThatBecomesNarrowAndHigh)
{
    const Picture strip{4,
                        2,
                        {0xFF000000, 0xFF000064, 0xFF0000C8, 0xFF0000C8, //
                         0xFF000064, 0xFF000064, 0xFF0000C8, 0xFF0000C8}};
    const Picture scaled = Scaled(strip, 2, 4);
    EXPECT_THAT(scaled.pixels, ElementsAre(0xFF000032, 0xFF0000C8, 0xFF00003F, 0xFF0000C8,
                                           0xFF000058, 0xFF0000C8, 0xFF000064, 0xFF0000C8));
}

TEST(Scaled, GivesNothingForNothing)
{
    EXPECT_TRUE(Scaled({}, 5, 5).IsEmpty());
    EXPECT_TRUE(Scaled(Gradient(2, 2), 0, 5).IsEmpty());
    EXPECT_TRUE(Scaled(Gradient(2, 2), 5, -1).IsEmpty());
}

TEST(PaintPicture, IsCutAtTheEdges)
{
    Image image(3, 3);
    PaintPicture(image.canvas, Gradient(3, 3), -1, 2);
    EXPECT_EQ(image.At(0, 2), 0xFF010000U);
    EXPECT_EQ(image.At(1, 2), 0xFF020000U);
    EXPECT_EQ(image.At(2, 2), 0xFF808080U);
    EXPECT_EQ(image.At(0, 1), 0xFF808080U);
}

TEST(MakeTransparent, LetsTheGroundThrough)
{
    Picture picture{3, 1, {0xFF000000, 0xFFFFFFFF, 0xFF010000}};
    MakeTransparent(picture, TransparentColour(8));
    Image image(3, 1);
    PaintPicture(image.canvas, picture, 0, 0);
    EXPECT_THAT(image.Pixels(), ElementsAre(0xFF808080, 0xFFFFFFFF, 0xFF010000));
}

TEST(TransparentColour, HasTheColoursOfTheList)
{
    std::vector<Pixel> colours;
    for (Integer number = -1; number < 13; ++number)
        colours.push_back(PixelOf(TransparentColour(number)));
    EXPECT_THAT(colours, ElementsAre(0xFF000000, 0xFFFFFF00, 0xFFFF0000, 0xFF0000FF, 0xFF00FF00,
                                     0xFF00FFFF, 0xFFFF00FF, 0xFF800000, 0xFF000080, 0xFF000000,
                                     0xFF808080, 0xFFC0C0C0, 0xFFFFFFFF, 0xFF000000));
}

TEST(PaintUnderline, OfEachKind)
{
    section::DesTitleUnderline record{
        .UnderlineType = 1, .UnderlineColor1 = 0x0000FF, .UnderlineColor2 = 0xFF0000};
    Image simple(5, 5);
    PaintUnderline(simple.canvas, {1, 1, 4, 4}, record);
    EXPECT_EQ(simple.At(1, 1), 0xFFFF0000U);
    EXPECT_EQ(simple.At(3, 3), 0xFFFF0000U);
    EXPECT_EQ(simple.At(4, 3), 0xFF808080U);

    record.UnderlineType = 3;
    Image blended(5, 5);
    PaintUnderline(blended.canvas, {0, 1, 5, 4}, record);
    EXPECT_EQ(blended.At(0, 2), 0xFFFF0000U);
    EXPECT_EQ(blended.At(4, 2), 0xFF0000FFU);

    record.UnderlineType = 2;
    Image misty(5, 5, 0xFF000000);
    PaintUnderline(misty.canvas, {0, 0, 5, 5}, record);
    EXPECT_EQ(misty.At(2, 2), 0xFFFF0000U);
    // Towards the edge it takes the second colour and thins out: 255 - 255 * 4 / 5 of it is left.
    EXPECT_EQ(misty.At(2, 0), 0xFF000033U);
    EXPECT_EQ(misty.At(2, 0), misty.At(0, 4));

    for (const Integer none : {Integer{0}, Integer{4}, Integer{-1}}) {
        record.UnderlineType = none;
        Image image(2, 2);
        PaintUnderline(image.canvas, {0, 0, 2, 2}, record);
        EXPECT_THAT(image.Pixels(), Each(0xFF808080));
    }
}

TEST(WrapText, BreaksBetweenWords)
{
    BlockLetters letters;
    const ScreenFont font{.size = 2}; // one pixel a letter
    EXPECT_THAT(WrapText(letters, font, "ett två tre", 7), ElementsAre("ett två", "tre"));
    EXPECT_THAT(WrapText(letters, font, "ett två tre", 6), ElementsAre("ett", "två", "tre"));
    EXPECT_THAT(WrapText(letters, font, "ett  två", 4), ElementsAre("ett", "två"));
    EXPECT_THAT(WrapText(letters, font, "långtord", 3), ElementsAre("lån", "gto", "rd"));
    EXPECT_THAT(WrapText(letters, font, "a\r\n\r\nb", 9), ElementsAre("a", "", "b"));
    EXPECT_THAT(WrapText(letters, font, "abc", 0), ElementsAre("a", "b", "c"));
    EXPECT_THAT(WrapText(letters, font, "", 5), ElementsAre(""));
}

class Title : public testing::Test {
protected:
    TitleBlock LayOut(const ScreenScale& scale = {}, int width = 600)
    {
        return LayOutTitle(letters_, {title_, underline_, subTitle_}, scale, width);
    }

    BlockLetters letters_;
    section::DesTitle title_{.TitleText = "abcd", .TitleShadow = kOff, .TitleFontSize = 24};
    section::DesTitleUnderline underline_;
    section::DesSubTitle subTitle_;
};

TEST_F(Title, StandsLeftInTheMiddleOrRight)
{
    // 24 points are 32 pixels, so four letters of half that width are 64.
    EXPECT_EQ(LayOut().titleLeft, 20);
    title_.TitleAlignment = 2;
    EXPECT_EQ(LayOut().titleLeft, 268);
    title_.TitleAlignment = 3;
    EXPECT_EQ(LayOut().titleLeft, 516);
    EXPECT_EQ(LayOut().titleBaseline, 5 + 24);
    EXPECT_EQ(LayOut().TitleBottom, 42);
}

TEST_F(Title, HasSpaceBetweenItsLetters)
{
    title_.TitleCharInterSpace = "10";
    EXPECT_EQ(LayOut().title.width, 64 + 3 * 10);
    EXPECT_EQ(LayOut({2, 2}, 1200).title.width, 128 + 3 * 20);
    title_.TitleCharInterSpace = "-10";
    EXPECT_EQ(LayOut().title.width, 64 - 3 * 10);
    for (const char* beyond : {"-99", "x", ""}) {
        title_.TitleCharInterSpace = beyond;
        EXPECT_EQ(LayOut().title.width, beyond[0] == '-' ? 34 : 64) << beyond;
    }
    title_.TitleCharInterSpace = "999";
    EXPECT_EQ(LayOut().title.width, 64 + 300);
}

TEST_F(Title, HasItsUnderlineAndSubtitleWhereADoubleClickFindsThem)
{
    underline_ = {.UnderlineType = 1, .UnderlineHeight = 4, .UnderlineTextOnly = 1};
    EXPECT_EQ(LayOut().underline, (PixelRect{20, 55, 84, 59}));
    EXPECT_EQ(LayOut().TitleBottom, 60);
    underline_.UnderlineTextOnly = 0;
    EXPECT_EQ(LayOut().underline, (PixelRect{20, 55, 580, 59}));
    subTitle_.SubTitleText = "ef";
    // Its letters are 13 pixels high and begin 15 pixels and the line's height below the title.
    EXPECT_EQ(LayOut().subTitleBaseline, 42 + 4 + 15 + 9);
    EXPECT_EQ(LayOut().TitleBottom, 42 + 4 + 15 + 18);
    underline_.UnderlineType = 0;
    EXPECT_EQ(LayOut().subTitleBaseline, 42 + 2 + 9);
    EXPECT_EQ(LayOut().TitleBottom, 42 + 22);
    EXPECT_TRUE(LayOut().underline.IsEmpty());
}

TEST_F(Title, ThrowsItsShadowToTheRightAndDown)
{
    title_.TitleShadow = kOn;
    title_.TitleForeColor = 0xFFFFFF;
    const TitleBlock block = LayOut({}, 200);
    EXPECT_EQ(block.shadow, 2);
    Image image(200, 60);
    PaintTitle(image.canvas, block, {title_, underline_, subTitle_});
    EXPECT_EQ(image.At(20, 5), 0xFFFFFFFFU);
    EXPECT_EQ(image.At(83, 28), 0xFFFFFFFFU);
    EXPECT_EQ(image.At(84, 28), 0xFF000000U);
    EXPECT_EQ(image.At(30, 30), 0xFF000000U);
    EXPECT_EQ(image.At(30, 31), 0xFF808080U);
    EXPECT_EQ(image.At(19, 10), 0xFF808080U);
}

TEST_F(Title, GrowsWithTheScreen)
{
    const TitleBlock block = LayOut({2, 3}, 1200);
    EXPECT_EQ(block.title.width, 128); // letters by the smaller factor
    EXPECT_EQ(block.titleLeft, 40);
    EXPECT_EQ(block.TitleBottom, 126);
}

TEST(PaintTextPanel, FillsTheBoxAndCutsTheTextAtItsEdge)
{
    BlockLetters letters;
    const section::DesTextBox record{.BoxTitle = "AB",
                                     .BoxText = "a b c d e f",
                                     .BoxTitleColor = 0x0000FF,
                                     .BoxTextColor = 0x00FF00,
                                     .BoxBackColor = 0xFFFFFF,
                                     .BoxTitleFontSize = 12,
                                     .BoxTextFontSize = 12};
    Image image(60, 80);
    PaintTextPanel(image.canvas, letters, {10, 10, 50, 60}, record, {}, true);
    EXPECT_EQ(image.At(9, 30), 0xFF808080U);
    EXPECT_EQ(image.At(49, 59), 0xFFFFFFFFU);
    EXPECT_EQ(image.At(10, 10), 0xFFFF0000U); // the heading begins in the corner
    // 16 pixels of heading and 14 below it; then two words a line in 32 pixels.
    EXPECT_EQ(image.At(14, 40), 0xFF00FF00U);
    EXPECT_EQ(image.At(13, 40), 0xFFFFFFFFU);
    // The second line begins at 56, and from 58 on the box has its edge.
    EXPECT_EQ(image.At(14, 57), 0xFF00FF00U);
    EXPECT_EQ(image.At(14, 58), 0xFFFFFFFFU);
    EXPECT_THAT(letters.drawn, ElementsAre("AB", "a b", "c d"));
    EXPECT_EQ(HeadingHeight(letters, record), 16);
}

TEST(PaintTextPanel, WithoutItsColourStandsOnTheGround)
{
    BlockLetters letters;
    const section::DesTextBox record{.BoxTitle = "", .BoxText = ""};
    Image image(10, 10);
    PaintTextPanel(image.canvas, letters, {0, 0, 10, 10}, record, {}, false);
    EXPECT_THAT(image.Pixels(), Each(0xFF808080));
}

} // namespace
} // namespace quillon
