// The setup's windows on displays whose pixels are smaller: larger by as much, and nothing clipped.
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/sample_product.h"
#include "wine/virtual_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::Not;

class ScaledWindows : public testing::TestWithParam<int> {
protected:
    ScaledWindows()
    {
        EXPECT_EQ(prefix.RunCommandLine("reg add \"HKCU\\Control Panel\\Desktop\" /v LogPixels "
                                        "/t REG_DWORD /d " +
                                        std::to_string(GetParam()) + " /f"),
                  0U);
        prefix.Stop();
        fs::create_directories(shots_);
    }

    /// The line of the log for a window of that many pixels on a display of normal size.
    static std::string Inside(int width, int height)
    {
        return "inside " + std::to_string(width * GetParam() / 96) + " " +
               std::to_string(height * GetParam() / 96) + "\n";
    }
    std::string Shot(const std::string& name) const
    {
        return "shot " + OnZ(shots_ / (name + ".bmp")) + "\n";
    }
    void KeepPicture(const std::string& name) const
    {
        const fs::path png = fs::path(QUILLON_BUILD_FOLDER) / "screens" / "setup" /
                             ("SWEDISH-" + std::to_string(WineBits()) + "-" +
                              std::to_string(GetParam()) + "dpi-" + name + ".png");
        BitmapToPng(shots_ / (name + ".bmp"), png);
    }

    const VirtualDisplay display{VirtualDisplay::Displays::Fine};
    const WinePrefix prefix;

private:
    const fs::path shots_ = WorkFolder() / ("bilder-" + std::to_string(GetParam()));
};

TEST_P(ScaledWindows, ShowThePagesAndTheProgressWhole)
{
    SampleProduct product;
    // Its question holds the progress as it is.
    product.Add("Data", "finns.txt", "ny", "X");
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    WriteBytes(prefix.OnHost("C:\\Program Files\\Provpaket Åäö\\Data\\finns.txt"), "gammal");
    const std::string log = DriveSetup(
        prefix, "run \"" + OnZ(package / "SETUP.EXE") + "\"\npage Välkommen\nclipped\n" +
                    Shot("welcome") + "press 1\npage Destinationsmapp\nclipped\n" + Shot("folder") +
                    "press 1\npage Komponenter\nclipped\n" + Shot("components") +
                    "press 1\naside\nprogress\ninside\nclipped\n" + Shot("progress") +
                    "box 7\npage Installationen avslutad\nclipped\npress 1\nend\n");
    EXPECT_THAT(log, HasSubstr(Inside(420, 130)));
    EXPECT_THAT(log, Not(HasSubstr("clipped")));
    EXPECT_THAT(log, testing::EndsWith("code 0\n"));
    for (const char* name : {"welcome", "folder", "components", "progress"})
        KeepPicture(name);
}

TEST_P(ScaledWindows, ShowTheListOfTheUninstallerWhole)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const std::string log = DriveSetup(
        prefix,
        "run \"C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE\"\n"
        "list Vill du ta bort Provpaket Åäö från datorn? Det här tas bort:\ninside\nclipped\n" +
            Shot("list") + "press 2\nend\n");
    EXPECT_EQ(log, Inside(520, 340) + "code 1602\n");
    KeepPicture("list");
}

/// The lines of a script that takes the window from display to display, and what is logged then.
std::string Through(const std::vector<int>& scales)
{
    std::string lines;
    for (const int dpi : scales)
        lines += "scale " + std::to_string(dpi) + "\ninside\nclipped\n";
    return lines;
}

std::string Insides(const std::vector<int>& scales, int width, int height)
{
    std::string lines;
    for (const int dpi : scales)
        lines += "inside " + std::to_string((width * dpi + 48) / 96) + " " +
                 std::to_string((height * dpi + 48) / 96) + "\n";
    return lines;
}

class MovedWindows : public ScaledWindows {
protected:
    const std::vector<int> scales_ = {144, 192, 120, 96, 168, 96};
};

TEST_P(MovedWindows, ShowTheProgressWholeOnEachDisplay)
{
    SampleProduct product;
    product.Add("Data", "finns.txt", "ny", "X");
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    WriteBytes(prefix.OnHost("C:\\Program Files\\Provpaket Åäö\\Data\\finns.txt"), "gammal");
    const std::string log = DriveSetup(
        prefix, "run \"" + OnZ(package / "SETUP.EXE") +
                    "\"\npage Välkommen\npress 1\npage Destinationsmapp\npress 1\n"
                    "page Komponenter\npress 1\naside\nprogress\n" +
                    Through(scales_) + "box 7\npage Installationen avslutad\npress 1\nend\n");
    EXPECT_TRUE(log.starts_with(Insides(scales_, 420, 130))) << log;
    EXPECT_THAT(log, Not(HasSubstr("clipped")));
    EXPECT_THAT(log, testing::EndsWith("code 0\n"));
}

TEST_P(MovedWindows, ShowTheListOfTheUninstallerWholeOnEachDisplay)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const std::string log =
        DriveSetup(prefix, "run \"C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE\"\n"
                           "list Vill du ta bort Provpaket Åäö från datorn? Det här tas bort:\n" +
                               Through(scales_) + "press 2\nend\n");
    EXPECT_EQ(log, Insides(scales_, 520, 340) + "code 1602\n");
}

INSTANTIATE_TEST_SUITE_P(Dpi, MovedWindows, testing::Values(96, 192),
                         [](const auto& dpi) { return std::to_string(dpi.param); });
INSTANTIATE_TEST_SUITE_P(Dpi, ScaledWindows, testing::Values(96, 144, 192),
                         [](const auto& dpi) { return std::to_string(dpi.param); });

} // namespace
} // namespace quillon::test
