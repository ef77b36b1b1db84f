// What the author sees is what the end user gets: the screen behind the setup, painted by the tool
// and by a Windows program with the setup's code.
#include "wine/package.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <png.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using Fields = std::vector<std::string>;

// A design of 640 x 480 points is painted larger, and in another shape.
constexpr int kWidth = 1000;
constexpr int kHeight = 700;

struct Rect {
    int left;
    int top;
    int right;
    int bottom;

    bool Holds(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
};

/// Pixels of a painted screen, 0xRRGGBB.
using Screen = std::vector<std::uint32_t>;

Screen ReadPng(const fs::path& path)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_TRUE(png_image_begin_read_from_file(&image, path.c_str())) << image.message;
    image.format = PNG_FORMAT_RGB;
    std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
    EXPECT_TRUE(png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr));
    Screen screen;
    for (std::size_t i = 0; i + 2 < bytes.size(); i += 3)
        screen.push_back(std::uint32_t{bytes[i]} << 16 | std::uint32_t{bytes[i + 1]} << 8 |
                         bytes[i + 2]);
    return screen;
}

Screen ReadPixels(const fs::path& path)
{
    const std::string bytes = ReadBytes(path);
    Screen screen(bytes.size() / 4);
    for (std::size_t i = 0; i < screen.size(); ++i)
        for (std::size_t channel = 0; channel < 3; ++channel)
            screen[i] |= std::uint32_t{static_cast<unsigned char>(bytes[4 * i + channel])}
                         << (8 * channel);
    return screen;
}

std::string LittleEndian(std::uint32_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(number >> (8 * i) & 0xFF);
    return text;
}

/// A bitmap file of 24 bits in many colours, black round a circle.
std::string Bitmap(int width, int height)
{
    std::string rows;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double across = (2.0 * x - width) / width;
            const double down = (2.0 * y - height) / height;
            const bool isInside = across * across + down * down < 1;
            for (const int part : {x * 255 / width, y * 255 / height, 255 - x * 128 / width})
                rows += static_cast<char>(isInside ? part : 0);
        }
        rows.append(rows.size() % 4 == 0 ? 0 : 4 - rows.size() % 4, '\0');
    }
    const auto size = static_cast<std::uint32_t>(rows.size());
    return "BM" + LittleEndian(54 + size, 4) + LittleEndian(0, 4) + LittleEndian(54, 4) +
           LittleEndian(40, 4) + LittleEndian(static_cast<std::uint32_t>(width), 4) +
           LittleEndian(static_cast<std::uint32_t>(height), 4) + LittleEndian(1, 2) +
           LittleEndian(24, 2) + LittleEndian(0, 4) + LittleEndian(size, 4) + LittleEndian(0, 16) +
           rows;
}

class PaintedScreen : public testing::Test {
protected:
    PaintedScreen()
    {
        fs::create_directories(folder / "tool" / "RTF");
        fs::create_directories(folder / "tool" / "Res");
        fs::copy_file(fs::path(QUILLON_BUILD_FOLDER) / "quillon" / "quillonc",
                      folder / "tool" / "quillonc", fs::copy_options::overwrite_existing);
        fs::copy_file(TestProgramFolder() / "paint_screen.exe", folder / "paint_screen.exe",
                      fs::copy_options::overwrite_existing);
        WriteBytes(prefix.DriveC() / "sun.bmp", Bitmap(90, 60));
        WriteBytes(prefix.DriveC() / "large.bmp", Bitmap(301, 203));
        WriteBytes(folder / "tool" / "RTF" / "box.rtf",
                   R"({\rtf1\ansi{\fonttbl{\f0 DejaVu Serif;}}\f0\fs24 Första raden\par\b andra})");
        fs::remove(folder / "p.qnp");
        Quillonc({"new", Project(), "--name", "Prov", "--destination", "%PROGRAMFILES\\Prov"});
        Set({"DesTitle.TitleText=", "DesTitle.TitleFontName=DejaVu Serif",
             "DesTitle.TitleFontItalic=0", "DesTextBox.BoxTitle=", "DesTextBox.BoxText=",
             "DesTextBox.BoxTitleFontName=DejaVu Sans", "DesTextBox.BoxTextFontName=DejaVu Serif"});
    }

