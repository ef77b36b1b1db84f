// Pictures from users, good and bad.
#include "ui/controls/picture.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

std::string Encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes.toStdString();
}

QImage Striped()
{
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int x = 0; x < image.width(); ++x)
        image.setPixelColor(x, 3, Qt::yellow);
    return image;
}

class LoadPictureTest : public WindowTest {
protected:
    std::optional<QImage> Load() { return LoadPicture(machine.files, "C:\\bild"); }
};

TEST_F(LoadPictureTest, ReadsTheUsualKinds)
{
    for (const char* format : {"bmp", "png", "jpg"}) {
        machine.files.Put("C:\\bild", Encoded(Striped(), format));
        const auto image = Load();
        ASSERT_TRUE(image) << format;
        EXPECT_EQ(image->size(), QSize(20, 10)) << format;
        EXPECT_GT(image->pixelColor(5, 3).red(), 200) << format;
        EXPECT_LT(image->pixelColor(5, 8).red(), 60) << format;
    }
}

TEST_F(LoadPictureTest, GivesNothingForWhatIsNoPicture)
{
    EXPECT_FALSE(LoadPicture(machine.files, ""));
    EXPECT_FALSE(LoadPicture(machine.files, "C:\\finns\\inte.bmp"));
    machine.files.PutFolder("C:\\mapp");
    EXPECT_FALSE(LoadPicture(machine.files, "C:\\mapp"));
    for (const std::string& bytes :
         {std::string(), std::string("BM"), std::string("text"), std::string(4000, '\0'),
          std::string("\xD7\xCD\xC6\x9A wmf"), std::string("<svg width='9' height='9'/>")}) {
        machine.files.Put("C:\\bild", bytes);
        EXPECT_FALSE(Load()) << bytes.substr(0, 10);
    }
    machine.files.At("C:\\bild").unreadable = true;
    EXPECT_FALSE(Load());
}

TEST_F(LoadPictureTest, SurvivesACutFile)
{
    for (const char* format : {"bmp", "png", "jpg"}) {
        const std::string whole = Encoded(Striped(), format);
        // Some readers report each cut file on stderr, so these are few.
        const std::size_t step = format == std::string("bmp") ? 1 : 97;
        for (std::size_t length = 0; length < whole.size(); length += step) {
            machine.files.Put("C:\\bild", whole.substr(0, length));
            // A cut JPEG may still show its upper part; nothing else is asked of it.
            if (const auto image = Load())
                EXPECT_EQ(image->size(), QSize(20, 10)) << format << " " << length;
        }
    }
}

TEST_F(LoadPictureTest, GivesNothingForAPictureThatIsTooLarge)
{
    // A bitmap whose header promises more pixels than any screen has.
    std::string bytes = Encoded(Striped(), "bmp");
    for (const int place : {18, 22})
        bytes.replace(static_cast<std::size_t>(place), 4, std::string("\xFF\xFF\x00\x00", 4));
    machine.files.Put("C:\\bild", bytes);
    EXPECT_FALSE(Load());
}

TEST_F(LoadPictureTest, TakesACutBitmapForADamagedOne)
{
    // Rows of 60, 10 and 3 bytes; what fills the last one up to whole words may be missing.
    for (const auto& [form, padding] :
         {std::pair{QImage::Format_RGB32, 0U}, std::pair{QImage::Format_Indexed8, 2U},
          std::pair{QImage::Format_Mono, 1U}}) {
        const std::string whole = Encoded(Striped().convertToFormat(form), "bmp");
        machine.files.Put("C:\\bild", whole);
        EXPECT_TRUE(Load()) << form;
        machine.files.Put("C:\\bild", whole.substr(0, whole.size() - padding));
        EXPECT_TRUE(Load()) << form;
        machine.files.Put("C:\\bild", whole.substr(0, whole.size() - padding - 1));
        EXPECT_FALSE(Load()) << form;
        EXPECT_EQ(WhyNoPicture(machine.files, "C:\\bild"),
                  "Bilden kan inte visas: den är skadad eller för stor");
        machine.files.Put("C:\\bild", whole.substr(0, whole.size() / 2));
        EXPECT_FALSE(Load()) << form;
    }
}

// Run lengths may leave points out, at the end of the file too: they have the first colour, and not
// what another picture has left in memory.
TEST_F(LoadPictureTest, ShowsPointsThatABitmapLeavesOutInTheFirstColour)
{
    const QImage indexed = Striped().convertToFormat(QImage::Format_Indexed8);
    const QList<QRgb> colours = indexed.colorTable();
    std::string bytes = Encoded(indexed, "bmp");
    bytes[30] = 2; // run lengths, two points a byte
    bytes.resize(static_cast<unsigned char>(bytes[10]));
    bytes += std::string("\x05\x11\x00\x01", 4);
    machine.files.Put("C:\\bild", bytes);
    for (int run = 0; run < 3; ++run) {
        const auto image = Load();
        ASSERT_TRUE(image);
        for (int y = 0; y < image->height(); ++y)
            for (int x = 0; x < image->width(); ++x)
                EXPECT_EQ(image->pixel(x, y), colours[y == 9 && x < 5 ? 1 : 0]) << x << ' ' << y;
    }
}

} // namespace
} // namespace quillon::test
