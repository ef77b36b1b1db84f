// What the switches take away from a setup that shows its pages: the boxes, and the ways to cancel.
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::Not;

// Option X asks about it.
constexpr const char* kAsked = "C:\\Program Files\\Provpaket Åäö\\Data\\finns.txt";
const std::string kQuestion =
    "Provpaket Åäö: Filen '" + std::string(kAsked) + "' finns redan. Vill du ersätta den?\n";
const std::string kPages = "page Välkommen\npress 1\npage Komponenter\npress 1\n";
const std::string kEnd = "page Installationen avslutad\npress 1\nend\n";

class PagesWithFewer : public testing::Test {
protected:
    PagesWithFewer()
    {
        product.project.DialogBoxes.DestinationDlg = 0;
        product.Add("Data", "finns.txt", "ny", "X");
        UseNoScreen(prefix);
        WriteBytes(prefix.OnHost(kAsked), "gammal");
    }

    std::string Drive(const std::string& switches, const std::string& script)
    {
        if (package.empty())
            package = MakePackage(product.Order({"--medium", "cd"}));
        return DriveSetup(prefix,
                          "run \"" + OnZ(package / "SETUP.EXE") + "\"" + switches + "\n" + script);
    }
    std::string Asked() const { return ReadBytes(prefix.OnHost(kAsked)); }

    SampleProduct product;
    fs::path package;
    const WinePrefix prefix;
};

TEST_F(PagesWithFewer, BoxesTakeTheAnswerThatChangesLeast)
{
    EXPECT_EQ(Drive("", kPages + "box 6\n" + kEnd), kQuestion + "code 0\n");
    EXPECT_EQ(Asked(), "ny");
    WriteBytes(prefix.OnHost(kAsked), "gammal");
    // A box would stand in front of the closing page.
    EXPECT_EQ(Drive(" /SUPPRESSMSGBOXES /LOG=C:\\l.txt", kPages + kEnd), "code 0\n");
    EXPECT_EQ(Asked(), "gammal");
    EXPECT_THAT(ReadBytes(prefix.OnHost("C:\\l.txt")), HasSubstr(kAsked));
}

// What a page says of its own fields is part of the page.
TEST_F(PagesWithFewer, BoxesStillTellWhatIsWrongOnAPage)
{
    product.project.DialogBoxes.PasswordDlg = 1;
    product.project.DialogBoxData.CorrectPassword = "Hemligt";
    EXPECT_EQ(Drive(" /SUPPRESSMSGBOXES",
                    "page Välkommen\npress 1\npage Lösenord\ntype 104 fel\npress 1\nbox 2\n"
                    "page Lösenord\npress 2\nbox 6\nend\n"),
              "Installation av Provpaket Åäö: Lösenordet är felaktigt.\n"
              "Installation av Provpaket Åäö: Vill du avbryta installationen?\ncode 1602\n");
    EXPECT_EQ(Asked(), "gammal");
}

TEST_F(PagesWithFewer, BoxesTellNothingOfAFailure)
{
    EXPECT_EQ(Drive(" /SUPPRESSMSGBOXES /FEL", "end\n"), "code 1639\n");
    EXPECT_THAT(
        Drive(" /FEL", "box 2\nend\n"),
        testing::AllOf(testing::StartsWith("Installation av Provpaket Åäö: Växeln '/FEL' är okänd"),
                       testing::EndsWith("\ncode 1639\n")));
}

TEST_F(PagesWithFewer, WaysToCancelLeaveThePagesAsTheyAre)
{
    product.project.DialogBoxes.LicenseInfoDlg = 1;
    product.project.DialogBoxData.LicenseTitle = "Licensavtal";
    // Esc, the button of the frame, and Alt+F4: a question would hold the page back.
    const std::string attempts = "key 1 27\nclose\nleave\n";
    const std::string log = Drive(
        " /NOCANCEL", "page Välkommen\ncontrols\n" + attempts +
                          "press 1\npage Licensavtal\npress 1\npage Komponenter\n" + attempts +
                          "controls\npress 1\nbuttons\nprogress\ncontrols\nclose\nleave\n"
                          "box 7\n" +
                          kEnd);
    EXPECT_THAT(log, HasSubstr("Button 2 tab grey Avbryt\n"));
    EXPECT_THAT(log, Not(HasSubstr("Button 2 tab Avbryt\n")));
    EXPECT_THAT(log, testing::EndsWith(kQuestion + "code 0\n")) << log;
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE")));
}

