// Metafiles written record by record, and what is drawn of them.
#include "made_metafile.h"

#include "support/temp_folder.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::Each;

constexpr Pixel kRed = 0xFFFF0000;
constexpr Pixel kBlue = 0xFF0000FF;
constexpr Pixel kWhite = 0xFFFFFFFF;
constexpr Pixel kBlack = 0xFF000000;
constexpr int kRedColour = 0x0000FF;
constexpr int kBlueColour = 0xFF0000;

/// A drawing of 20 x 10 units.
class Drawing : public testing::Test {
protected:
    MadeMetafile file = MadeMetafile().Window(0, 0, 20, 10);
    BlockLetters letters;

    Picture Drawn(int width = 20, int height = 10)
    {
        const PictureResult result = DecodePicture(file.File());
        EXPECT_EQ(result.fault, PictureFault::None);
        return result.picture.InSize(width, height, letters);
    }

    static Pixel At(const Picture& picture, int x, int y)
    {
        return picture.pixels.at(static_cast<std::size_t>(y * picture.width + x));
    }

    // How many pixels are painted, those in part counted as a part.
    static double Area(const Picture& picture)
    {
        double area = 0;
        for (const Pixel pixel : picture.pixels)
            area += double(pixel >> 24) / 255;
        return area;
    }
};

TEST(DecodeMetafile, HasTheSizeOfItsHeader)
{
    const MadeMetafile file = MadeMetafile().Plain(kRedColour).Rectangle(0, 0, 100, 100);
    const PictureResult inches = DecodePicture(file.Placeable(0, 0, 2880, 1440, 1440));
    EXPECT_EQ(inches.picture.Width(), 192);
    EXPECT_EQ(inches.picture.Height(), 96);
    const PictureResult turned = DecodePicture(file.Placeable(50, 40, 10, 10, 96));
    EXPECT_EQ(turned.picture.Width(), 40);
    EXPECT_EQ(turned.picture.Height(), 30);
    // Without a scale it is the usual one.
    EXPECT_EQ(DecodePicture(file.Placeable(0, 0, 1440, 720, 0)).picture.Width(), 96);
    for (const std::string& bytes : {file.Placeable(0, 0, 0, 100), file.Placeable(0, 0, 1, 1, 960),
                                     file.Placeable(-32000, 0, 32000, 10, 96)})
        EXPECT_EQ(DecodePicture(bytes).fault, PictureFault::Damaged);
}

TEST(DecodeMetafile, WithoutAHeaderHasTheSizeOfItsWindow)
{
    EXPECT_EQ(DecodePicture(MadeMetafile().Window(5, 5, 300, -200).File()).picture.Width(), 300);
    EXPECT_EQ(DecodePicture(MadeMetafile().Window(5, 5, 300, -200).File()).picture.Height(), 200);
    // Fine units are twips.
    EXPECT_EQ(DecodePicture(MadeMetafile().Window(0, 0, 15000, 30).File()).picture.Width(), 1000);
    EXPECT_EQ(DecodePicture(MadeMetafile().Rectangle(0, 0, 5, 5).File()).fault,
              PictureFault::Damaged);
}

TEST_F(Drawing, FillsARectangleAndLeavesTheRestClear)
{
    file.Plain(kRedColour).Rectangle(5, 2, 15, 8);
    const Picture own = Drawn();
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x)
            EXPECT_EQ(At(own, x, y), x >= 5 && x < 15 && y >= 2 && y < 8 ? kRed : 0U) << x << y;
    const Picture large = Drawn(200, 100);
    EXPECT_EQ(At(large, 50, 20), kRed);
    EXPECT_EQ(At(large, 49, 20), 0U);
    EXPECT_EQ(At(large, 149, 79), kRed);
    EXPECT_EQ(At(large, 150, 79), 0U);
}

TEST_F(Drawing, IsDrawnInItsWindow)
{
    file = MadeMetafile().Window(-100, 50, 200, -100).Plain(kRedColour).Rectangle(-100, 50, 0, 0);
    const PictureResult result = DecodePicture(file.Placeable(0, 0, 40, 20));
    const Picture& picture = result.picture.InSize(40, 20, letters);
    EXPECT_EQ(At(picture, 19, 9), kRed);
    EXPECT_EQ(At(picture, 20, 9), 0U);
    EXPECT_EQ(At(picture, 19, 10), 0U);
}

