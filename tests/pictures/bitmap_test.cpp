// Bitmaps of every depth and form, written here byte by byte.
#include "pictures/bitmap.h"

#include "picture_tests.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::Each;
using testing::ElementsAre;

struct Bitmap {
    int width = 0;
    int height = 0;
    int bits = 0;
    int compression = 0;
    std::string colours = {}; // four bytes each
    std::string masks = {};   // after the header
    std::string pixels = {};
    int headerSize = 40;
    int colourCount = 0;
};

std::string InfoHeader(const Bitmap& bitmap)
{
    std::string header = Long(bitmap.headerSize) + Long(bitmap.width) + Long(bitmap.height) +
                         Word(1) + Word(bitmap.bits) + Long(bitmap.compression) +
                         Long(static_cast<int>(bitmap.pixels.size())) + Long(2835) + Long(2835) +
                         Long(bitmap.colourCount) + Long(0) + bitmap.masks;
    header.resize(std::max(header.size(), static_cast<std::size_t>(bitmap.headerSize)), '\0');
    return header;
}

std::string WithFileHeader(const std::string& header, const std::string& pixels)
{
    const std::size_t offset = 14 + header.size();
    return "BM" + Long(static_cast<int>(offset + pixels.size())) + Long(0) +
           Long(static_cast<int>(offset)) + header + pixels;
}

std::string FileOf(const Bitmap& bitmap)
{
    return WithFileHeader(InfoHeader(bitmap) + bitmap.colours, bitmap.pixels);
}

// Blue, green, red, white, as the file stores them.
const std::string kFourColours("\xFF\0\0\0"
                               "\0\xFF\0\0"
                               "\0\0\xFF\0"
                               "\xFF\xFF\xFF\0",
                               16);
constexpr Pixel kBlue = 0xFF0000FF;
constexpr Pixel kGreen = 0xFF00FF00;
constexpr Pixel kRed = 0xFFFF0000;
constexpr Pixel kWhite = 0xFFFFFFFF;
constexpr Pixel kBlack = 0xFF000000;

std::string Palette(std::size_t count)
{
    std::string colours = kFourColours;
    colours.resize(count * 4, '\0');
    return colours;
}

Bitmap OneBit()
{
    return {.width = 10,
            .height = 2,
            .bits = 1,
            .colours = kFourColours.substr(0, 8),
            .pixels = std::string("\xA0\x40\0\0\x0F\x80\0\0", 8)};
}

Bitmap FourBits()
{
    return {.width = 3,
            .height = 2,
            .bits = 4,
            .colours = Palette(16),
            .pixels = std::string("\x01\x20\0\0\x32\x10\0\0", 8)};
}

Bitmap EightBits()
{
    return {.width = 3,
            .height = 2,
            .bits = 8,
            .colours = Palette(256),
            .pixels = std::string("\0\1\2\0\3\2\1\0", 8)};
}

Bitmap SixteenBits()
{
    return {.width = 3,
            .height = 1,
            .bits = 16,
            .pixels = Word(0x7C00) + Word(0x03E0) + Word(0x0010) + Word(0)};
}

Bitmap TwentyFourBits()
{
    return {.width = 2,
            .height = 2,
            .bits = 24,
            .pixels = std::string("\x01\x02\x03\x04\x05\x06\0\0\x07\x08\x09\x0A\x0B\x0C\0\0", 16)};
}

Bitmap ThirtyTwoBits()
{
    return {.width = 2, .height = 1, .bits = 32, .pixels = Long(0x00112233) + Long(0x7F445566)};
}

Bitmap RunLengths8()
{
    // Three of 1; 2 3 0 as they are, with one byte of filling; end of the row; one right and one
    // up; two of 3; end of the picture.
    return {.width = 6,
            .height = 3,
            .bits = 8,
            .compression = 1,
            .colours = Palette(256),
            .pixels = std::string("\3\1\0\3\2\3\0\0\0\0\0\2\1\1\2\3\0\1", 18)};
}

Bitmap RunLengths4()
{
    // Five of 1 2 in turn; three as they are: 3 0 1, filled up to a word; end.
    return {.width = 8,
            .height = 1,
            .bits = 4,
            .compression = 2,
            .colours = Palette(16),
            .pixels = std::string("\5\x12\0\3\x30\x10\0\1", 8)};
}

