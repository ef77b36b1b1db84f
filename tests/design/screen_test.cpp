// The whole screen: which object is painted where, and that a part of it is painted as the whole
// is.
#include "design/screen.h"
#include "support/block_letters.h"

#include <gmock/gmock.h>

namespace quillon {

using test::BlockLetters;

namespace {

constexpr Pixel kGreen = 0xFF00FF00;
constexpr Pixel kRed = 0xFFFF0000;
constexpr Pixel kWhite = 0xFFFFFFFF;

Picture Filled(int width, int height, Pixel colour)
{
    return {width, height,
            std::vector<Pixel>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                               colour)};
}

class ScreenTest : public testing::Test {
protected:
    ScreenTest()
    {
        project.DesBackground = {.BackColor1 = 0x00FF00, .BlendDirection = 0};
        project.DesTitle.TitleText = "";
    }

    ScreenDesign Design() const
    {
        return {.project = project, .width = 640, .height = 480, .pictures = pictures};
    }
    std::vector<Pixel> Painted(int width, int height, const ScreenDesign& design)
    {
        std::vector<Pixel> pixels(static_cast<std::size_t>(width) *
                                  static_cast<std::size_t>(height));
        PaintScreen(WholeCanvas(pixels.data(), width, height), letters, design);
        return pixels;
    }
    Pixel At(int x, int y)
    {
        return Painted(640, 480, Design())[std::size_t(y) * 640 + std::size_t(x)];
    }

    void PutPicture(std::size_t number, int left, int top)
    {
        section::DesPicture& picture = project.DesPictures.Pictures[number];
        picture.PictureFilename = "a";
        // Places count from the page, in which the surface begins at 80 twips.
        picture.PictureXPos = static_cast<Integer>(80 + 15 * left);
        picture.PictureYPos = static_cast<Integer>(80 + 15 * top);
        pictures.pictures[number] = Filled(20, 10, kRed);
    }