TEST_F(Drawing, SmoothsItsEdges)
{
    file.Plain(kRedColour).Polygon({0, 0, 20, 10, 0, 10});
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 0, 9), kRed);
    EXPECT_EQ(At(picture, 19, 0), 0U);
    EXPECT_GT(At(picture, 10, 5) >> 24, 0x40U);
    EXPECT_LT(At(picture, 10, 5) >> 24, 0xF0U);
    EXPECT_NEAR(Area(picture), 100, 4);
}

TEST_F(Drawing, LeavesNoSeamBetweenNeighbours)
{
    file.Plain(kRedColour).Polygon({0, 0, 20, 0, 0, 10}).Polygon({20, 0, 20, 10, 0, 10});
    EXPECT_THAT(Drawn().pixels, Each(kRed));
    EXPECT_THAT(Drawn(333, 111).pixels, Each(kRed));
}

TEST_F(Drawing, FillsByBothRules)
{
    // Two turns round the same square.
    const std::vector<int> twice = {2, 2, 18, 2, 18, 8, 2, 8, 2, 2, 18, 2, 18, 8, 2, 8};
    file.Plain(kRedColour).Polygon(twice);
    EXPECT_NEAR(Area(Drawn()), 0, 0.1);
    file = MadeMetafile().Window(0, 0, 20, 10).Plain(kRedColour).Call(0x0106, {2}).Polygon(twice);
    EXPECT_NEAR(Area(Drawn()), 96, 0.1);
}

TEST_F(Drawing, OfSeveralPolygonsHasHoles)
{
    file.Plain(kRedColour)
        .Call(0x0538, {2, 4, 4, 0, 0, 20, 0, 20, 10, 0, 10, 5, 2, 15, 2, 15, 8, 5, 8});
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 2, 5), kRed);
    EXPECT_EQ(At(picture, 10, 5), 0U);
    EXPECT_NEAR(Area(picture), 200 - 60, 0.1);
}

TEST_F(Drawing, OfEllipsesAndRoundRectangles)
{
    file.Plain(kRedColour).Ellipse(0, 0, 20, 10);
    EXPECT_NEAR(Area(Drawn(400, 200)), 3.14159 * 200 * 100, 150);
    file = MadeMetafile()
               .Window(0, 0, 20, 10)
               .Plain(kRedColour)
               .Call(0x061C, {4, 4, 10, 20, 0, 0}); // corners of 4 x 4
    EXPECT_NEAR(Area(Drawn(400, 200)), 400 * 200 - (4 - 3.14159) * 40 * 40, 100);
}

TEST_F(Drawing, OfPartsOfAnEllipse)
{
    // From the right end counterclockwise to the top: the upper right quarter.
    const std::vector<int> quarter = {0, 10, 5, 20, 10, 20, 0, 0};
    file.Plain(kRedColour).Call(0x081A, quarter);
    const Picture pie = Drawn(400, 200);
    EXPECT_NEAR(Area(pie), 3.14159 * 200 * 100 / 4, 150);
    EXPECT_EQ(At(pie, 250, 70), kRed);
    EXPECT_EQ(At(pie, 150, 70), 0U);
    EXPECT_EQ(At(pie, 250, 130), 0U);
    file = MadeMetafile().Window(0, 0, 20, 10).Plain(kRedColour).Call(0x0830, quarter);
    EXPECT_NEAR(Area(Drawn(400, 200)), (3.14159 / 4 - 0.5) * 200 * 100, 150);
    // The other way round it is the rest.
    file = MadeMetafile()
               .Window(0, 0, 20, 10)
               .Plain(kRedColour)
               .Call(0x081A, {5, 20, 0, 10, 10, 20, 0, 0});
    EXPECT_NEAR(Area(Drawn(400, 200)), 3.14159 * 200 * 100 * 3 / 4, 300);
    // From a direction to the same one: all of it.
    file = MadeMetafile()
               .Window(0, 0, 20, 10)
               .Plain(kRedColour)
               .Call(0x0830, {5, 20, 5, 20, 10, 20, 0, 0});
    EXPECT_NEAR(Area(Drawn(400, 200)), 3.14159 * 200 * 100, 300);
    file =
        MadeMetafile().Window(0, 0, 20, 10).Pen(0, 0, kBlueColour).Select(0).Call(0x0817, quarter);
    const Picture arc = Drawn(400, 200);
    EXPECT_GT(At(arc, 399, 97) >> 24, 0x60U);
    EXPECT_EQ(At(arc, 250, 70), 0U);
}

