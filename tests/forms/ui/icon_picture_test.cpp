// Icon files as they are shown: all their sizes beside each other.
#include "support/icon_maker.h"
#include "support/window_test.h"
#include "ui/controls/picture.h"

namespace quillon::test {
namespace {

class LoadIconPictureTest : public WindowTest {
protected:
    std::optional<QImage> Load(const std::string& bytes)
    {
        machine.files.Put("C:\\bild.ico", bytes);
        return LoadIconPicture(machine.files, "C:\\bild.ico");
    }
};

TEST_F(LoadIconPictureTest, ReadsASingleIconOfEachKind)
{
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        for (const bool isPng : {false, true}) {
            const auto icon = Load(MakeIconFile({{side, Qt::red, isPng}}));
            ASSERT_TRUE(icon) << side << isPng;
            EXPECT_EQ(icon->size(), QSize(side, side));
            EXPECT_EQ(icon->pixelColor(side / 2, side / 2), QColor(Qt::red)) << side << isPng;
        }
}

TEST_F(LoadIconPictureTest, ShowsAllSizesBesideEachOther)
{
    const auto icon = Load(MakeIconFile(
        {{16, Qt::red}, {256, Qt::blue, true}, {48, Qt::green}, {32, Qt::yellow, true}}));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->size(), QSize(256 + 8 + 48, 256));
    EXPECT_EQ(icon->pixelColor(128, 250), QColor(Qt::blue));
    EXPECT_EQ(icon->pixelColor(264, 40), QColor(Qt::green));
    EXPECT_EQ(icon->pixelColor(264, 56), QColor(Qt::yellow));
    EXPECT_EQ(icon->pixelColor(264, 96), QColor(Qt::red));
    EXPECT_EQ(icon->pixelColor(260, 10).alpha(), 0);
}

TEST_F(LoadIconPictureTest, ShowsEachSizeInItsBestColours)
{
    const auto icon = Load(
        MakeIconFile({{32, Qt::red, true, 8}, {32, Qt::green, true, 32}, {32, Qt::blue, true, 4}}));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->size(), QSize(32, 32));
    EXPECT_EQ(icon->pixelColor(5, 5), QColor(Qt::green));
}

TEST_F(LoadIconPictureTest, ShowsTheSizesThatAreWhole)
{
    std::string bytes = MakeIconFile({{16, Qt::red}, {32, Qt::blue}});
    bytes.resize(bytes.size() - 4000);
    const auto icon = Load(bytes);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(LoadIconPictureTest, SurvivesACutFile)
{
    for (const bool isPng : {false, true}) {
        const std::string whole = MakeIconFile({{32, Qt::red, isPng}, {16, Qt::blue, isPng}});
        const std::size_t header = 6 + 2 * 16;
        for (std::size_t length = 0; length < whole.size(); length += length < header ? 5 : 331)
            if (const auto icon = Load(whole.substr(0, length))) {
                EXPECT_GT(length, header);
            }
    }
}

TEST_F(LoadIconPictureTest, GivesNothingForWhatIsNoIcon)
{
    EXPECT_FALSE(Load(""));
    EXPECT_FALSE(Load("text"));
    EXPECT_FALSE(Load(MakeIconFile({})));
    EXPECT_FALSE(LoadIconPicture(machine.files, "C:\\finns\\inte.ico"));
    EXPECT_FALSE(LoadIconPicture(machine.files, ""));
}

TEST_F(LoadIconPictureTest, ShowsAnotherPictureUnderAnIconsName)
{
    const auto picture = Load(icon_file::PngPart({20, Qt::red, true}));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), QSize(20, 20));
}

} // namespace
} // namespace quillon::test
