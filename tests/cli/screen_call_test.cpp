// quillonc screen as a whole program.
#include "workshop.h"

#include <cstdio>
#include <png.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Png {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes; // red, green, blue

    std::string At(int x, int y) const
    {
        char text[8];
        const std::uint8_t* at = bytes.data() + std::ptrdiff_t{3} * (y * width + x);
        std::snprintf(text, sizeof text, "%02X%02X%02X", at[0], at[1], at[2]);
        return text;
    }
};

class ScreenCall : public Workshop {
protected:
    /// From red down to blue, without any text.
    Project Made() const
    {
        Project made = MakeProject({});
        made.DesBackground.BackColor1 = 0x0000FF;
        made.DesBackground.BackColor2 = 0xFF0000;
        made.DesTitle.TitleText = "";
        return made;
    }

    ProgramRun Screen(const Project& made, std::vector<std::string> more = {}) const
    {
        const std::string project = Save(made);
        more.insert(more.begin(), {"screen", project, "--to", disk.Path("out/a.png")});
        return Quillonc(more);
    }
    Png Painted(const Project& made, std::vector<std::string> more = {}) const
    {
        const ProgramRun run = Screen(made, std::move(more));
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(run.err, "");
        return Read("out/a.png");
    }
    Png Read(const std::string& name) const
    {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        EXPECT_TRUE(png_image_begin_read_from_file(&image, disk.Path(name).c_str()));
        EXPECT_EQ(image.format & PNG_FORMAT_FLAG_ALPHA, 0U);
        image.format = PNG_FORMAT_RGB;
        Png png{static_cast<int>(image.width), static_cast<int>(image.height), {}};
        png.bytes.resize(PNG_IMAGE_SIZE(image));
        EXPECT_TRUE(png_image_finish_read(&image, nullptr, png.bytes.data(), 0, nullptr));
        return png;
    }
    void ExpectRefused(const ProgramRun& run, int exitCode, const std::string& err) const
    {
        EXPECT_EQ(run.exitCode, exitCode);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(err));
        EXPECT_THAT(Names("out"), ElementsAre());
    }
};

TEST_F(ScreenCall, PaintsTheWholeScreen)
{
    const Png png = Painted(Made(), {"--size", "40x30"});
    EXPECT_EQ(png.width, 40);
    EXPECT_EQ(png.height, 30);
    EXPECT_EQ(png.At(0, 0), "FF0000");
    EXPECT_EQ(png.At(39, 29), "0000FF");
    EXPECT_THAT(Names("out"), ElementsAre("a.png"));
}

TEST_F(ScreenCall, TellsWhatItHasWritten)
{
    const ProgramRun run = Screen(Made());
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, testing::MatchesRegex(R"(Bild: Z:\\.*\\out\\a.png
)"));
    EXPECT_EQ(Read("out/a.png").width, 1024);
    EXPECT_EQ(Read("out/a.png").height, 768);
    const Json told = ObjectOf(Screen(Made(), {"--json", "--size", "64X48"}));
    EXPECT_EQ(told["width"], 64);
    EXPECT_EQ(told["height"], 48);
    EXPECT_EQ(told["exitCode"], 0);
    EXPECT_THAT(told["picture"].get<std::string>(), testing::EndsWith("\\out\\a.png"));
}

TEST_F(ScreenCall, NeedsNoDisplayAndPaintsLetters)
{
    Project made = Made();
    made.DesBackground.BlendDirection = 0;
    made.DesTitle.TitleText = "Räknaren";
    made.DesTitle.TitleForeColor = 0xFFFFFF;
    made.DesTitle.TitleShadow = kOff;
    environment["DISPLAY"] = "";
    environment["QT_QPA_PLATFORM"] = "none";
    const Png png = Painted(made);
    int letters = 0;
    for (int y = 0; y < png.height; ++y)
        for (int x = 0; x < png.width; ++x)
            if (png.At(x, y) == "FFFFFF") {
                ++letters;
                EXPECT_TRUE(x >= 25 && x < 500 && y < 100) << x << "," << y;
            }
    EXPECT_GT(letters, 500);
}

