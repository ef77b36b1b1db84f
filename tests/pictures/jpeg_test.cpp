// JPEG pictures of each kind, made by the library's own other half.
#include "pictures/jpeg.h"

#include "made_jpeg.h"
#include "picture_tests.h"
#include "pictures/jpeg_decoder.h"

namespace quillon::test {
namespace {

// Left half dark, right half light, with a bright line at the top.
std::string TwoHalves(MadeJpeg made)
{
    made.width = 32;
    made.height = 24;
    return MakeJpeg(made, [&](int y, std::vector<unsigned char>& row) {
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = y < 8 ? 250 : i < row.size() / 2 ? 40 : 200;
    });
}

int Red(const Picture& picture, int x, int y)
{
    return static_cast<int>(picture.pixels[static_cast<std::size_t>(y * picture.width + x)] >> 16 &
                            0xFF);
}

TEST(DecodeJpeg, OfEachKind)
{
    for (const int components : {1, 3})
        for (const bool isProgressive : {false, true}) {
            const Picture picture =
                Decoded(TwoHalves({.components = components, .isProgressive = isProgressive}));
            ASSERT_EQ(picture.width, 32);
            ASSERT_EQ(picture.height, 24);
            EXPECT_NEAR(Red(picture, 4, 20), 40, 4);
            EXPECT_NEAR(Red(picture, 28, 20), 200, 4);
            EXPECT_NEAR(Red(picture, 16, 2), 250, 4);
            for (const Pixel pixel : picture.pixels)
                ASSERT_EQ(pixel >> 24, 0xFFU);
        }
}

TEST(DecodeJpeg, OfCmyk)
{
    // With Adobe's marker, 250 in all samples is nearly white, without it nearly black.
    const Picture inverted = Decoded(TwoHalves({.components = 4}));
    EXPECT_NEAR(Red(inverted, 16, 2), 250 * 250 / 255, 4);
    EXPECT_NEAR(Red(inverted, 4, 20), 40 * 40 / 255, 4);
    const Picture plain = Decoded(TwoHalves({.components = 4, .hasAdobeMarker = false}));
    EXPECT_NEAR(Red(plain, 16, 2), 0, 4);
    EXPECT_NEAR(Red(plain, 4, 20), 215 * 215 / 255, 4);
}

TEST(DecodeJpeg, LooksAsInAnotherProgram)
{
    for (const int components : {1, 3})
        for (const bool isProgressive : {false, true}) {
            const std::string file =
                TwoHalves({.components = components, .isProgressive = isProgressive});
            EXPECT_LE(Difference(Decoded(file), ByImageMagick(file, "jpg")), 1);
        }
}

TEST(DecodeJpeg, TurnsThePictureAsItWasHeld)
{
    // Bright in one corner only, which distinguishes all eight.
    for (const auto& [orientation, isRight, isBottom] : {std::tuple{1, false, false},
                                                         {2, true, false},
                                                         {3, true, true},
                                                         {4, false, true},
                                                         {5, false, false},
                                                         {6, true, false},
                                                         {7, true, true},
                                                         {8, false, true}}) {
        const Picture picture = Decoded(
            MakeJpeg({.width = 48, .height = 24, .components = 1, .orientation = orientation},
                     [](int y, std::vector<unsigned char>& row) {
                         std::fill(row.begin(), row.end(), std::uint8_t{20});
                         if (y < 8)
                             std::fill_n(row.begin(), 8, std::uint8_t{240});
                     }));
        EXPECT_EQ(picture.width, orientation < 5 ? 48 : 24) << orientation;
        EXPECT_EQ(picture.height, orientation < 5 ? 24 : 48) << orientation;
        for (const bool right : {false, true})
            for (const bool bottom : {false, true})
                EXPECT_NEAR(
                    Red(picture, right ? picture.width - 2 : 1, bottom ? picture.height - 2 : 1),
                    right == isRight && bottom == isBottom ? 240 : 20, 8)
                    << orientation;
    }
}

TEST(DecodeJpeg, ShowsWhatACutFileHas)
{
    const std::string file = TwoHalves({});
    int shown = 0;
    for (std::size_t length = 0; length < file.size(); ++length) {
        const PictureResult result = DecodePicture(file.substr(0, length));
        EXPECT_EQ(result.fault == PictureFault::None, !result.picture.IsEmpty()) << length;
        if (result.fault == PictureFault::None) {
            ++shown;
            EXPECT_EQ(result.picture.Width(), 32);
        }
    }
    EXPECT_GT(shown, 0);
}

TEST(DecodeJpeg, SurvivesEveryDamagedByte)
{
    for (const bool isProgressive : {false, true}) {
        const std::string file = TwoHalves({.isProgressive = isProgressive});
        for (std::size_t at = 0; at < file.size(); ++at)
            for (const char damage : {'\0', '\xFF', '\x7F'}) {
                std::string damaged = file;
                damaged[at] = damage;
                const PictureResult result = DecodePicture(damaged);
                EXPECT_EQ(result.fault == PictureFault::None, !result.picture.IsEmpty());
            }
    }
}

TEST(DecodeJpeg, RefusesWhatIsNone)
{
    for (const std::string& bytes :
         {std::string("\xFF\xD8\xFF"), std::string("\xFF\xD8\xFF\xD9"),
          std::string("\xFF\xD8\xFF\xE0\0\x10JFIF", 10), "\xFF\xD8\xFF" + std::string(5000, '\xFF'),
          "\xFF\xD8\xFF" + std::string(5000, '\1')})
        EXPECT_EQ(DecodePicture(bytes).fault, PictureFault::Damaged);
}

TEST(JpegRequest, MakesAPictureOfTheReducedSize)
{
    const Picture picture = JpegRequest{.width = 17, .height = 8, .reduction = 8}.MakePicture();
    EXPECT_EQ(picture.width, 3) << "rounded up";
    EXPECT_EQ(picture.height, 1);
    EXPECT_EQ(picture.pixels.size(), 3U);
}

TEST(JpegReduction, KeepsAPictureWithinItsMemory)
{
    JpegHeader header{.width = 5000, .height = 5000, .samples16 = 24};
    EXPECT_EQ(JpegReduction(header, 1 << 20), 1);
    header.width = 8000;
    EXPECT_EQ(JpegReduction(header, 1 << 20), 2);
    header = {.width = 20'000, .height = 20'000, .samples16 = 24};
    EXPECT_EQ(JpegReduction(header, 4 << 20), 4);
    // Its scans alone would take more than there is.
    header.isProgressive = true;
    EXPECT_EQ(JpegReduction(header, 4 << 20), 0);
    header = {.width = 6000, .height = 4000, .isProgressive = true, .samples16 = 24};
    EXPECT_EQ(JpegReduction(header, 4 << 20), 1);
    header.samples16 = 48;
    EXPECT_EQ(JpegReduction(header, 4 << 20), 2);
}

std::string Huge(bool isProgressive, int side)
{
    return MakeJpeg({.width = side,
                     .height = side,
                     .components = 1,
                     .isProgressive = isProgressive,
                     .quality = 50},
                    [side](int y, std::vector<unsigned char>& row) {
                        const int gray = static_cast<int>(std::int64_t{y} * 200 / side);
                        std::fill(row.begin(), row.end(), static_cast<std::uint8_t>(gray));
                    });
}

TEST(DecodeJpeg, KeepsAHugePictureSmall)
{
    const std::string file = Huge(false, kHugeSide);
    const Usage usage = DecodeInChild([&] { return file; }, 1920, 1080);
    EXPECT_TRUE(usage.isOver);
    EXPECT_EQ(usage.fault, PictureFault::None);
    if (kIsMemoryMeasured)
        EXPECT_LT(usage.peakKilobytes, kMaxKilobytes);
    // It is laid out in its own size all the same.
    const PictureResult result = DecodePicture(file);
    EXPECT_EQ(result.picture.Width(), kHugeSide);
    EXPECT_EQ(result.picture.Height(), kHugeSide);
    BlockLetters letters;
    const Picture& shown = result.picture.InSize(200, 200, letters);
    EXPECT_NEAR(Red(shown, 100, 190), 190, 3);
    EXPECT_NEAR(Red(shown, 5, 20), 20, 3);
}

TEST(DecodeJpeg, RefusesAHugeOneInManyScans)
{
    std::string file = TwoHalves({.isProgressive = true});
    const std::size_t frame = file.find("\xFF\xC2");
    ASSERT_NE(frame, std::string::npos);
    file.replace(frame + 5, 4, "\x4E\x20\x4E\x20"); // 20,000 x 20,000
    const Usage usage = DecodeInChild([&] { return file; });
    EXPECT_TRUE(usage.isOver);
    EXPECT_EQ(usage.fault, PictureFault::TooLarge);
}

} // namespace
} // namespace quillon::test