TEST_F(Drawing, OfPensWithAWidth)
{
    file.Pen(0, 2, kBlueColour).Select(0).Call(0x0214, {5, 4}).Call(0x0213, {5, 16});
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 10, 4), kBlue);
    EXPECT_EQ(At(picture, 10, 5), kBlue);
    EXPECT_EQ(At(picture, 10, 3), 0U);
    EXPECT_EQ(At(picture, 10, 6), 0U);
    EXPECT_NEAR(Area(picture), 2 * 12 + 3.14, 0.6); // with its round ends
    // The thinnest line is a pixel wide in any size.
    file = MadeMetafile()
               .Window(0, 0, 20, 10)
               .Pen(0, 0, kBlueColour)
               .Select(0)
               .Call(0x0325, {2, 0, 5, 20, 5});
    EXPECT_NEAR(Area(Drawn(400, 200)), 400, 6);
    EXPECT_NEAR(Area(Drawn(40, 20)), 40, 2);
}

TEST_F(Drawing, OfPensFarLargerThanThePicture)
{
    file.Window(0, 0, 1, 1).Pen(0, 32767, kBlueColour).Select(0);
    file.Ellipse(-32768, -32768, 32767, 32767);
    file.Call(0x061C, {32767, 32767, 32767, 32767, -32768, -32768});
    file.Call(0x0325, {2, -32768, -32768, 32767, 32767});
    const PictureResult result = DecodePicture(file.Placeable(0, 0, 20, 10));
    EXPECT_THAT(result.picture.InSize(20, 10, letters).pixels, Each(kBlue));
}

TEST_F(Drawing, OfPensThatDrawDashesOrNothing)
{
    file.Pen(1, 0, kBlueColour).Select(0).Call(0x0325, {2, 0, 5, 20, 5});
    const Picture dashes = Drawn(400, 200);
    EXPECT_NEAR(Area(dashes), 400 * 18 / 24, 40);
    file =
        MadeMetafile().Window(0, 0, 20, 10).Pen(5, 0, 0).Select(0).Call(0x0325, {2, 0, 5, 20, 5});
    EXPECT_EQ(Area(Drawn()), 0);
    for (const int style : {2, 3, 4}) {
        file =
            MadeMetafile().Window(0, 0, 20, 10).Pen(style, 0, 0).Select(0).Rectangle(1, 1, 19, 9);
        EXPECT_GT(Area(Drawn(400, 200)), 200) << style;
    }
}

TEST_F(Drawing, OfHatchedBrushes)
{
    for (int hatch = 0; hatch < 6; ++hatch) {
        file = MadeMetafile().Window(0, 0, 20, 10).Brush(2, kBlueColour, hatch).Pen(5, 0, 0);
        file.Select(0).Select(1).Call(0x0102, {1}).Rectangle(0, 0, 20, 10);
        const Picture clear = Drawn(80, 80);
        const double lines = hatch < 4 ? 1.0 / 8 : 15.0 / 64;
        EXPECT_NEAR(Area(clear), 6400 * (hatch == 5 ? 16.0 / 64 : lines), 1) << hatch;
        // On a background of its own nothing is left clear.
        file = MadeMetafile().Window(0, 0, 20, 10).Brush(2, kBlueColour, hatch).Pen(5, 0, 0);
        file.Select(0).Select(1).Add(0x0201, Long(kRedColour)).Rectangle(0, 0, 20, 10);
        EXPECT_EQ(Area(Drawn(80, 80)), 6400) << hatch;
    }
}