    Project project;
    ScreenPictures pictures;
    BlockLetters letters;
};

TEST_F(ScreenTest, HasItsPicturesWhereTheyWerePut)
{
    PutPicture(1, 100, 50);
    EXPECT_EQ(At(99, 50), kGreen);
    EXPECT_EQ(At(100, 50), kRed);
    EXPECT_EQ(At(119, 59), kRed);
    EXPECT_EQ(At(120, 59), kGreen);
    EXPECT_EQ(At(119, 60), kGreen);
}

TEST_F(ScreenTest, ScalesPlacesInBothDirectionsAndPicturesByTheSmallerOne)
{
    PutPicture(0, 100, 50);
    const std::vector<Pixel> wide = Painted(1920, 960, Design()); // 3 and 2 times
    const auto at = [&](int x, int y) { return wide[std::size_t(y) * 1920 + std::size_t(x)]; };
    EXPECT_EQ(at(299, 100), kGreen);
    EXPECT_EQ(at(300, 100), kRed);
    EXPECT_EQ(at(339, 119), kRed);
    EXPECT_EQ(at(340, 119), kGreen);
    EXPECT_EQ(at(339, 120), kGreen);
}

TEST_F(ScreenTest, HidesTheThreePicturesAloneWhileAPageIsShown)
{
    PutPicture(0, 100, 50);
    project.DesPicturesAnim = {.NrAnimPictures = 1,
                               .PictureWidth = 30,
                               .PictureHeight = 30,
                               .PictureXPos = 80 + 15 * 300,
                               .PictureYPos = 80 + 15 * 300};
    pictures.changing = Filled(20, 10, kWhite);
    ScreenDesign design = Design();
    design.hidesPictures = true;
    const std::vector<Pixel> hidden = Painted(640, 480, design);
    EXPECT_EQ(hidden[50 * 640 + 110], kGreen);
    EXPECT_EQ(hidden[305 * 640 + 305], kWhite);
    EXPECT_EQ(At(110, 50), kRed);
    EXPECT_EQ(ChangingPicturesRect(design, 640, 480), RectAt(300, 300, 30, 30));
    EXPECT_EQ(ChangingPicturesRect(design, 1280, 960), RectAt(600, 600, 60, 60));
}

TEST_F(ScreenTest, FillsTheTextBoxOnlyWhereTheRecordSaysSo)
{
    project.DesTextBox = {.BoxTitle = "",
                          .BoxText = "",
                          .BoxBackColor = 0xFFFFFF,
                          .BoxUseBackColor = kOn,
                          .ShowTextBox = kOn,
                          .BoxXPos = 80 + 15 * 40,
                          .BoxYPos = 80 + 15 * 40};
    EXPECT_EQ(At(50, 50), kWhite);
    project.DesTextBox.BoxUseBackColor = kOff;
    EXPECT_EQ(At(50, 50), kGreen);
    project.DesTextBox.BoxUseBackColor = kOn;
    project.DesTextBox.ShowTextBox = kOff;
    EXPECT_EQ(At(50, 50), kGreen);
}

TEST_F(ScreenTest, PaintsNoLogotypeAsLargeAsTheSurface)
{
    project.DesLogotype = {.LogotypeFilename = "a", .LogotypeAlignment = 1};
    pictures.logotype = Filled(640, 10, kRed);
    for (const Pixel pixel : Painted(640, 480, Design()))
        ASSERT_EQ(pixel, kGreen);
    pictures.logotype = Filled(60, 10, kRed);
    EXPECT_EQ(At(30, 455), kRed);
}

TEST_F(ScreenTest, PaintsTheBlendAndTheFirstColourWhereTheBackgroundsPictureIsMissing)
{
    project.DesBackground = {.Type = 2,
                             .BackColor1 = 0x00FF00,
                             .BackColor2 = 0x0000FF,
                             .BlendDirection = 1,
                             .PictureFilename = "borta.bmp"};
    project.DesLogotype = {.LogotypeFilename = "a.wmf",
                           .LogotypeAlignment = 1,
                           .LogotypeWMFWidth = 60,
                           .LogotypeWMFHeight = 10};
    pictures.logotype = ScalablePicture(
        60, 10, [](int width, int height, Letters&) { return Filled(width, height, 0); });
    EXPECT_EQ(At(0, 0), kGreen);
    EXPECT_EQ(At(639, 0), kRed);
    EXPECT_EQ(At(30, 455), kGreen) << "behind the metafile";
    project.DesBackground.Type = 1;
    EXPECT_EQ(At(30, 455), kRed);
}

TEST_F(ScreenTest, PaintsTheSameOfWhatIsKeptOfLargePictures)
{
    const auto colourful = [](int width, int height) {
        Picture picture{width, height, {}};
        for (int i = 0; i < width * height; ++i)
            picture.pixels.push_back(0xFF000000 | static_cast<Pixel>(i) * 2654435761U >> 8);
        return picture;
    };
    project.DesBackground = {.Type = 2, .BackColor1 = 0x00FF00, .PictureFilename = "b"};
    project.DesPicturesAnim = {.NrAnimPictures = 1,
                               .PictureWidth = 120,
                               .PictureHeight = 60,
                               .PictureXPos = 80 + 15 * 300,
                               .PictureYPos = 80 + 15 * 300};
    project.DesLogotype = {.LogotypeFilename = "l", .LogotypeAlignment = 1};
    for (std::size_t i = 0; i < 3; ++i)
        PutPicture(i, 40 * int(i), 60 * int(i));
    project.DesPictures.Pictures[1].StretchPicture = kOn;
    for (const Flag stretched : {kOn, kOff}) {
        project.DesBackground.StretchPicture = stretched;
        project.DesPicturesAnim.StretchPicture = stretched;
        pictures.background = colourful(1501, 1100);
        pictures.pictures[0] = colourful(900, 700); // larger than the surface
        pictures.pictures[1] = colourful(800, 300);
        pictures.pictures[2] = colourful(50, 40);
        pictures.changing = colourful(1700, 900);
        pictures.logotype = colourful(90, 30);
        const std::vector<Pixel> whole = Painted(640, 480, Design());
        KeepOnlyShown(pictures, Design(), 640, 480);
        EXPECT_TRUE(Painted(640, 480, Design()) == whole) << stretched;
        std::int64_t memory =
            pictures.background.Memory() + pictures.changing.Memory() + pictures.logotype.Memory();
        for (const ScalablePicture& picture : pictures.pictures)
            memory += picture.Memory();
        // The background and the first picture fill the screen; the others are small.
        EXPECT_LT(memory, 640 * 480 * 4 * 5 / 2) << stretched;
    }
}

TEST_F(ScreenTest, KeepsOfAPictureInItsOwnSizeWhatASmallScreenShows)
{
    project.DesBackground = {.Type = 2, .PictureFilename = "b", .StretchPicture = kOff};
    pictures.background = Filled(600, 400, kRed);
    const std::vector<Pixel> whole = Painted(320, 240, Design());
    KeepOnlyShown(pictures, Design(), 320, 240);
    EXPECT_EQ(pictures.background.Memory(), 300 * 200 * 4);
    EXPECT_TRUE(Painted(320, 240, Design()) == whole);
    // On a large screen only what is visible is scaled.
    pictures.background = Filled(600, 400, kRed);
    KeepOnlyShown(pictures, Design(), 1280, 960);
    Painted(1280, 960, Design());
    EXPECT_EQ(pictures.background.Memory(), (600 * 400 + 1200 * 800) * 4);
    pictures.background = Filled(1200, 900, kRed);
    KeepOnlyShown(pictures, Design(), 1280, 960);
    Painted(1280, 960, Design());
    EXPECT_LT(pictures.background.Memory(), (1280 + 8) * (960 + 8) * 4 * 5 / 4);
}

TEST_F(ScreenTest, KeepsNothingOfALogotypeThatIsTooLarge)
{
    project.DesLogotype = {.LogotypeFilename = "a", .LogotypeAlignment = 1};
    pictures.logotype = Filled(640, 10, kRed);
    KeepOnlyShown(pictures, Design(), 640, 480);
    EXPECT_EQ(pictures.logotype.Memory(), 0);
}

TEST_F(ScreenTest, CutsTheChangingPicturesAtTheirRectangle)
{
    project.DesPicturesAnim = {.NrAnimPictures = 1,
                               .PictureWidth = 30,
                               .PictureHeight = 30,
                               .PictureXPos = 80,
                               .PictureYPos = 80 + 15 * 100};
    pictures.changing = Filled(200, 200, kRed);
    EXPECT_EQ(At(29, 129), kRed);
    EXPECT_EQ(At(30, 129), kGreen);
    EXPECT_EQ(At(29, 130), kGreen);
    project.DesPicturesAnim.StretchPicture = kOn;
    EXPECT_EQ(At(29, 129), kRed);
    EXPECT_EQ(At(30, 129), kGreen);
}

TEST_F(ScreenTest, PaintsAPartAsTheWhole)
{
    project.DesBackground = {.BackColor1 = 0x4080FF, .BackColor2 = 0x200000, .BlendDirection = 5};
    project.DesTitle.TitleText = "Titel";
    project.DesTitleUnderline = {.UnderlineType = 2, .UnderlineHeight = 12};
    project.DesTextBox.ShowTextBox = kOn;
    PutPicture(0, 30, 20);
    PutPicture(1, 100, 30);
    project.DesPictures.Pictures[1].StretchPicture = kOn;
    const std::vector<Pixel> whole = Painted(800, 500, Design());
    std::vector<Pixel> pieces(whole.size());
    for (int top = 0; top < 500; top += 37)
        for (int left = 0; left < 800; left += 53) {
            Canvas part = WholeCanvas(pieces.data(), 800, 500);
            part.clip = Intersect(part.clip, RectAt(left, top, 53, 37));
            PaintScreen(part, letters, Design());
        }
    EXPECT_TRUE(pieces == whole);
}

} // namespace
} // namespace quillon
