// Pictures in the sizes that they are painted in.
#include "design/scalable_picture.h"

#include "support/block_letters.h"

#include <gmock/gmock.h>

namespace quillon {

using test::BlockLetters;
using testing::Each;

namespace {

Picture Filled(int width, int height, Pixel colour)
{
    return {width, height,
            std::vector<Pixel>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                               colour)};
}

// Changes from column to column, evenly.
Picture Ramp(int width, int height)
{
    Picture picture{width, height, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.pixels.push_back(0xFF000000 | static_cast<Pixel>(x * 255 / (width - 1)));
    return picture;
}

TEST(ScalablePicture, IsEmptyWithoutPixels)
{
    BlockLetters letters;
    EXPECT_TRUE(ScalablePicture().IsEmpty());
    EXPECT_TRUE(ScalablePicture().InSize(4, 4, letters).IsEmpty());
    EXPECT_TRUE(ScalablePicture(Filled(2, 2, 0xFF000000)).InSize(0, 4, letters).IsEmpty());
    EXPECT_TRUE(ScalablePicture(Filled(2, 2, 0xFF000000)).InSize(4, -1, letters).IsEmpty());
}

TEST(ScalablePicture, GivesItsPixelsInTheirOwnSize)
{
    BlockLetters letters;
    const ScalablePicture picture(Ramp(7, 3));
    EXPECT_EQ(picture.Width(), 7);
    EXPECT_EQ(picture.Height(), 3);
    EXPECT_EQ(picture.InSize(7, 3, letters).pixels, Ramp(7, 3).pixels);
    EXPECT_EQ(picture.InSize(14, 3, letters).pixels, Scaled(Ramp(7, 3), 14, 3).pixels);
}

TEST(ScalablePicture, KeepsASizeThatIsAskedForAgain)
{
    BlockLetters letters;
    const ScalablePicture picture(Ramp(100, 50));
    const Pixel* first = picture.InSize(33, 22, letters).pixels.data();
    EXPECT_EQ(picture.InSize(33, 22, letters).pixels.data(), first);
    EXPECT_EQ(picture.InSize(40, 22, letters).width, 40);
}

TEST(ScalablePicture, OfMuchLargerPixelsGivesNearlyTheirMean)
{
    BlockLetters letters;
    const Picture large = Ramp(1001, 403);
    const ScalablePicture picture(large);
    const Picture mean = Scaled(large, 60, 30);
    // The pixels of a size do not depend on the sizes that were asked for before.
    picture.InSize(500, 300, letters);
    const Picture once = picture.InSize(60, 30, letters);
    ASSERT_EQ(once.pixels.size(), mean.pixels.size());
    for (std::size_t i = 0; i < mean.pixels.size(); ++i)
        EXPECT_NEAR(double(once.pixels[i] & 0xFF), double(mean.pixels[i] & 0xFF), 2);
    EXPECT_EQ(ScalablePicture(large).InSize(60, 30, letters).pixels, once.pixels);
}

TEST(ScalablePicture, MayBeLargerThanWhatIsKeptOfIt)
{
    BlockLetters letters;
    const ScalablePicture picture(4000, 2000, Filled(500, 250, 0xFF123456));
    EXPECT_EQ(picture.Width(), 4000);
    EXPECT_EQ(picture.Height(), 2000);
    EXPECT_THAT(picture.InSize(4000, 20, letters).pixels, Each(0xFF123456));
    EXPECT_EQ(picture.InSize(4000, 20, letters).width, 4000);
}

TEST(ScalablePicture, LosesOneColour)
{
    BlockLetters letters;
    ScalablePicture picture(Filled(4, 4, 0xFF000000));
    picture.InSize(2, 2, letters);
    picture.MakeTransparent(0);
    EXPECT_THAT(picture.InSize(2, 2, letters).pixels, Each(0U));
    EXPECT_THAT(picture.InSize(4, 4, letters).pixels, Each(0U));
}

TEST(ScalablePicture, KeepsOnlyWhatIsShown)
{
    BlockLetters letters;
    const ScalablePicture whole(Ramp(400, 300));
    ScalablePicture kept(Ramp(400, 300));
    whole.InSize(40, 25, letters);
    EXPECT_GT(whole.Memory(), 400 * 300 * 4);
    kept.KeepOnly(40, 25);
    EXPECT_EQ(kept.Memory(), 40 * 25 * 4);
    EXPECT_EQ(kept.Width(), 400);
    EXPECT_EQ(kept.Height(), 300);
    EXPECT_EQ(kept.InSize(40, 25, letters).pixels, whole.InSize(40, 25, letters).pixels);
    EXPECT_EQ(kept.Memory(), 40 * 25 * 4);
    // Asking for more pixels than there are, or for none, changes nothing.
    kept.KeepOnly(800, 600);
    kept.KeepOnly(0, 25);
    EXPECT_EQ(kept.Memory(), 40 * 25 * 4);
    EXPECT_EQ(kept.InSize(80, 50, letters).width, 80);
}

TEST(ScalablePicture, ForgetsOtherSizesOnceOneIsKept)
{
    BlockLetters letters;
    ScalablePicture picture(Ramp(400, 300));
    picture.InSize(40, 25, letters);
    picture.KeepOnly(400, 300);
    picture.InSize(400, 300, letters);
    EXPECT_EQ(picture.Memory(), 400 * 300 * 4 + 40 * 25 * 4);
}

TEST(ScalablePicture, IsCutToAPart)
{
    BlockLetters letters;
    ScalablePicture picture(Ramp(100, 50));
    picture.Crop({10, 5, 30, 25});
    EXPECT_EQ(picture.Width(), 20);
    EXPECT_EQ(picture.Height(), 20);
    EXPECT_EQ(picture.Memory(), 20 * 20 * 4);
    const Picture& part = picture.InSize(20, 20, letters);
    EXPECT_EQ(part.pixels[0], Ramp(100, 50).pixels[10]);
    EXPECT_EQ(part.pixels[19], Ramp(100, 50).pixels[29]);
    // A part that lies outside changes nothing.
    picture.Crop({30, 0, 40, 10});
    EXPECT_EQ(picture.Width(), 20);
}

TEST(ScalablePicture, IsCutWhereFewerPixelsAreKeptToo)
{
    ScalablePicture picture(400, 200, Ramp(100, 50));
    picture.Crop({200, 0, 400, 100});
    EXPECT_EQ(picture.Width(), 200);
    EXPECT_EQ(picture.Height(), 100);
    EXPECT_EQ(picture.Memory(), 50 * 25 * 4);
}

TEST(ScalablePicture, OfADrawingStaysWholeAndNeverOutgrowsAScreen)
{
    BlockLetters letters;
    int drawn = 0;
    ScalablePicture picture(
        30'000, 30'000,
        [&](int width, int height, Letters&) {
            ++drawn;
            return Filled(width, height, 0xFF000000);
        },
        1234);
    picture.KeepOnly(10, 10);
    picture.Crop({0, 0, 5, 5});
    EXPECT_EQ(picture.Width(), 30'000);
    EXPECT_EQ(picture.Memory(), 1234);
    EXPECT_TRUE(picture.InSize(30'000, 30'000, letters).IsEmpty());
    EXPECT_EQ(drawn, 0);
    EXPECT_EQ(picture.InSize(100, 100, letters).width, 100);
    EXPECT_EQ(picture.Memory(), 1234 + 100 * 100 * 4);
}

TEST(ScalablePicture, IsDrawnAnewInEachSize)
{
    BlockLetters letters;
    int drawn = 0;
    ScalablePicture picture(10, 5, [&](int width, int height, Letters&) {
        ++drawn;
        return Filled(width, height, 0xFF0000FF);
    });
    EXPECT_EQ(picture.Width(), 10);
    EXPECT_EQ(picture.InSize(30, 20, letters).pixels.size(), 600U);
    EXPECT_EQ(picture.InSize(30, 20, letters).pixels.size(), 600U);
    EXPECT_EQ(drawn, 1);
    EXPECT_THAT(picture.InSize(3, 2, letters).pixels, Each(0xFF0000FFU));
    EXPECT_EQ(drawn, 2);
    picture.MakeTransparent(0xFF0000);
    EXPECT_THAT(picture.InSize(3, 2, letters).pixels, Each(0U));
}

} // namespace
} // namespace quillon