TEST_F(Drawing, CombinesColoursWithWhatIsThere)
{
    file.Plain(kRedColour).Rectangle(0, 0, 10, 10).Call(0x0104, {7}); // exclusive or
    file.Brush(0, 0xFFFFFF).Select(2).Rectangle(0, 0, 20, 10);
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 5, 5), 0xFF00FFFFU);
    EXPECT_EQ(At(picture, 15, 5), kBlack); // what is not painted counts as white
    // Each of the sixteen against one colour.
    for (int rop = 1; rop <= 16; ++rop) {
        file = MadeMetafile().Window(0, 0, 20, 10).Plain(0x00FF00).Rectangle(0, 0, 20, 10);
        file.Call(0x0104, {rop}).Brush(0, 0x0000FF).Select(2).Rectangle(0, 0, 20, 10);
        const auto bit = [rop](bool pen, bool below) {
            return ((rop - 1) >> (2 * pen + below) & 1) != 0 ? 0xFFU : 0U;
        };
        EXPECT_EQ(At(Drawn(), 5, 5),
                  kBlack | bit(true, false) << 16 | bit(false, true) << 8 | bit(false, false))
            << rop;
    }
}

TEST_F(Drawing, RestoresWhatItSaved)
{
    file.Plain(kRedColour).Call(0x001E, {}).Brush(0, kBlueColour).Select(2).Call(0x001E, {});
    file.Call(0x0416, {10, 5, 0, 0}).Rectangle(0, 0, 20, 10);
    file.Call(0x0127, {-1}).Rectangle(5, 0, 10, 10); // blue, and no clip any more
    file.Call(0x0127, {1}).Rectangle(10, 0, 15, 10); // red
    file.Call(0x0127, {-1}).Call(0x0127, {7}).Call(0x0127, {0}).Rectangle(15, 0, 20, 10);
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 2, 5), kBlue);
    EXPECT_EQ(At(picture, 7, 5), kBlue);
    EXPECT_EQ(At(picture, 12, 5), kRed);
    EXPECT_EQ(At(picture, 17, 5), kRed);
}

TEST_F(Drawing, KeepsToItsClip)
{
    file.Plain(kRedColour).Call(0x0416, {9, 18, 1, 2}).Call(0x0415, {6, 12, 4, 8});
    file.Rectangle(0, 0, 20, 10);
    const Picture picture = Drawn();
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x) {
            const bool isIn = x >= 2 && x < 18 && y >= 1 && y < 9;
            const bool isHole = x >= 8 && x < 12 && y >= 4 && y < 6;
            EXPECT_EQ(At(picture, x, y), isIn && !isHole ? kRed : 0U) << x << ' ' << y;
        }
    // A region, and none.
    file = MadeMetafile().Window(0, 0, 20, 10).Plain(kRedColour);
    file.Call(0x06FF, {0, 6, 0, 0, 0, 0, 0, 3, 3, 6, 6}).Call(0x012C, {2});
    file.Rectangle(0, 0, 20, 10);
    EXPECT_EQ(Area(Drawn()), 9);
    file.Call(0x0220, {0, 10}).Rectangle(0, 0, 20, 10);
    EXPECT_EQ(Area(Drawn()), 18);
    file.Call(0x012C, {0}).Rectangle(0, 0, 20, 10);
    EXPECT_EQ(Area(Drawn()), 200);
}

TEST_F(Drawing, GivesANewObjectTheFirstFreeNumber)
{
    file.Brush(0, kRedColour).Pen(5, 0, 0).Call(0x00F7, {}).Select(1);
    file.Call(0x01F0, {0}).Call(0x01F0, {2}).Call(0x01F0, {0}).Call(0x01F0, {99});
    file.Brush(0, kBlueColour).Select(0).Rectangle(0, 0, 10, 10);
    file.Brush(0, kRedColour).Select(2).Rectangle(10, 0, 20, 10).Select(77);
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 5, 5), kBlue);
    EXPECT_EQ(At(picture, 15, 5), kRed);
}

// Two columns and two rows of 24 bits: red and blue above white and black.
std::string Dib(int height = 2)
{
    const std::string upper("\0\0\xFF\xFF\0\0\0\0", 8);
    const std::string lower("\xFF\xFF\xFF\0\0\0\0\0", 8);
    return Long(40) + Long(2) + Long(height) + Word(1) + Word(24) + std::string(24, '\0') +
           (height > 0 ? lower + upper : upper + lower);
}

std::string StretchDib(int left, int top, int width, int height, std::int64_t rop = 0xCC0020)
{
    return Long(rop) + Word(0) + Word(2) + Word(2) + Word(0) + Word(0) + Word(height) +
           Word(width) + Word(top) + Word(left);
}