TEST_F(PagesWithFewer, WaysToCancelStillLetAnAgreementBeDeclined)
{
    product.project.DialogBoxes.LicenseInfoDlg = 1;
    product.project.DialogBoxData.LicenseTitle = "Licensavtal";
    EXPECT_EQ(
        Drive(" /NOCANCEL", "page Välkommen\npress 1\npage Licensavtal\npress 2\nbox 6\nend\n"),
        "Installation av Provpaket Åäö: Vill du avbryta installationen?\ncode 1602\n");
}

// The same script without the switch, which shows that the test above tests the right thing.
TEST_F(PagesWithFewer, WaysToCancelAreThereOtherwise)
{
    const std::string log =
        Drive("", kPages + "buttons\nprogress\ncontrols\nclose\nbox 7\nbox 6\nend\n");
    EXPECT_THAT(log, HasSubstr("Button 2 tab Avbryt\n"));
    EXPECT_THAT(log,
                testing::EndsWith(kQuestion +
                                  "Installation av Provpaket Åäö: Vill du avbryta installationen?\n"
                                  "code 1602\n"))
        << log;
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE")));
    EXPECT_EQ(Asked(), "gammal");
}

// Its list is no box: it is the question whether to begin.
TEST_F(PagesWithFewer, BoxesAreLeftOutByTheUninstallerToo)
{
    const fs::path main = prefix.OnHost("C:\\Program Files\\Provpaket Åäö");
    fs::remove_all(main); // what was there before would stay
    const std::string uninstaller = "C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE";
    const std::string remove =
        "\nlist Vill du ta bort Provpaket Åäö från datorn? Det här tas bort:\npress 1\n";
    package = MakePackage(product.Order({"--medium", "cd"}));
    const auto uninstall = [&](const std::string& switches, const std::string& end) {
        EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
        const std::string log =
            DriveSetup(prefix, "run \"" + uninstaller + "\"" + switches + remove + end);
        prefix.WaitForAll();
        EXPECT_FALSE(fs::exists(main));
        return log;
    };
    EXPECT_EQ(uninstall(" /SUPPRESSMSGBOXES", "end\n"), "code 0\n");
    EXPECT_THAT(
        uninstall("", "box 2\nend\n"),
        testing::AllOf(HasSubstr("Provpaket Åäö har tagits bort"), testing::EndsWith("code 0\n")));
}

TEST(HangingSound, HoldsNothingUp)
{
    const WinePrefix prefix;
    WriteBytes(prefix.DriveC() / "fanfar.wav", "never read");
    fs::copy_file(TestProgramFolder() / "hanging_sound.exe", prefix.DriveC() / "sound.exe");
    for (const std::string when : {"play", "load"}) {
        EXPECT_EQ(prefix.Run("C:\\sound.exe", "C:\\fanfar.wav C:\\log.txt " + when), 0U);
        EXPECT_EQ(ReadBytes(prefix.DriveC() / "log.txt"), "plays\nwent on\n") << when;
    }
}

// What a program loads waits for the library that is being loaded.
TEST(HangingDriver, HoldsNothingUpWhileItIsLoaded)
{
    const WinePrefix prefix;
    UseNoScreen(prefix);
    ASSERT_EQ(
        prefix.RunCommandLine("reg add HKCU\\Software\\Wine\\DllOverrides /v mciwave /d native"),
        0U);
    prefix.Stop();
    const fs::path driver = prefix.OnHost("C:\\windows\\system32\\mciwave.dll");
    fs::remove(driver);
    fs::copy_file(TestProgramFolder() / "hanging_driver.dll", driver);
    SampleProduct product;
    WriteBytes(product.Drive() / "fanfar.wav", "never read");
    product.project.DesSound.BackSoundFilename = "s:\\fanfar.wav";
    product.project.DialogBoxes.DestinationDlg = 0;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    EXPECT_EQ(DriveSetup(prefix, "run \"" + OnZ(package / "SETUP.EXE") +
                                     "\"\npage Välkommen\npress 1\npage Komponenter\npress 1\n"
                                     "page Installationen avslutad\npress 1\nend\n"),
              "code 0\n");
    prefix.WaitForAll();
    for (const auto& entry : fs::recursive_directory_iterator(prefix.DriveC()))
        EXPECT_NE(entry.path().filename(), "QNSOUND.WAV") << entry.path();
}

} // namespace
} // namespace quillon::test
