// A machine with two displays, side by side: the setup and the uninstaller are shown on the one
// where the pointer is when they are started, and leave the other one alone.
#include "wine/package.h"
#include "wine/sample_product.h"
#include "wine/virtual_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

struct Place {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const Place&) const = default;
};

// As VirtualDisplay makes them.
constexpr Place kFirst{0, 0, 1024, 768};
constexpr Place kSecond{1024, 0, 1824, 600};

class Displays : public testing::Test {
protected:
    /// What the driver logs, a place for each `where`.
    std::vector<Place> Drive(const std::string& script, const std::string& end)
    {
        const fs::path driver = WorkFolder() / "drive_setup.exe";
        fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver,
                      fs::copy_options::skip_existing);
        WriteBytes(prefix.DriveC() / "script.txt", script);
        EXPECT_EQ(prefix.Run(OnZ(driver), R"(C:\script.txt C:\driven.txt)"), 0U);
        const std::string log = ReadBytes(prefix.DriveC() / "driven.txt");
        EXPECT_TRUE(log.ends_with(end)) << log;
        std::vector<Place> places;
        std::istringstream lines(log);
        for (Place place; lines >> place.left >> place.top >> place.right >> place.bottom;)
            places.push_back(place);
        return places;
    }

    // Half a pixel is lost where the space around the window is odd.
    static void ExpectInTheMiddle(const Place& window, const Place& display)
    {
        EXPECT_NEAR(window.left - display.left, display.right - window.right, 1);
        EXPECT_NEAR(window.top - display.top, display.bottom - window.bottom, 1);
    }

    const VirtualDisplay display{VirtualDisplay::Displays::Two};
    const WinePrefix prefix;
};

TEST_F(Displays, HaveTheSetupWhereThePointerIs)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    const std::string setup = "run \"" + OnZ(package / "SETUP.EXE") +
                              "\"\npage Välkommen\nwhere\nscreen\nwhere\npage Välkommen\npress 2\n"
                              "box 6\nend\n";
    // Wine learns of the second display from the first program that has a window.
    for (const auto& [pointer, own] :
         {std::pair("pointer 500 300\n", kFirst), std::pair("pointer 1500 300\n", kSecond)}) {
        const std::vector<Place> places = Drive(pointer + setup, "code 1602\n");
        ASSERT_EQ(places.size(), 2U);
        ExpectInTheMiddle(places[0], own);
        EXPECT_EQ(places[1], own) << "the screen covers its display, and no more";
    }
}

TEST_F(Displays, HaveTheUninstallerWhereThePointerIs)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const auto places =
        Drive("pointer 1500 300\nrun \"C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE\"\n"
              "list Vill du ta bort Provpaket Åäö från datorn? Det här tas bort:\nwhere\npress 2\n"
              "end\n",
              "code 1602\n");
    ASSERT_EQ(places.size(), 1U);
    ExpectInTheMiddle(places[0], kSecond);
}

} // namespace
} // namespace quillon::test