TEST_F(Drawing, OfBitmaps)
{
    for (const int rows : {2, -2}) {
        file = MadeMetafile().Window(0, 0, 20, 10);
        file.Add(0x0F43, StretchDib(0, 0, 20, 10) + Dib(rows));
        const Picture picture = Drawn();
        EXPECT_EQ(At(picture, 5, 2), kRed);
        EXPECT_EQ(At(picture, 15, 2), kBlue);
        EXPECT_EQ(At(picture, 5, 7), kWhite);
        EXPECT_EQ(At(picture, 15, 7), kBlack);
    }
    // Mirrored, by the other records, and a part.
    file = MadeMetafile().Window(0, 0, 20, 10).Add(0x0F43, StretchDib(20, 10, -20, -10) + Dib());
    EXPECT_EQ(At(Drawn(), 5, 2), kBlack);
    EXPECT_EQ(At(Drawn(), 15, 7), kRed);
    file = MadeMetafile()
               .Window(0, 0, 20, 10)
               .Add(0x0B41, Long(0xCC0020) + Word(1) + Word(1) + Word(0) + Word(1) + Word(10) +
                                Word(20) + Word(0) + Word(0) + Dib());
    EXPECT_THAT(Drawn().pixels, Each(kBlue));
    file = MadeMetafile()
               .Window(0, 0, 20, 10)
               .Add(0x0940, Long(0xCC0020) + Word(0) + Word(0) + Word(2) + Word(2) + Word(4) +
                                Word(6) + Dib());
    EXPECT_EQ(At(Drawn(), 6, 4), kRed);
    EXPECT_EQ(At(Drawn(), 7, 5), kBlack);
    EXPECT_EQ(Area(Drawn()), 4);
    file = MadeMetafile()
               .Window(0, 0, 20, 10)
               .Add(0x0D33, Word(0) + Word(2) + Word(0) + Word(0) + Word(0) + Word(2) + Word(2) +
                                Word(4) + Word(6) + Dib());
    EXPECT_EQ(At(Drawn(), 6, 4), kRed);
    EXPECT_EQ(At(Drawn(), 7, 5), kBlack);
}

TEST_F(Drawing, LaysAMaskAndItsPictureOnClearGround)
{
    // Where the mask is white and the picture black nothing is seen: no white box.
    file.Add(0x0F43, StretchDib(0, 0, 20, 10, 0x8800C6) + Dib());
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 5, 7), 0U);
    EXPECT_EQ(At(picture, 15, 7), kBlack);
    EXPECT_EQ(At(picture, 5, 2), kRed);
}

TEST_F(Drawing, FillsRectanglesWithItsBrush)
{
    const auto patBlt = [](std::int64_t rop) {
        return Long(rop) + Word(10) + Word(10) + Word(0) + Word(5);
    };
    file.Plain(kRedColour).Add(0x061D, patBlt(0xF00021));
    EXPECT_EQ(At(Drawn(), 5, 0), kRed);
    EXPECT_EQ(Area(Drawn()), 100);
    file.Add(0x061D, patBlt(0x550009)); // the inverse of what is there
    EXPECT_EQ(At(Drawn(), 5, 0), 0xFF00FFFFU);
    file.Add(0x061D, patBlt(0x000042));
    EXPECT_EQ(At(Drawn(), 5, 0), kBlack);
    file.Add(0x061D, patBlt(0xFF0062));
    EXPECT_EQ(At(Drawn(), 5, 0), kWhite);
}

TEST_F(Drawing, OfPatternBrushes)
{
    file.Add(0x0142, Word(5) + Word(0) + Dib()).Pen(5, 0, 0).Select(0).Select(1);
    file.Rectangle(0, 0, 20, 10);
    const Picture picture = Drawn();
    EXPECT_EQ(At(picture, 4, 4), kRed);
    EXPECT_EQ(At(picture, 5, 4), kBlue);
    EXPECT_EQ(At(picture, 4, 5), kWhite);
    EXPECT_EQ(At(picture, 5, 5), kBlack);
}

TEST_F(Drawing, SetsSinglePixels)
{
    file.Add(0x041F, Long(kBlueColour) + Word(3) + Word(7));
    EXPECT_EQ(At(Drawn(), 7, 3), kBlue);
    EXPECT_EQ(Area(Drawn()), 1);
}