TEST_F(ScreenCall, ScalesFromTheSurfaceOnWhichTheDesignWasMade)
{
    Project made = Made();
    made.DesBackground.BlendDirection = 0;
    made.DesTextBox.ShowTextBox = kOn;
    made.DesTextBox.BoxTitle = made.DesTextBox.BoxText = "";
    made.DesTextBox.BoxBackColor = 0x00FF00;
    made.DesTextBox.BoxXPos = 80 + 1500; // 100 pixels from the surface's edge
    made.DesTextBox.BoxYPos = 80 + 1500;
    made.DesTextBox.BoxWidth = 100;
    made.DesTextBox.BoxHeight = 101;
    const Png half = Painted(made, {"--size", "640x480", "--surface", "1280x960"});
    EXPECT_EQ(half.At(49, 49), "FF0000");
    EXPECT_EQ(half.At(50, 50), "00FF00");
    EXPECT_EQ(half.At(99, 99), "00FF00");
    EXPECT_EQ(half.At(100, 100), "FF0000");
    const Png usual = Painted(made, {"--size", "640x480"});
    EXPECT_EQ(usual.At(99, 99), "FF0000");
    EXPECT_EQ(usual.At(100, 100), "00FF00");
}

TEST_F(ScreenCall, RefusesSizesThatAreNone)
{
    for (const char* size :
         {"", "x", "1024", "1024x", "x768", "0x768", "1024x0", "-1x768", "1024x768x2", "1024 x 768",
          "8193x10", "10x8193", "1e3x10", "99999999999x10", "+5x5"})
        for (const char* option : {"--size", "--surface"})
            ExpectRefused(Screen(Made(), {option, size}), 2,
                          std::string("Växeln ") + option + " kan ej vara '" + size +
                              "'; en storlek är bredd och höjd från 1 till 8192 bildpunkter");
}

TEST_F(ScreenCall, TakesTheSmallestAndTheWidestScreen)
{
    EXPECT_EQ(Painted(Made(), {"--size", "1x1"}).At(0, 0).size(), 6U);
    EXPECT_EQ(Painted(Made(), {"--size", "8192x1"}).width, 8192);
}

TEST_F(ScreenCall, DemandsAPlaceForThePicture)
{
    const std::string project = Save(Made());
    ExpectRefused(Quillonc({"screen", project}), 2, "Kommandot screen saknar växeln --to.");
    ExpectRefused(Quillonc({"screen", project, "--to", ""}), 2, "En sökväg är tom.");
    const ProgramRun run = Quillonc({"screen", project, "--to", disk.Path("gone/a.png")});
    ExpectRefused(run, 1, "Katalogen till ");
}

TEST_F(ScreenCall, RefusesProjectsThatItCannotRead)
{
    const auto screen = [&](const std::string& name) {
        return Quillonc({"screen", disk.Path(name), "--to", disk.Path("out/a.png")});
    };
    ExpectRefused(screen("gone.qnp"), 3, "gone.qnp' finns inte.");
    disk.Put("no.qnp", "text");
    ExpectRefused(screen("no.qnp"), 3, "no.qnp' är inget projekt.");
    Save(Made());
    const std::string whole = disk.Get("p.qnp");
    disk.Put("part.qnp", whole.substr(0, whole.find("[Registry]")));
    ExpectRefused(screen("part.qnp"), 3, " Ingen bild skapas.");
}

TEST_F(ScreenCall, TellsEveryFileThatCannotBeShown)
{
    disk.Put("src/bad.bmp", "no picture");
    disk.Put("tool/RTF/bad.rtf", "no text");
    Project made = Made();
    made.DesBackground.Type = 2;
    made.DesBackground.PictureFilename = "S:\\gone.bmp";
    made.DesPictures.Pictures[1].PictureFilename = "S:\\bad.bmp";
    made.DesRTFbox.ShowRTFbox = kOn;
    made.DesRTFbox.RTFfilename = "bad.rtf";
    const ProgramRun run = Screen(made, {"--json"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(Names("out"), ElementsAre());
    EXPECT_THAT(run.err, HasSubstr("Filen 'S:\\gone.bmp' finns inte.\n"
                                   "Filen 'S:\\bad.bmp' är ingen bild i BMP, JPEG eller WMF.\n"));
    EXPECT_THAT(run.err, HasSubstr("\\RTF\\bad.rtf' är ingen RTF-fil.\n"));
    EXPECT_THAT(run.err, HasSubstr(ObjectOf(run)["error"].get<std::string>()));
}

TEST_F(ScreenCall, LeavesOutWhatIsNotShown)
{
    Project made = Made();
    made.DesBackground.PictureFilename = "S:\\gone.bmp"; // the colours are shown
    made.DesRTFbox.RTFfilename = "gone.rtf";
    EXPECT_EQ(Painted(made, {"--size", "4x3"}).At(0, 0), "FF0000");
}

TEST_F(ScreenCall, LeavesTheOldPictureWhereItFails)
{
    disk.Put("out/a.png", "the old one");
    Project made = Made();
    made.DesLogotype.LogotypeFilename = "S:\\gone.bmp";
    EXPECT_EQ(Screen(made).exitCode, 3);
    EXPECT_EQ(disk.Get("out/a.png"), "the old one");
}

} // namespace
} // namespace quillon::test
