// What the self-extracting program shows: its message with the bar, and a box where it ends by
// itself; nothing of it under a silent switch.
#include "wine/driven_setup.h"
#include "wine/self_extracting_program.h"
#include "wine/virtual_display.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <sstream>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::Not;

constexpr const char* kMessage = "Förbereder installationen. Vänta...";
constexpr std::size_t kMiB = 1024 * 1024;

/// Enough to be unpacked that the window can be met: bytes that do not shrink, and then the same
/// ones again and again.
SampleProduct LargeProduct()
{
    std::mt19937 random(1);
    std::string once(16 * kMiB, '\0');
    for (char& byte : once)
        byte = static_cast<char>(random());
    std::string large;
    for (int i = 0; i < 10; ++i)
        large += once;
    SampleProduct product;
    product.Add("Stort", "Mycket stor fil.bin", large);
    return product;
}

std::string Quoted(const fs::path& program)
{
    return "\"" + OnZ(program) + "\"";
}

std::vector<int> PositionsIn(const std::string& log)
{
    std::vector<int> positions;
    std::istringstream lines(log);
    for (std::string word; lines >> word;)
        if (word == "position" && lines >> word)
            positions.push_back(std::stoi(word));
    return positions;
}

class SelfExtractorWindow : public testing::Test {
protected:
    std::string Drive(const std::string& script) const { return DriveSetup(prefix, script); }

    /// The run ends in a box with one button.
    static std::string EndsInABox(const fs::path& program, const std::string& switches)
    {
        return "run " + Quoted(program) + " " + switches + "\nbuttons\nbox 1\nend\n";
    }
    static std::string Box(const std::string& text, unsigned code)
    {
        return "button OK\nProv Åäö.exe: " + text + "\ncode " + std::to_string(code) + "\n";
    }

    const WinePrefix prefix;
};

TEST_F(SelfExtractorWindow, ShowsItsMessageAndABarThatFills)
{
    UseNoScreen(prefix);
    SampleProduct product = LargeProduct();
    const fs::path program = MakeProgram(product);
    const std::string log =
        Drive("run " + Quoted(program) + " /extract:\"C:\\Ut hit\"\nunpacking " + kMessage +
              "\ngrip\ncontrols\nlet\npositions 2\nend\n");
    EXPECT_THAT(log, testing::StartsWith(std::string("Static 1 ") + kMessage +
                                         "\nmsctls_progress32 2 " + kMessage + "\nposition "));
    EXPECT_THAT(log, testing::EndsWith("code 0\n"));
    const std::vector<int> positions = PositionsIn(log);
    EXPECT_TRUE(std::ranges::is_sorted(positions)) << log;
    ASSERT_GT(positions.size(), 1U) << log;
    EXPECT_LT(positions.front(), positions.back()) << log;
    EXPECT_LE(positions.back(), 100) << log;
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Ut hit\\FILEDATA.DAT")));
}

TEST_F(SelfExtractorWindow, GivesWayToThePagesOfTheSetup)
{
    UseNoScreen(prefix);
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    std::string script = "run " + Quoted(program) + "\n";
    for (const char* page : {"Välkommen", "Destinationsmapp", "Komponenter"})
        script += std::string("page ") + page + "\npress 1\n";
    script += "page Installationen avslutad\npress 1\nend\n";
    EXPECT_EQ(Drive(script), "code 0\n");
    prefix.WaitForAll();
    ExpectInstalled(product, prefix);
    EXPECT_EQ(LeftOvers(prefix), "");
    EXPECT_EQ(CountOf(program.parent_path()), 1U);
}

TEST_F(SelfExtractorWindow, HandsOnThatTheUserHasCancelled)
{
    UseNoScreen(prefix);
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    EXPECT_EQ(Drive("run " + Quoted(program) + "\npage Välkommen\npress 2\nbox 6\nend\n"),
              "Installation av Provpaket Åäö: Vill du avbryta installationen?\ncode 1602\n");
    prefix.WaitForAll();
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
    EXPECT_EQ(LeftOvers(prefix), "");
}

TEST_F(SelfExtractorWindow, SaysInABoxWhyItEnds)
{
    UseNoScreen(prefix);
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    WriteBytes(prefix.DriveC() / "Upptagen" / "QNSETUP.INF", "mine");
    EXPECT_EQ(Drive(EndsInABox(program, "/extract:C:\\Upptagen") + EndsInABox(program, "/extract") +
                    EndsInABox(program, "/extract:C:\\Upptagen\\QNSETUP.INF")),
              Box("Installationen kan inte packas upp: 'C:\\Upptagen\\QNSETUP.INF'.",
                  SelfExtractCode::kFailed) +
                  Box("Växeln /extract behöver en mapp.", SelfExtractCode::kBadSwitch) +
                  Box("Installationen kan inte packas upp: 'C:\\Upptagen\\QNSETUP.INF'.",
                      SelfExtractCode::kFailed));
    // Of what it had unpacked until then nothing stays.
    EXPECT_EQ(ReadBytes(prefix.OnHost("C:\\Upptagen\\QNSETUP.INF")), "mine");
    EXPECT_EQ(CountOf(prefix.OnHost("C:\\Upptagen")), 1U);

    const std::string whole = ReadBytes(program);
    std::string damaged = whole;
    damaged[whole.size() / 2] = static_cast<char>(damaged[whole.size() / 2] ^ 1);
    WriteBytes(program, damaged);
    EXPECT_EQ(Drive(EndsInABox(program, "")),
              Box("Filen är skadad eller inte hel. Hämta den en gång till. Ingenting har "
                  "installerats.",
                  SelfExtractCode::kDamaged));
    EXPECT_EQ(LeftOvers(prefix), "");
}

TEST_F(SelfExtractorWindow, SpeaksTheLanguageOfThePackage)
{
    UseNoScreen(prefix);
    SampleProduct product;
    product.project.Language.LanguageFile = "ENGLISH.LNG";
    const fs::path program = MakeProgram(product);
    EXPECT_EQ(Drive(EndsInABox(program, "/extract")),
              Box("The switch /extract needs a folder.", SelfExtractCode::kBadSwitch));
}

// A picture to look at: build/<preset>/screens/setup.
TEST_F(SelfExtractorWindow, IsPictured)
{
    const VirtualDisplay display;
    SampleProduct product = LargeProduct();
    const fs::path program = MakeProgram(product);
    const fs::path shot = WorkFolder() / "packar upp.bmp";
    EXPECT_EQ(Drive("run " + Quoted(program) + " /extract:C:\\Ut\nunpacking " + kMessage +
                    "\nfilled 2\nshot " + OnZ(shot) + "\nlet\nend\n"),
              "code 0\n");
    const fs::path png = fs::path(QUILLON_BUILD_FOLDER) / "screens" / "setup" /
                         (std::to_string(WineBits()) + "-unpacking.png");
    BitmapToPng(shot, png);
    // The beginning of the bar is filled, its end is not.
    const std::string bytes = ReadBytes(shot);
    ASSERT_EQ(bytes.size(), 54U + 4U * 360U * 84U);
    const auto colourAt = [&](std::size_t x) {
        return bytes.substr(54 + 4 * ((83 - 59) * 360 + x), 3);
    };
    EXPECT_NE(colourAt(20), colourAt(338));
}

} // namespace
} // namespace quillon::test