Bitmap BitFields16()
{
    return {.width = 2,
            .height = 1,
            .bits = 16,
            .compression = 3,
            .masks = Long(0xF800) + Long(0x07E0) + Long(0x001F),
            .pixels = Word(0xF81F) + Word(0x07E0)};
}

Bitmap BitFields32()
{
    return {.width = 2,
            .height = 1,
            .bits = 32,
            .compression = 3,
            .masks = Long(0x3FF00000) + Long(0x000FFC00) + Long(0x000003FF),
            .pixels = Long(0x3FF00000) + Long(0x000803FF)};
}

Bitmap WithAlpha()
{
    return {.width = 3,
            .height = 1,
            .bits = 32,
            .compression = 3,
            .masks = Long(0xFF0000) + Long(0xFF00) + Long(0xFF) + Long(0xFF000000),
            .pixels = Long(0xFF102030) + Long(0x80FFFFFF) + Long(0x00FFFFFF),
            .headerSize = 108};
}

std::string Os2File()
{
    const std::string colours("\xFF\0\0\0\xFF\0", 6);
    return WithFileHeader(Long(12) + Word(9) + Word(1) + Word(1) + Word(1) + colours,
                          std::string("\xA0\x80\0\0", 4));
}

std::vector<std::string> AllForms()
{
    std::vector<std::string> files;
    for (const Bitmap& bitmap :
         {OneBit(), FourBits(), EightBits(), SixteenBits(), TwentyFourBits(), ThirtyTwoBits(),
          RunLengths8(), RunLengths4(), BitFields16(), BitFields32(), WithAlpha()})
        files.push_back(FileOf(bitmap));
    files.push_back(Os2File());
    return files;
}

TEST(DecodeBitmap, OfOneBit)
{
    const Picture picture = Decoded(FileOf(OneBit()));
    EXPECT_EQ(picture.width, 10);
    EXPECT_THAT(picture.pixels, ElementsAre(kBlue, kBlue, kBlue, kBlue, kGreen, kGreen, kGreen,
                                            kGreen, kGreen, kBlue, kGreen, kBlue, kGreen, kBlue,
                                            kBlue, kBlue, kBlue, kBlue, kBlue, kGreen));
}

TEST(DecodeBitmap, OfFourAndEightBits)
{
    for (const Bitmap& bitmap : {FourBits(), EightBits()})
        EXPECT_THAT(Decoded(FileOf(bitmap)).pixels,
                    ElementsAre(kWhite, kRed, kGreen, kBlue, kGreen, kRed))
            << bitmap.bits;
}

TEST(DecodeBitmap, WithFewerColoursThanBitsCanName)
{
    Bitmap bitmap = EightBits();
    bitmap.colours = kFourColours;
    bitmap.colourCount = 4;
    bitmap.pixels[0] = '\x7F'; // a colour that there is not
    EXPECT_THAT(Decoded(FileOf(bitmap)).pixels,
                ElementsAre(kWhite, kRed, kGreen, kBlack, kGreen, kRed));
}

TEST(DecodeBitmap, OfSixteenBits)
{
    EXPECT_THAT(Decoded(FileOf(SixteenBits())).pixels, ElementsAre(kRed, kGreen, 0xFF000084));
}

TEST(DecodeBitmap, OfTwentyFourAndThirtyTwoBits)
{
    EXPECT_THAT(Decoded(FileOf(TwentyFourBits())).pixels,
                ElementsAre(0xFF090807, 0xFF0C0B0A, 0xFF030201, 0xFF060504));
    EXPECT_THAT(Decoded(FileOf(ThirtyTwoBits())).pixels, ElementsAre(0xFF112233, 0xFF445566));
}

TEST(DecodeBitmap, FromTheTop)
{
    Bitmap bitmap = EightBits();
    bitmap.height = -2;
    EXPECT_THAT(Decoded(FileOf(bitmap)).pixels,
                ElementsAre(kBlue, kGreen, kRed, kWhite, kRed, kGreen));
}

TEST(DecodeBitmap, OfOs2)
{
    EXPECT_THAT(Decoded(Os2File()).pixels,
                ElementsAre(kGreen, kBlue, kGreen, kBlue, kBlue, kBlue, kBlue, kBlue, kGreen));
    // The long header of its later versions may end after any field.
    for (const int size : {16, 64}) {
        Bitmap bitmap = TwentyFourBits();
        bitmap.headerSize = size;
        std::string header = InfoHeader(bitmap);
        header.resize(static_cast<std::size_t>(size));
        EXPECT_THAT(Decoded(WithFileHeader(header, bitmap.pixels)).pixels,
                    ElementsAre(0xFF090807, 0xFF0C0B0A, 0xFF030201, 0xFF060504));
    }
}