    std::string Project() const { return folder / "p.qnp"; }
    /// Drive C: is the same one for both.
    static std::string Named(const std::string& picture) { return "C:\\" + picture; }

    void Quillonc(std::vector<std::string> words) const
    {
        words.insert(words.begin(), folder / "tool" / "quillonc");
        const ProgramResult run = RunProgram(words, {{"QUILLON_DRIVE_C", prefix.DriveC()}});
        EXPECT_EQ(run.exitCode, 0) << run.output;
    }
    void Set(Fields fields) const
    {
        fields.insert(fields.begin(), {"set", Project()});
        Quillonc(fields);
    }

    Screen ByTheTool() const
    {
        Quillonc({"screen", Project(), "--to", folder / "screen.png", "--size",
                  std::to_string(kWidth) + "x" + std::to_string(kHeight)});
        return ReadPng(folder / "screen.png");
    }
    Screen ByWindows() const
    {
        fs::remove(folder / "pixels");
        EXPECT_EQ(prefix.Run(OnZ(folder / "paint_screen.exe"),
                             "\"" + OnZ(Project()) + "\" \"" + OnZ(folder / "tool") + "\" " +
                                 std::to_string(kWidth) + " " + std::to_string(kHeight) + " \"" +
                                 OnZ(folder / "pixels") + "\""),
                  0U);
        return ReadPixels(folder / "pixels");
    }

    /// How many pixels of the rectangle differ.
    static int Differences(const Screen& a, const Screen& b,
                           const std::function<bool(int, int)>& in)
    {
        int count = 0;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                count += At(a, x, y) != At(b, x, y) && in(x, y) ? 1 : 0;
        return count;
    }
    /// What encloses them, inside `area`.
    static Rect Enclosing(const Screen& a, const Screen& b, const Rect& area)
    {
        Rect found{kWidth, kHeight, 0, 0};
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (At(a, x, y) != At(b, x, y))
                    found = {std::min(found.left, x), std::min(found.top, y),
                             std::max(found.right, x + 1), std::max(found.bottom, y + 1)};
        return found;
    }
    static std::uint32_t At(const Screen& screen, int x, int y)
    {
        return screen[static_cast<std::size_t>(y * kWidth + x)];
    }