std::string Font(int height)
{
    return Word(height) + Word(0) + Word(0) + Word(0) + Word(700) + std::string("\1\1\0\0", 4) +
           Long(0) + std::string("Arial\0", 6);
}

TEST_F(Drawing, OfText)
{
    file.Add(0x02FB, Font(-4)).Select(0).Call(0x0102, {1}).Add(0x0209, Long(kBlueColour));
    file.Add(0x0521, Word(3) + std::string("AB \0", 4) + Word(2) + Word(4));
    const Picture picture = Drawn(200, 100);
    // Letters of 40 pixels, half as wide, three quarters above the baseline, the third a blank.
    EXPECT_EQ(At(picture, 45, 25), kBlue);
    EXPECT_EQ(At(picture, 75, 45), kBlue);
    EXPECT_EQ(At(picture, 85, 25), 0U);
    EXPECT_EQ(At(picture, 39, 25), 0U);
    EXPECT_EQ(At(picture, 45, 51), 0U);
    EXPECT_EQ(letters.drawn.back(), "AB ");
}

TEST_F(Drawing, AlignsItsText)
{
    struct Aligned {
        int align;
        int left;
        int top;
    };
    for (const Aligned& aligned :
         {Aligned{0, 100, 50}, {2, 60, 50}, {6, 80, 50}, {8, 100, 10}, {24, 100, 20}}) {
        file = MadeMetafile().Window(0, 0, 20, 10).Add(0x02FB, Font(-4)).Select(0);
        file.Call(0x0102, {1}).Call(0x012E, {aligned.align});
        file.Add(0x0A32, Word(5) + Word(10) + Word(2) + Word(0) + "AB");
        const Picture picture = Drawn(200, 100);
        EXPECT_EQ(At(picture, aligned.left, aligned.top), kBlack) << aligned.align;
        EXPECT_EQ(At(picture, aligned.left - 1, aligned.top), 0U) << aligned.align;
        EXPECT_EQ(At(picture, aligned.left, aligned.top - 1), 0U) << aligned.align;
        EXPECT_EQ(At(picture, aligned.left + 39, aligned.top), kBlack) << aligned.align;
    }
}

TEST_F(Drawing, SpacesItsTextAsItSays)
{
    file.Add(0x02FB, Font(-4)).Select(0).Add(0x0201, Long(kRedColour)).Call(0x0102, {1});
    // On a rectangle that is filled and cuts the text.
    file.Add(0x0A32, Word(0) + Word(0) + Word(2) + Word(6) + Word(0) + Word(0) + Word(11) +
                         Word(10) + "AB" + Word(10) + Word(10));
    const Picture picture = Drawn(200, 100);
    EXPECT_EQ(At(picture, 5, 10), kBlack);
    EXPECT_EQ(At(picture, 50, 10), kRed);
    EXPECT_EQ(At(picture, 105, 10), kBlack);
    EXPECT_EQ(At(picture, 115, 10), 0U);
}

TEST_F(Drawing, LaysItsTextOnAGround)
{
    file.Add(0x02FB, Font(-4)).Select(0).Add(0x0201, Long(kRedColour));
    file.Add(0x0521, Word(1) + std::string("A\0", 2) + Word(0) + Word(0));
    const Picture picture = Drawn(200, 100);
    EXPECT_EQ(At(picture, 5, 10), kBlack);
    EXPECT_EQ(At(picture, 5, 35), kRed);
    EXPECT_EQ(At(picture, 25, 10), 0U);
}

/// A little of everything.
std::string Clipart()
{
    MadeMetafile file;
    file.Window(0, 0, 200, 100).Plain(kRedColour).Rectangle(10, 10, 60, 60).Call(0x001E, {});
    file.Brush(2, kBlueColour, 5).Pen(0, 3, 0).Select(2).Select(3).Ellipse(50, 20, 150, 90);
    file.Call(0x081A, {0, 10, 5, 20, 90, 190, 10, 100}).Call(0x061C, {9, 9, 95, 195, 60, 120});
    file.Call(0x0538, {2, 3, 3, 0, 0, 20, 0, 20, 10, 5, 2, 15, 2, 15, 8}).Pen(2, 0, 0).Select(4);
    file.Call(0x0325, {3, 0, 5, 20, 5, 90, 90}).Call(0x0104, {7}).Add(0x02FB, Font(12)).Select(5);
    file.Add(0x0A32, Word(5) + Word(10) + Word(2) + Word(0) + "AB").Call(0x0415, {6, 12, 4, 8});
    file.Add(0x0F43, StretchDib(100, 5, 40, 30, 0x660046) + Dib()).Call(0x0127, {-1});
    file.Add(0x0142, Word(5) + Word(0) + Dib()).Select(6).Polygon({0, 99, 50, 50, 99, 99});
    return file.Placeable(0, 0, 200, 100);
}