TEST(DecodeBitmap, OfBitFields)
{
    EXPECT_THAT(Decoded(FileOf(BitFields16())).pixels, ElementsAre(0xFFFF00FF, kGreen));
    EXPECT_THAT(Decoded(FileOf(BitFields32())).pixels, ElementsAre(kRed, 0xFF0080FF));
}

TEST(DecodeBitmap, OfBitFieldsWithAlpha)
{
    EXPECT_THAT(Decoded(FileOf(WithAlpha())).pixels, ElementsAre(0xFF102030, 0x80808080, 0));
    // Where the alpha is 0 everywhere, the writer did not know it.
    Bitmap bitmap = WithAlpha();
    for (const std::size_t at : {3U, 7U, 11U})
        bitmap.pixels[at] = '\0';
    EXPECT_THAT(Decoded(FileOf(bitmap)).pixels, ElementsAre(0xFF102030, kWhite, kWhite));
    // Without bit fields the fourth byte says nothing.
    bitmap = WithAlpha();
    bitmap.compression = 0;
    EXPECT_THAT(Decoded(FileOf(bitmap)).pixels, ElementsAre(0xFF102030, kWhite, kWhite));
}

TEST(DecodeBitmap, OfRunLengths)
{
    EXPECT_THAT(Decoded(FileOf(RunLengths8())).pixels,
                ElementsAre(kBlue, kWhite, kWhite, kBlue, kBlue, kBlue, //
                            kBlue, kBlue, kBlue, kBlue, kBlue, kBlue,   //
                            kGreen, kGreen, kGreen, kRed, kWhite, kBlue));
    EXPECT_THAT(Decoded(FileOf(RunLengths4())).pixels,
                ElementsAre(kGreen, kRed, kGreen, kRed, kGreen, kWhite, kBlue, kGreen));
}

TEST(DecodeBitmap, OfRunLengthsThatLeaveTheirPicture)
{
    Bitmap bitmap = RunLengths8();
    bitmap.pixels = std::string("\xFF\1\0\2\xFF\xFF\xFF\2\0\xC8", 10) + std::string(200, '\3') +
                    std::string("\0\0\xFF\1\0\1", 6);
    EXPECT_THAT(Decoded(FileOf(bitmap)).pixels,
                ElementsAre(kBlue, kBlue, kBlue, kBlue, kBlue, kBlue, //
                            kBlue, kBlue, kBlue, kBlue, kBlue, kBlue, //
                            kGreen, kGreen, kGreen, kGreen, kGreen, kGreen));
}

TEST(DecodeBitmap, OfRunLengthsWithoutTheirEnd)
{
    Bitmap bitmap = RunLengths8();
    bitmap.pixels = std::string("\6\1\0\0\6\1\0\0\6\1", 10);
    EXPECT_THAT(Decoded(FileOf(bitmap)).pixels, Each(kGreen));
    // Cut, and not only without the mark.
    bitmap.pixels = std::string("\6\1\0\0\6\1\0\0\5\1", 10);
    EXPECT_EQ(DecodePicture(FileOf(bitmap)).fault, PictureFault::Damaged);
}

TEST(DecodeBitmap, FindsItsPixelsWithoutTheirPlace)
{
    std::string file = FileOf(EightBits());
    file.replace(10, 4, Long(0));
    EXPECT_THAT(Decoded(file).pixels, ElementsAre(kWhite, kRed, kGreen, kBlue, kGreen, kRed));
    // A gap before the pixels is ignored.
    Bitmap gap = EightBits();
    gap.colours += "gap.";
    EXPECT_THAT(Decoded(FileOf(gap)).pixels,
                ElementsAre(kWhite, kRed, kGreen, kBlue, kGreen, kRed));
}

