#include "design/object_layout.h"

#include "platform/run_error.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::ScriptedAsk;

void PrintTo(const SurfacePlace& place, std::ostream* out)
{
    *out << place.Left << "," << place.Top << " " << place.Width << "x" << place.Height;
}

namespace {

constexpr ScreenMetrics kScreen;
// 600 x 400 pixels.
constexpr SurfacePlace kSurface{.Left = 80, .Top = 80, .Width = 9000, .Height = 6000};

/// A picture of that size at every path.
MeasurePicture Measures(Long width, Long height)
{
    return [=](const Text&) { return PixelSize{width, height}; };
}

TEST(ClampDesX, KeepsAnObjectInsideTheSurface)
{
    struct {
        Long x;
        Long w;
        Long result;
    } const cases[] = {
        {79, 100, 80},       {80, 100, 80}, // exactly at the left edge it stays
        {-500, 100, 80},     {500, 100, 500},
        {8964, 101, 8964}, // 80 + 9000 - 15 = 9065
        {8965, 101, 8964},   {20000, 100, 8965},
        {100, 20000, -10935} // wider than the surface: its right edge counts
    };
    for (const auto& c : cases)
        EXPECT_EQ(ClampDesX(kSurface, kScreen, c.x, c.w), c.result) << c.x << " " << c.w;
}

TEST(ClampDesY, MovesAnObjectAtTheVeryTopOnePixelDown)
{
    struct {
        Long y;
        Long h;
        Long result;
    } const cases[] = {{79, 100, 95},     {80, 100, 95},     {81, 100, 81},
                       {5964, 101, 5964}, {5965, 101, 5964}, {20000, 100, 5965}};
    for (const auto& c : cases)
        EXPECT_EQ(ClampDesY(kSurface, kScreen, c.y, c.h), c.result) << c.y << " " << c.h;
}

TEST(Clamps, ReckonWithTheScreensOwnPixels)
{
    const ScreenMetrics screen{.TPPX = 12, .TPPY = 20};
    EXPECT_EQ(ClampDesX(kSurface, screen, 30000, 0), 9068);
    EXPECT_EQ(ClampDesY(kSurface, screen, 0, 0), 100);
    EXPECT_EQ(ClampDesY(kSurface, screen, 30000, 0), 6060);
}

// Wider and higher than the places that a record can hold.
constexpr SurfacePlace kWideSurface{.Left = 80, .Top = 80, .Width = 90000, .Height = 60000};

TEST(Clamps, GiveNoPlaceThatARecordCantHold)
{
    EXPECT_EQ(ClampDesX(kWideSurface, kScreen, 32767, 100), 32767);
    EXPECT_EQ(ClampDesX(kWideSurface, kScreen, 32768, 100), 32767);
    EXPECT_EQ(ClampDesX(kWideSurface, kScreen, 200000, 100), 32767);
    EXPECT_EQ(ClampDesX(kWideSurface, kScreen, 100, 200000), -32768);
    EXPECT_EQ(ClampDesY(kWideSurface, kScreen, 32768, 100), 32767);
    EXPECT_EQ(ClampDesY(kWideSurface, kScreen, 200000, 100), 32767);
    EXPECT_EQ(ClampDesY(kWideSurface, kScreen, 100, 200000), -32768);
}

TEST(PixelsOf, RoundsAHalfToTheEvenNeighbour)
{
    EXPECT_EQ(PixelsOf(45, 10), 4);
    EXPECT_EQ(PixelsOf(55, 10), 6);
    EXPECT_EQ(PixelsOf(22, 15), 1);
    EXPECT_EQ(PixelsOf(23, 15), 2);
}

TEST(StoredPosition, StaysWithinTheSixteenBitsOfARecord)
{
    EXPECT_EQ(StoredPosition(40000), 32767);
    EXPECT_EQ(StoredPosition(-40000), -32768);
    EXPECT_EQ(StoredPosition(1234), 1234);
}

class Pictures : public testing::Test {
protected:
    void LayOut(const MeasurePicture& measure)
    {
        LayOutPictures(record_, boxes_, surface_, kScreen, measure);
    }

