// The files of a design, read out of a package, and the screen that is painted of them.
#include "platform/run_error.h"
#include "runtime/pages/design_screen.h"
#include "runtime/pages/standard_picture.h"
#include "runtime/support/memory_target.h"
#include "support/memory_host.h"

#include <gtest/gtest.h>

#include <set>

namespace quillon::test {

namespace {

/// A bitmap of 24 bits in one colour, 0xRRGGBB.
std::string Bitmap(int width, int height, std::uint32_t colour)
{
    const auto number = [](std::uint32_t value, int bytes) {
        std::string text;
        for (int i = 0; i < bytes; ++i)
            text += static_cast<char>(value >> (8 * i) & 0xFF);
        return text;
    };
    std::string rows;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            rows += number(colour, 3);
        rows.append(rows.size() % 4 == 0 ? 0 : 4 - rows.size() % 4, '\0');
    }
    return "BM" + number(54 + std::uint32_t(rows.size()), 4) + number(0, 4) + number(54, 4) +
           number(40, 4) + number(std::uint32_t(width), 4) + number(std::uint32_t(height), 4) +
           number(1, 2) + number(24, 2) + std::string(24, '\0') + rows;
}

class NamedEntries : public Container {
public:
    explicit NamedEntries(std::vector<std::pair<Text, std::string>> files)
        : files_(std::move(files))
    {
        for (const auto& [name, bytes] : files_) {
            ZipEntry entry;
            entry.name = name;
            entry.size = bytes.size();
            entry.headerPosition = entries_.size();
            entries_.push_back(entry);
        }
    }
    const std::vector<ZipEntry>& Entries() const override { return entries_; }
    void Extract(const ZipEntry& entry, const Text&, const ZipReader::Sink& sink) override
    {
        const std::string& bytes = files_[entry.headerPosition].second;
        if (bytes == "damaged")
            throw ZipError(ZipError::Kind::Damaged, entry.name);
        sink(std::as_bytes(std::span(bytes)));
    }

private:
    std::vector<std::pair<Text, std::string>> files_;
    std::vector<ZipEntry> entries_;
};

struct NoLetters : Letters {
    FontHeight Height(const ScreenFont&) override { return {8, 2}; }
    std::vector<int> Advances(const ScreenFont&, const Text& line) override
    {
        return std::vector<int>(CharacterCount(line), 5);
    }
    LetterMask Draw(const ScreenFont&, const Text&, const std::vector<int>&) override { return {}; }
};

/// Keeps the lines that are drawn.
struct KeptLines : NoLetters {
    LetterMask Draw(const ScreenFont&, const Text& line, const std::vector<int>&) override
    {
        lines.push_back(line);
        return {};
    }
    std::vector<Text> lines;
};

class DesignTest : public testing::Test {
protected:
    DesignTest()
    {
        setup.DesWidth = 100;
        setup.DesHeight = 100;
        setup.project.DesTitle.TitleText = "";
        setup.project.DesBackground.BackColor1 = 0;
        setup.project.DesBackground.BackColor2 = 0;
        setup.project.DesBackground.BlendDirection = 0;
    }
    DesignFiles Files()
    {
        memory.files.nodes.clear();
        if (hasArchive)
            memory.files.Put("D:\\Paket\\DESOBJ.DAT", "packed");
        return DesignFiles(
            memory.files,
            [this](std::unique_ptr<InputFile> archive) -> std::unique_ptr<Container> {
                EXPECT_EQ(archive->Size(), 6U);
                return std::make_unique<NamedEntries>(packed);
            },
            "D:\\Paket", DesignFiles::Names::InPackage);
    }
    /// A point of the screen in a size of 200 x 200, as 0xRRGGBB.
    std::uint32_t PointOf(const DesignScreen& screen, int x, int y, bool isPageShown = false)
    {
        std::vector<Pixel> pixels(200U * 200U);
        NoLetters letters;
        screen.Paint(WholeCanvas(pixels.data(), 200, 200), letters, isPageShown);
        return pixels[std::size_t(y) * 200 + std::size_t(x)] & 0xFFFFFF;
    }
    /// Each line once, though a title may be drawn with its shadow.
    std::set<Text> LinesOf(const DesignScreen& screen)
    {
        std::vector<Pixel> pixels(200U * 200U);
        KeptLines letters;
        screen.Paint(WholeCanvas(pixels.data(), 200, 200), letters, false);
        return {letters.lines.begin(), letters.lines.end()};
    }
    std::unique_ptr<DesignScreen> Screen(const DesignFiles& files)
    {
        return std::make_unique<DesignScreen>(setup, SetupVariables{}, files, 200, 200);
    }