TEST(DecodeMetafile, GivesAReasonWhereverItIsCut)
{
    const std::string file = Clipart();
    EXPECT_EQ(DecodePicture(file).fault, PictureFault::None);
    for (std::size_t length = 0; length < file.size(); ++length) {
        const PictureResult result = DecodePicture(file.substr(0, length));
        EXPECT_NE(result.fault, PictureFault::None) << length;
        EXPECT_TRUE(result.picture.IsEmpty()) << length;
    }
    // Without the record at the end, but with all that it says to have.
    std::string open = MadeMetafile().Window(0, 0, 10, 10).File();
    open.resize(open.size() - 6);
    EXPECT_EQ(DecodePicture(open).fault, PictureFault::Damaged);
    open.replace(6, 4, Long(static_cast<std::int64_t>(open.size() / 2)));
    EXPECT_EQ(DecodePicture(open).fault, PictureFault::None);
}

TEST(DecodeMetafile, SurvivesEveryDamagedByte)
{
    const std::string file = Clipart();
    BlockLetters letters;
    for (std::size_t at = 0; at < file.size(); ++at)
        for (const char damage : {'\0', '\xFF', '\x80'}) {
            std::string damaged = file;
            damaged[at] = damage;
            const PictureResult result = DecodePicture(damaged);
            if (result.picture.IsEmpty())
                continue;
            EXPECT_EQ(result.picture.InSize(40, 20, letters).pixels.size(), 800U) << at;
        }
}

TEST(DecodeMetafile, OfAMillionRecordsEnds)
{
    const std::pair<const char*, std::function<void(MadeMetafile&, int)>> kinds[] = {
        {"small polygons",
         [](MadeMetafile& file, int i) {
             file.Polygon({i % 900, i % 700, i % 900 + 9, i % 700, i % 900, i % 700 + 9});
         }},
        {"large ellipses", [](MadeMetafile& file, int) { file.Ellipse(0, 0, 1000, 800); }},
        {"brushes", [](MadeMetafile& file, int i) { file.Brush(0, i); }},
        {"saved states", [](MadeMetafile& file, int) { file.Call(0x001E, {}); }},
        {"bitmaps that claim to be large", [](MadeMetafile& file, int) {
             file.Add(0x0F43, StretchDib(0, 0, 900, 700) + Long(40) + Long(3400) + Long(3400) +
                                  Word(1) + Word(8) + Long(1) + std::string(20, '\0') +
                                  std::string("\0\1", 2));
         }}};
    for (const auto& [name, add] : kinds) {
        const Usage usage = DecodeInChild(
            [&add] {
                MadeMetafile file;
                file.Window(0, 0, 1000, 800).Plain(kRedColour);
                constexpr int kShare = kShareOfHugeSide * kShareOfHugeSide;
                constexpr int kRecords = 1'000'000 / kShare;
                constexpr std::size_t kBytes = 40'000'000 / kShare;
                for (int i = 0; i < kRecords && file.Records().size() < kBytes; ++i)
                    add(file, i);
                return file.File();
            },
            1000, 800);
        EXPECT_TRUE(usage.isOver) << name;
        EXPECT_EQ(usage.fault, PictureFault::None) << name;
        if (kIsMemoryMeasured)
            EXPECT_LT(usage.peakKilobytes, kMaxKilobytes) << name;
    }
}

TEST(DecodeMetafile, RefusesAFileThatIsTooLarge)
{
    std::string file = MadeMetafile().Window(0, 0, 10, 10).File();
    file.resize((48U << 20) + 1);
    EXPECT_EQ(DecodePicture(file).fault, PictureFault::TooLarge);
}

} // namespace
} // namespace quillon::test