    section::DesPictures record_;
    PictureBoxes boxes_;
    SurfacePlace surface_ = kSurface;
};

TEST_F(Pictures, WithoutAFileAreHiddenAndKeepTheirPlaces)
{
    LayOut([](const Text&) -> PixelSize { throw RunError(ErrorNumber::kFileNotFound); });
    for (const PictureBox& box : boxes_)
        EXPECT_FALSE(box.isVisible);
    EXPECT_EQ(record_.Pictures[0].PictureXPos, 240);
    EXPECT_EQ(record_.Pictures[2].PictureYPos, 1340);
    EXPECT_EQ(record_.Pictures[1].PictureWidth, 200);
}

TEST_F(Pictures, GiveTheRecordTheirOwnSize)
{
    record_.Pictures[1].PictureFilename = "c:\\bilder\\sol.bmp";
    LayOut(Measures(120, 90));
    EXPECT_TRUE(boxes_[1].isVisible);
    EXPECT_FALSE(boxes_[1].isStretched);
    EXPECT_EQ(boxes_[1].place, (SurfacePlace{340, 1240, 1800, 1350}));
    EXPECT_EQ(record_.Pictures[1].PictureWidth, 120);
    EXPECT_EQ(record_.Pictures[1].PictureHeight, 90);
    EXPECT_FALSE(boxes_[0].isVisible);
}

TEST_F(Pictures, ThatAreStretchedTakeTheSizeOfTheRecord)
{
    record_.Pictures[0] = {.PictureFilename = "a.wmf",
                           .StretchPicture = kOn,
                           .PictureWidth = 300,
                           .PictureHeight = 50,
                           .PictureXPos = 240,
                           .PictureYPos = 1140};
    LayOut(Measures(7, 7));
    EXPECT_TRUE(boxes_[0].isStretched);
    EXPECT_EQ(boxes_[0].place, (SurfacePlace{240, 1140, 4500, 750}));
    EXPECT_EQ(record_.Pictures[0].PictureWidth, 300);
}

TEST_F(Pictures, AsWideAsTheSurfaceAreStretchedWithoutAWord)
{
    record_.Pictures[0].PictureFilename = "wide.jpg";
    LayOut(Measures(600, 100));
    EXPECT_EQ(record_.Pictures[0].StretchPicture, kOn);
    EXPECT_TRUE(boxes_[0].isStretched);
    EXPECT_EQ(boxes_[0].place.Width, 9000 - 30);
    EXPECT_EQ(boxes_[0].place.Height, 1500);
    // 9065 is the right edge; the box is moved left until it ends there.
    EXPECT_EQ(boxes_[0].place.Left, 95);
    EXPECT_EQ(record_.Pictures[0].PictureXPos, 95);
}

TEST_F(Pictures, OnePixelNarrowerStayAsTheyAre)
{
    record_.Pictures[0].PictureFilename = "wide.jpg";
    LayOut(Measures(599, 399));
    EXPECT_EQ(record_.Pictures[0].StretchPicture, kOff);
    EXPECT_EQ(boxes_[0].place.Width, 8985);
    EXPECT_EQ(boxes_[0].place.Height, 5985);
}

TEST_F(Pictures, AsHighAsTheSurfaceAreStretchedToo)
{
    record_.Pictures[2].PictureFilename = "high.jpg";
    LayOut(Measures(10, 400));
    EXPECT_EQ(record_.Pictures[2].StretchPicture, kOn);
    EXPECT_EQ(boxes_[2].place.Height, 6000 - 30);
    EXPECT_EQ(boxes_[2].place.Width, 150);
}

TEST_F(Pictures, BehindOneThatCantBeReadStayAsTheyWere)
{
    for (section::DesPicture& picture : record_.Pictures)
        picture.PictureFilename = "x.bmp";
    int calls = 0;
    const auto measure = [&](const Text&) -> PixelSize {
        if (++calls == 2)
            throw RunError(kInvalidPicture);
        return {10, 10};
    };
    EXPECT_EQ(RunErrorNumber([&] { LayOut(measure); }), kInvalidPicture);
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(boxes_[0].isVisible);
    EXPECT_FALSE(boxes_[2].isVisible);
    EXPECT_EQ(record_.Pictures[2].PictureWidth, 200);
    EXPECT_EQ(record_.Pictures[1].PictureFilename, "x.bmp");
    // The next move of the first one does not move the others either.
    boxes_[0].place.Left = 900;
    KeepPicturesInsideDesign(record_, boxes_, surface_, kScreen);
    EXPECT_EQ(record_.Pictures[0].PictureXPos, 900);
    EXPECT_EQ(record_.Pictures[1].PictureXPos, 340);
    EXPECT_EQ(record_.Pictures[2].PictureYPos, 1340);
}

TEST_F(Pictures, OfTheProjectBeforeAreNotShownBehindOneThatCantBeRead)
{
    for (PictureBox& box : boxes_)
        box.isVisible = true;
    for (section::DesPicture& picture : record_.Pictures)
        picture.PictureFilename = "x.bmp";
    EXPECT_EQ(RunErrorNumber([&] {
                  LayOut([](const Text&) -> PixelSize { throw RunError(kInvalidPicture); });
              }),
              kInvalidPicture);
    for (const PictureBox& box : boxes_)
        EXPECT_FALSE(box.isVisible);
}

TEST_F(Pictures, BehindOneThatCantBeReadAreShownAsBefore)
{
    for (section::DesPicture& picture : record_.Pictures)
        picture.PictureFilename = "x.bmp";
    LayOut(Measures(10, 10));
    const PictureBoxes before = boxes_;
    record_.Pictures[0].PictureFilename = "damaged.bmp";
    record_.Pictures[1].PictureXPos = 900;
    record_.Pictures[2].PictureFilename = "y.bmp";
    const auto fails = [](const Text&) -> PixelSize { throw RunError(kInvalidPicture); };
    EXPECT_EQ(RunErrorNumber([&] { LayOut(fails); }), kInvalidPicture);
    EXPECT_FALSE(boxes_[0].isVisible);
    EXPECT_TRUE(boxes_[1].isVisible);
    EXPECT_EQ(boxes_[1].place, before[1].place) << "not laid out in this pass";
    EXPECT_FALSE(boxes_[2].isVisible) << "it would show another picture than the record's";
    // Nothing is stored of a box that is not where its record says.
    KeepPicturesInsideDesign(record_, boxes_, surface_, kScreen);
    EXPECT_EQ(record_.Pictures[1].PictureXPos, 900);
}

TEST_F(Pictures, TakenAwayLeaveNoSizeBehind)
{
    record_.Pictures[0] = {.PictureFilename = "a.bmp", .PictureXPos = 6000, .PictureYPos = 1140};
    LayOut(Measures(100, 100));
    EXPECT_EQ(record_.Pictures[0].PictureXPos, 6000);
    record_.Pictures[0] = {.PictureFilename = "", .PictureXPos = 9000, .PictureYPos = 1140};
    LayOut(Measures(1, 1));
    EXPECT_EQ(boxes_[0].place.Width, 0);
    EXPECT_EQ(record_.Pictures[0].PictureXPos, 9000);
}

TEST_F(Pictures, HaveTheSameBoxWhateverTheOthersAre)
{
    for (section::DesPicture& picture : record_.Pictures)
        picture.PictureFilename = "x.bmp";
    record_.Pictures[1].StretchPicture = kOn;
    PictureBoxes alone;
    for (std::size_t i = 0; i < alone.size(); ++i)
        alone[i] = BoxOfPicture(record_, i, {700, 50}, surface_, kScreen);
    LayOut(Measures(700, 50));
    for (std::size_t i = 0; i < alone.size(); ++i) {
        EXPECT_EQ(alone[i].place, boxes_[i].place) << i;
        EXPECT_EQ(alone[i].isStretched, boxes_[i].isStretched) << i;
        EXPECT_TRUE(alone[i].isVisible) << i;
    }
}

TEST_F(Pictures, AreMovedInsideASurfaceWhoseEdgesAreMadeWholeFirst)
{
    surface_ = {.Left = -5, .Top = -6, .Width = -7, .Height = -8};
    KeepPicturesInsideDesign(record_, boxes_, surface_, kScreen);
    EXPECT_EQ(surface_, (SurfacePlace{0, 0, 0, 0}));
    EXPECT_EQ(record_.Pictures[0].PictureXPos, -15);
    EXPECT_EQ(record_.Pictures[0].PictureYPos, 15);
}

TEST(LayOutPicturesAnim, ShowsTheRectangleOnlyWithPictures)
{
    section::DesPicturesAnim record{.PictureXPos = -900, .PictureYPos = 30000};
    const ShownBox hidden = LayOutPicturesAnim(record, kScreen);
    EXPECT_FALSE(hidden.isVisible);
    EXPECT_EQ(hidden.place, (SurfacePlace{-900, 30000, 3000, 1500})); // kept, and not moved
    record.NrAnimPictures = 1;
    EXPECT_TRUE(LayOutPicturesAnim(record, kScreen).isVisible);
    EXPECT_EQ(record.PictureXPos, -900);
}

class Logotype : public testing::Test {
protected:
    LogotypeBox LayOut(const MeasurePicture& measure) const
    {
        return LayOutLogotype(record_, surround_, measure);
    }