    MemoryHost memory;
    SetupInformation setup;
    bool hasArchive = true;
    std::vector<std::pair<Text, std::string>> packed = {{"röd.bmp", Bitmap(4, 4, 0xFF0000)},
                                                        {"grön.bmp", Bitmap(4, 4, 0x00FF00)},
                                                        {"trasig.bmp", "damaged"}};
};

TEST_F(DesignTest, FilesAreFoundByTheirNames)
{
    const DesignFiles files = Files();
    EXPECT_TRUE(files.Files().FileExists("RÖD.BMP"));
    EXPECT_FALSE(files.Files().FileExists("blå.bmp"));
    EXPECT_EQ(files.Files().Status("c:\\bilder\\röd.bmp").size, packed[0].second.size());
    EXPECT_EQ(RunErrorNumber([&] { files.Files().OpenInput("blå.bmp"); }),
              ErrorNumber::kFileNotFound);
    EXPECT_EQ(RunErrorNumber([&] { files.Files().OpenInput("trasig.bmp"); }),
              ErrorNumber::kDeviceIo);
}

TEST_F(DesignTest, ASidePictureThatCanNotBeShownGivesWayToTheStandardOne)
{
    const DesignFiles files = Files();
    EXPECT_EQ(files.SidePicture("röd.bmp").Width(), 4);
    const int standard = StandardSidePicture().width;
    for (const char* name : {"", "blå.bmp", "trasig.bmp"})
        EXPECT_EQ(files.SidePicture(name).Width(), standard) << name;
    hasArchive = false;
    EXPECT_EQ(Files().SidePicture("röd.bmp").Width(), standard);
}

TEST_F(DesignTest, FreePicturesStandBackWhileAPageIsShown)
{
    auto& pictures = setup.project.DesPictures;
    pictures.Pictures[0].PictureFilename = "röd.bmp";
    pictures.Pictures[0].StretchPicture = kOn;
    pictures.Pictures[0].PictureWidth = 50;
    pictures.Pictures[0].PictureHeight = 50;
    pictures.Pictures[0].PictureXPos = pictures.Pictures[0].PictureYPos = Integer(80);
    pictures.HidePicturesWhenDialogsShowed = 1;
    const DesignFiles files = Files();
    const auto screen = Screen(files);
    EXPECT_EQ(PointOf(*screen, 30, 30), 0xFF0000U);
    EXPECT_EQ(PointOf(*screen, 30, 30, true), 0U);
    setup.project.DesPictures.HidePicturesWhenDialogsShowed = 0;
    EXPECT_EQ(PointOf(*Screen(files), 30, 30, true), 0xFF0000U);
}

TEST_F(DesignTest, PicturesChangeByTheirInterval)
{
    auto& changing = setup.project.DesPicturesAnim;
    changing.NrAnimPictures = 3;
    changing.P[0] = "röd.bmp";
    changing.P[1] = "trasig.bmp";
    changing.P[2] = "grön.bmp";
    changing.StretchPicture = kOn;
    changing.PictureWidth = changing.PictureHeight = 40;
    changing.PictureXPos = changing.PictureYPos = 80;
    changing.IntervalSeconds = 7;
    const DesignFiles files = Files();
    const auto screen = Screen(files);
    EXPECT_EQ(screen->Interval(), 7000);
    EXPECT_EQ(PointOf(*screen, 30, 30), 0xFF0000U);
    const PixelRect part = screen->ShowNext();
    EXPECT_EQ(part.Width(), 80);
    EXPECT_EQ(PointOf(*screen, 30, 30), 0x00FF00U) << "one that can't be shown is passed over";
    screen->ShowNext();
    EXPECT_EQ(PointOf(*screen, 30, 30), 0xFF0000U);
    changing.NrAnimPictures = 1;
    EXPECT_EQ(Screen(files)->Interval(), 0);
}

TEST_F(DesignTest, TextsFollowWhatTheVariablesStandFor)
{
    setup.project.DesTitle.TitleText = "%USERNAME";
    setup.project.DesSubTitle.SubTitleText = "%DESTDIR";
    setup.project.DesTextBox.ShowTextBox = kOn;
    setup.project.DesTextBox.BoxTitle = "%USERCOMPANY";
    setup.project.DesTextBox.BoxText = "Ordagrant";
    const DesignFiles files = Files();
    SetupVariables variables;
    variables.Set("%USERNAME", "Ada");
    variables.Set("%USERCOMPANY", "Bolag");
    variables.Set("%DESTDIR", "C:\\A");
    DesignScreen screen(setup, variables, files, 200, 200);
    EXPECT_EQ(LinesOf(screen), (std::set<Text>{"Ada", "Bolag", "C:\\A", "Ordagrant"}));
    EXPECT_FALSE(screen.SetVariables(variables)) << "nothing has to be painted anew";
    variables.Set("%USERNAME", "Ulla");
    variables.Set("%DESTDIR", "D:\\B");
    EXPECT_TRUE(screen.SetVariables(variables));
    EXPECT_EQ(LinesOf(screen), (std::set<Text>{"Ulla", "Bolag", "D:\\B", "Ordagrant"}));
}

TEST_F(DesignTest, TextsStayAsTheyAreWhereTheProjectExpandsNone)
{
    setup.project.DesTitle.TitleText = "%USERNAME";
    setup.project.InstallOptions.ExpandVariablesInDialogBoxes = "0";
    const DesignFiles files = Files();
    SetupVariables variables;
    variables.Set("%USERNAME", "Ada");
    DesignScreen screen(setup, variables, files, 200, 200);
    EXPECT_FALSE(screen.SetVariables(variables));
    EXPECT_EQ(LinesOf(screen), std::set<Text>{"%USERNAME"});
}

} // namespace

} // namespace quillon::test