TEST(DecodeBitmap, RefusesWhatItCantBe)
{
    const auto fault = [](auto change) {
        Bitmap bitmap = TwentyFourBits();
        change(bitmap);
        return DecodePicture(FileOf(bitmap)).fault;
    };
    EXPECT_EQ(fault([](Bitmap&) {}), PictureFault::None);
    EXPECT_EQ(fault([](Bitmap& b) { b.width = 0; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.width = -2; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.height = 0; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.bits = 7; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.compression = 3; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.compression = 4; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.compression = 1; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.headerSize = 7; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.headerSize = 9999; }), PictureFault::Damaged);
    EXPECT_EQ(fault([](Bitmap& b) { b.height = -2147483647 - 1; }), PictureFault::TooLarge);
    EXPECT_EQ(fault([](Bitmap& b) { b.width = 65536; }), PictureFault::TooLarge);
    EXPECT_EQ(fault([](Bitmap& b) { b.height = 65536; }), PictureFault::TooLarge);
    Bitmap fields = BitFields16();
    fields.masks = Long(0xF00F) + Long(0x0F0) + Long(0); // a mask with a hole
    EXPECT_EQ(DecodePicture(FileOf(fields)).fault, PictureFault::Damaged);
    Bitmap runs = RunLengths8();
    runs.height = -3;
    EXPECT_EQ(DecodePicture(FileOf(runs)).fault, PictureFault::Damaged);
}

TEST(DecodeBitmap, GivesAReasonWhereverItIsCut)
{
    for (const std::string& file : AllForms()) {
        const std::size_t bits = static_cast<unsigned char>(file[file[14] == 12 ? 24 : 28]);
        const bool isPlain = file[14] == 12 || file[30] == 0 || file[30] == 3;
        for (std::size_t length = 0; length < file.size(); ++length) {
            const PictureResult result = DecodePicture(file.substr(0, length));
            // What fills the last row up may be missing, and the mark after the last run.
            const std::size_t filling = isPlain && bits != 32 ? 3 : isPlain ? 0 : 2;
            const bool isWhole =
                file.size() - length <= filling && result.fault == PictureFault::None;
            EXPECT_TRUE(isWhole || (result.fault != PictureFault::None && result.picture.IsEmpty()))
                << bits << " bits, " << length << " of " << file.size();
        }
    }
}

TEST(DecodeBitmap, LooksAsInAnotherProgram)
{
    // The other program takes a fourth byte for alpha, and wants every row of run lengths.
    Bitmap noAlpha = ThirtyTwoBits();
    noAlpha.pixels = Long(0xFF112233) + Long(0xFF445566);
    Bitmap rows = RunLengths8();
    rows.pixels = std::string("\3\1\0\3\2\3\0\0\0\0\6\2\0\0\2\3\4\1\0\0\0\1", 22);
    for (const Bitmap& bitmap : {OneBit(), FourBits(), EightBits(), SixteenBits(), TwentyFourBits(),
                                 noAlpha, rows, RunLengths4(), BitFields16(), BitFields32()}) {
        // It spreads five bits over eight by repeating them.
        const int tolerance = bitmap.bits == 16 || bitmap.compression == 3 ? 1 : 0;
        const std::string file = FileOf(bitmap);
        EXPECT_LE(Difference(Decoded(file), ByImageMagick(file, "bmp")), tolerance)
            << bitmap.bits << " bits, form " << bitmap.compression;
    }
    EXPECT_EQ(Difference(Decoded(Os2File()), ByImageMagick(Os2File(), "bmp")), 0);
}

TEST(DecodeBitmap, TakesNoMemoryForWhatItOnlyClaims)
{
    for (const auto& [width, height] : {std::pair{100'000, 100'000}, {5000, 4999}}) {
        Bitmap bitmap = TwentyFourBits();
        bitmap.width = width;
        bitmap.height = height;
        const Usage usage = DecodeInChild([&] { return FileOf(bitmap); });
        EXPECT_TRUE(usage.isOver);
        EXPECT_EQ(usage.fault, width == 5000 ? PictureFault::Damaged : PictureFault::TooLarge);
        if (kIsMemoryMeasured)
            EXPECT_LT(usage.peakKilobytes, 64 * 1024);
    }
}

TEST(DecodeBitmap, TakesTheMemoryOfItsLargestPicture)
{
    const Usage usage = DecodeInChild([] {
        std::string file = FileOf({.width = 5000, .height = 5000, .bits = 32});
        file.reserve(file.size() + 100'000'000);
        file.resize(file.size() + 100'000'000, '\x40');
        return file;
    });
    EXPECT_EQ(usage.fault, PictureFault::None);
    if (kIsMemoryMeasured)
        EXPECT_LT(usage.peakKilobytes, kMaxKilobytes);
}

} // namespace
} // namespace quillon::test