    section::DesLogotype record_{.LogotypeFilename = "c:\\firma.bmp"};
    LogotypeSurround surround_{.surface = kSurface, .tabWidth = 9160, .screen = kScreen};
};

TEST_F(Logotype, StandsInALowerCorner)
{
    const LogotypeBox right = LayOut(Measures(100, 40));
    EXPECT_TRUE(right.isVisible);
    EXPECT_FALSE(right.isMetafile);
    EXPECT_EQ(right.place, (SurfacePlace{9160 - 1500 - 380, 6000 - 600 - 200, 1500, 600}));
    record_.LogotypeAlignment = 1;
    EXPECT_EQ(LayOut(Measures(100, 40)).place.Left, 380);
    record_.LogotypeAlignment = 2; // never set, which counts as right
    EXPECT_EQ(LayOut(Measures(100, 40)).place.Left, 7280);
}

TEST_F(Logotype, OnTheRightFollowsTheTabAndNotTheSurface)
{
    surround_.surface.Width = 5000;
    EXPECT_EQ(LayOut(Measures(100, 40)).place.Left, 7280);
}

TEST_F(Logotype, WithoutAFileIsHidden)
{
    record_.LogotypeFilename.clear();
    EXPECT_FALSE(LayOut(Measures(1, 1)).isVisible);
}

TEST_F(Logotype, OfAMetafileTakesTheSizeOfTheRecord)
{
    record_.LogotypeFilename = "C:\\FIRMA.WMF.gammal";
    const LogotypeBox box = LayOut(Measures(4000, 4000));
    EXPECT_TRUE(box.isMetafile);
    EXPECT_EQ(box.place.Width, 3000);
    EXPECT_EQ(box.place.Height, 750);
}

TEST_F(Logotype, AsLargeAsTheSurfaceIsHiddenAndKeepsItsName)
{
    for (const PixelSize size : {PixelSize{600, 10}, PixelSize{10, 400}}) {
        const LogotypeBox box = LayOut(Measures(size.width, size.height));
        EXPECT_TRUE(box.isTooLarge);
        EXPECT_FALSE(box.isVisible);
        EXPECT_EQ(box.place.Width, 10);
        EXPECT_EQ(box.place.Height, 10);
    }
    EXPECT_EQ(record_.LogotypeFilename, "c:\\firma.bmp");
    const LogotypeBox fits = LayOut(Measures(599, 399));
    EXPECT_TRUE(fits.isVisible);
    EXPECT_FALSE(fits.isTooLarge);
}

TEST(TellLogotypeTooLarge, HasItsWords)
{
    ScriptedAsk ask({{BoxKind::Critical, "Kan ej lägga in bilden",
                      "Logotype-bildens bredd och höjd är för stor! Välj en bild som har mindre "
                      "dimensioner. Logotype-bildens mått får inte vara större än design-editorns "
                      "fönster."}});
    TellLogotypeTooLarge(ask);
}

TEST_F(Logotype, ThatCantBeReadIsAFailureForTheCaller)
{
    const auto fails = [](const Text&) -> PixelSize { throw RunError(kInvalidPicture); };
    EXPECT_EQ(RunErrorNumber([&] { LayOut(fails); }), kInvalidPicture);
    EXPECT_EQ(record_.LogotypeFilename, "c:\\firma.bmp");
}

TEST(LogotypeBackColor, IsTheBlendsSecondColourButNeverBlack)
{
    EXPECT_EQ(LogotypeBackColor(1, 2, false), 2);
    EXPECT_EQ(LogotypeBackColor(1, 0, false), 2039583);
    // On a picture it is the first one, whatever that is.
    EXPECT_EQ(LogotypeBackColor(0, 2, true), 0);
}

TEST_F(Logotype, OnAPictureHasTheFirstColourAlsoWhereThePictureCantBeShown)
{
    record_.LogotypeFilename = "a.wmf";
    surround_.paint.ColorFrom = 7;
    surround_.paint.ColorTo = 9;
    EXPECT_EQ(LayOut(Measures(1, 1)).BackColor, 9);
    surround_.isOnPicture = true;
    EXPECT_EQ(LayOut(Measures(1, 1)).BackColor, 7);
}

TEST(IsOnPicture, IsAMatterOfOneNumber)
{
    EXPECT_FALSE(IsOnPicture({.Type = 1}));
    EXPECT_TRUE(IsOnPicture({.Type = 2}));
    EXPECT_FALSE(IsOnPicture({.Type = 3}));
}

TEST(ScreenHeightInPixels, RoundsAHalfToTheEvenNeighbour)
{
    EXPECT_EQ(ScreenHeightInPixels(16200, kScreen), 1080);
    EXPECT_EQ(ScreenHeightInPixels(37, {.TPPX = 10, .TPPY = 10}), 4);
    EXPECT_EQ(ScreenHeightInPixels(25, {.TPPX = 10, .TPPY = 10}), 2);
}

class TextBox : public testing::Test {
protected:
    TextBoxLayout LayOut(Long titleBottom = 60, Long headingHeight = 285)
    {
        return LayOutTextBox(record_, kSurface, kScreen, titleBottom, headingHeight);
    }