    void ExpectTheSamePixels() const
    {
        const Screen tool = ByTheTool();
        const Screen windows = ByWindows();
        ASSERT_EQ(tool.size(), static_cast<std::size_t>(kWidth * kHeight));
        ASSERT_EQ(windows.size(), tool.size());
        EXPECT_EQ(Differences(tool, windows, [](int, int) { return true; }), 0);
        // Whatever was set is seen.
        const std::uint32_t first = At(tool, 0, 0);
        EXPECT_GT(std::ranges::count_if(tool, [&](auto pixel) { return pixel != first; }), 10'000);
    }

    const fs::path folder = WorkFolder() / "skärmen";
    const WinePrefix prefix;
};

TEST_F(PaintedScreen, IsTheSameWithBlendPicturesAndBoxes)
{
    Set({"DesBackground.BackColor1=#FFD040",
         "DesBackground.BackColor2=#102080",
         "DesBackground.BlendDirection=5",
         "DesBackground.BlendDepth=60",
         "DesTitleUnderline.UnderlineType=2",
         "DesTitleUnderline.UnderlineHeight=12",
         "DesTitleUnderline.UnderlineColor1=#FFFFFF",
         "DesTitleUnderline.UnderlineTextOnly=0",
         "DesPictures.PictureFilename1=" + Named("sun.bmp"),
         "DesPictures.PictureFilename2=" + Named("sun.bmp"),
         "DesPictures.UseTransparentBkg2=1",
         "DesPictures.PictureXPos2=150",
         "DesPictures.PictureYPos2=150",
         "DesPictures.PictureFilename3=" + Named("large.bmp"),
         "DesPictures.StretchPicture3=1",
         "DesPictures.PictureWidth3=133",
         "DesPictures.PictureHeight3=77",
         "DesPictures.PictureXPos3=420",
         "DesPictures.PictureYPos3=200",
         "DesLogotype.LogotypeFilename=" + Named("sun.bmp"),
         "DesLogotype.UseTransparentBkg=1",
         "DesTextBox.ShowTextBox=1",
         "DesTextBox.BoxBackColor=#336699",
         "DesTextBox.BoxPlaceBelowTitle=1",
         "DesTextBox.BoxCenter=1"});
    Set({"DesPicturesAnim.NrAnimPictures=1"});
    Set({"DesPicturesAnim.P1=" + Named("large.bmp"), "DesPicturesAnim.PictureXPos=40",
         "DesPicturesAnim.PictureYPos=330"});
    ExpectTheSamePixels();
}

TEST_F(PaintedScreen, IsTheSameInEveryDirectionOfTheBlend)
{
    Set({"DesBackground.BackColor1=#00FF80", "DesBackground.BackColor2=#400080"});
    for (const char* direction : {"1", "2", "3", "4"}) {
        Set({std::string("DesBackground.BlendDirection=") + direction});
        ExpectTheSamePixels();
    }
}

TEST_F(PaintedScreen, IsTheSameOnAPicture)
{
    Set({"DesBackground.Type=2", "DesBackground.PictureFilename=" + Named("large.bmp"),
         "DesTitleUnderline.UnderlineType=3", "DesTitleUnderline.UnderlineColor2=#FF0000",
         "DesTitleUnderline.UnderlineTextOnly=0"});
    ExpectTheSamePixels();
    Set({"DesBackground.StretchPicture=0", "DesTitleUnderline.UnderlineType=1"});
    ExpectTheSamePixels();
}

TEST_F(PaintedScreen, HasItsLettersAtTheSamePlaces)
{
    Set({"DesBackground.BackColor1=#FFFFFF", "DesBackground.BlendDirection=0",
         "DesTextBox.ShowTextBox=1", "DesTextBox.BoxWidth=260", "DesTextBox.BoxXPos=40",
         "DesTextBox.BoxYPos=180", "DesRTFbox.ShowRTFbox=1", "DesRTFbox.RTFfilename=none.rtf",
         "DesRTFbox.RTFboxXPos=360", "DesRTFbox.RTFboxYPos=180"});
    WriteBytes(folder / "tool" / "RTF" / "none.rtf", R"({\rtf1 })");
    const Screen bare = ByTheTool();
    Set({"DesTitle.TitleText=Räknaren för alla", "DesTitle.TitleForeColor=#C00000",
         "DesTitle.TitleCharInterSpace=4", "DesSubTitle.SubTitleText=Snabb, säker och svensk",
         "DesTextBox.BoxTitle=Välkommen", "DesRTFbox.RTFfilename=box.rtf",
         "DesTextBox.BoxText=En text som är\nskriven på\ntre rader."});
    const Screen tool = ByTheTool();
    const Screen windows = ByWindows();
    ASSERT_EQ(windows.size(), tool.size());

    // Of the 1000 x 700 points: the title, what is below it, and the two boxes.
    constexpr Rect kAreas[] = {
        {0, 0, kWidth, 70}, {0, 70, kWidth, 110}, {40, 240, 480, 440}, {500, 240, kWidth, 440}};
    for (const Rect& area : kAreas) {
        const Rect byTool = Enclosing(bare, tool, area);
        const Rect byWindows = Enclosing(bare, windows, area);
        EXPECT_GT(byTool.right - byTool.left, 80) << area.left << "," << area.top;
        // Letters of the same font, hinted in two ways; the Wine of 32 bits also makes small ones
        // narrower than they are designed.
        constexpr int kTolerance = 3;
        EXPECT_NEAR(byTool.left, byWindows.left, kTolerance) << area.left << "," << area.top;
        EXPECT_NEAR(byTool.top, byWindows.top, kTolerance) << area.left << "," << area.top;
        EXPECT_NEAR(byTool.bottom, byWindows.bottom, kTolerance) << area.left << "," << area.top;
        EXPECT_NEAR(byTool.right, byWindows.right, kTolerance + (byTool.right - byTool.left) / 10)
            << area.left << "," << area.top;
    }
    EXPECT_EQ(Differences(tool, windows,
                          [&](int x, int y) {
                              return std::ranges::none_of(
                                  kAreas, [&](const Rect& area) { return area.Holds(x, y); });
                          }),
              0);
}

} // namespace
} // namespace quillon::test