    section::DesTextBox record_;
};

TEST_F(TextBox, StandsWhereTheRecordSays)
{
    const TextBoxLayout layout = LayOut();
    EXPECT_EQ(layout.box, (SurfacePlace{400, 2950, 3000, 1485}));
    EXPECT_FALSE(layout.isVisible);
    EXPECT_EQ(layout.title, (SurfacePlace{0, 0, 3000, 285}));
    EXPECT_EQ(layout.text, (SurfacePlace{60, 495, 2880, 1485 - 495 - 30}));
}

TEST_F(TextBox, InTheMiddleRewritesItsOwnPlace)
{
    record_.BoxCenter = kOn;
    EXPECT_EQ(LayOut().box.Left, 4500 - 1500);
    EXPECT_EQ(record_.BoxXPos, 3000);
    record_.BoxWidth = 600; // as wide as the surface: 0 at first, then moved inside
    EXPECT_EQ(LayOut().box.Left, 80);
    EXPECT_EQ(record_.BoxXPos, 80);
}

TEST_F(TextBox, BelowTheTitleRewritesItsOwnPlace)
{
    record_.BoxPlaceBelowTitle = kOn;
    EXPECT_EQ(LayOut(60).box.Top, 900);
    EXPECT_EQ(record_.BoxYPos, 900);
    EXPECT_EQ(LayOut(0).box.Top, 95);
}

TEST_F(TextBox, WiderThanTheSurfaceBeginsAtItsEdge)
{
    record_.BoxWidth = 700;
    EXPECT_EQ(LayOut().box.Left, 80);
}

TEST_F(TextBox, OfNoHeightHasNone)
{
    record_.BoxHeight = 0;
    const TextBoxLayout layout = LayOut();
    EXPECT_EQ(layout.box.Height, 0);
    EXPECT_EQ(layout.text.Height, 0);
}

TEST_F(TextBox, IsShownByItsFlag)
{
    record_.ShowTextBox = kOn;
    EXPECT_TRUE(LayOut().isVisible);
}

TEST(LayOutOnAWideSurface, ShowsWhatTheRecordsKeep)
{
    section::DesTextBox text{.BoxCenter = kOn, .BoxPlaceBelowTitle = kOn};
    const SurfacePlace box = LayOutTextBox(text, kWideSurface, kScreen, 3000, 285).box;
    EXPECT_EQ(box.Left, 32767) << "its middle would be at 43500";
    EXPECT_EQ(box.Top, 32767);
    EXPECT_EQ(text.BoxXPos, 32767);
    EXPECT_EQ(text.BoxYPos, 32767);
    section::DesRTFbox rtf{.RTFboxHeight = 32767, .RTFboxXPos = 32767, .RTFboxYPos = 2800};
    const SurfacePlace high = LayOutRTFbox(rtf, kWideSurface, kScreen).place;
    EXPECT_EQ(high.Left, 32767);
    EXPECT_EQ(high.Top, -32768);
    EXPECT_EQ(rtf.RTFboxXPos, 32767);
    EXPECT_EQ(rtf.RTFboxYPos, -32768);
    section::DesPictures pictures;
    PictureBoxes boxes;
    SurfacePlace surface = kWideSurface;
    LayOutPictures(pictures, boxes, surface, kScreen, Measures(10, 10));
    boxes[1].place.Left = boxes[1].place.Top = 50000;
    KeepPicturesInsideDesign(pictures, boxes, surface, kScreen);
    EXPECT_EQ(boxes[1].place.Left, 32767);
    EXPECT_EQ(boxes[1].place.Top, 32767);
    EXPECT_EQ(pictures.Pictures[1].PictureXPos, 32767);
    EXPECT_EQ(pictures.Pictures[1].PictureYPos, 32767);
}

TEST(LayOutRTFbox, KeepsTheBoxInsideAndStoresItsPlace)
{
    section::DesRTFbox record{.ShowRTFbox = kOn, .RTFboxXPos = 9000, .RTFboxYPos = -4};
    const ShownBox box = LayOutRTFbox(record, kSurface, kScreen);
    EXPECT_TRUE(box.isVisible);
    EXPECT_EQ(box.place, (SurfacePlace{9065 - 3000, 95, 3000, 1650}));
    EXPECT_EQ(record.RTFboxXPos, 6065);
    EXPECT_EQ(record.RTFboxYPos, 95);
    record.RTFboxWidth = 1000;
    EXPECT_EQ(LayOutRTFbox(record, kSurface, kScreen).place.Left, 80);
}

} // namespace
} // namespace quillon
