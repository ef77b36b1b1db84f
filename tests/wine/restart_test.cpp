// The restart that a project asks for. The driver is a program of the same session: Windows asks it
// whether the session may end, and it says no, so that the test goes on.
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

class RestartedMachine : public testing::Test {
protected:
    RestartedMachine()
    {
        product.project.InstallOptions.RestartWindows = kOn;
        product.project.DialogBoxes.DestinationDlg = 0;
        package = MakePackage(product.Order({"--medium", "cd"}));
        UseNoScreen(prefix);
    }

    std::string Drive(const std::string& switches, const std::string& script)
    {
        const fs::path driver = WorkFolder() / "drive_setup.exe";
        fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver,
                      fs::copy_options::skip_existing);
        WriteBytes(prefix.DriveC() / "script.txt",
                   "watch\nrun \"" + OnZ(package / "SETUP.EXE") + "\"" + switches + "\n" + script);
        EXPECT_EQ(prefix.Run(OnZ(driver), R"(C:\script.txt C:\driven.txt)"), 0U);
        return ReadBytes(prefix.DriveC() / "driven.txt");
    }

    SampleProduct product;
    fs::path package;
    const WinePrefix prefix;
};

TEST_F(RestartedMachine, IsAskedToEndTheSessionAsTheLastThingOfAll)
{
    EXPECT_EQ(Drive("", "page Välkommen\npress 1\npage Komponenter\npress 1\n"
                        "page Installationen avslutad\npress 1\nbox 2\nsession\nend\n"),
              "Installation av Provpaket Åäö: Datorn startas om när du stänger den här rutan. "
              "Spara först det som är öppet i andra program.\n"
              "the session was to end\n"
              "code 1641\n");
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE")));
}

// Wine asks a program of its own to end the session; without that program it refuses.
TEST_F(RestartedMachine, IsDueWhereWindowsRefuses)
{
    WriteBytes(prefix.DriveC() / "break.cmd",
               "move C:\\windows\\system32\\wineboot.exe C:\\wineboot.exe\r\n"
               "echo x>C:\\windows\\system32\\wineboot.exe\r\n");
    EXPECT_EQ(
        Drive(
            " /LOG=C:\\l.txt /RESULT=C:\\r.json",
            "page Välkommen\npress 1\npage Komponenter\npress 1\n"
            "page Installationen avslutad\n"
            "other C:\\windows\\system32\\cmd.exe /c C:\\break.cmd\npress 1\nbox 2\nbox 2\nend\n"),
        "code 0\n"
        "Installation av Provpaket Åäö: Datorn startas om när du stänger den här rutan. "
        "Spara först det som är öppet i andra program.\n"
        "Installation av Provpaket Åäö: Datorn måste startas om innan programmet kan "
        "användas.\n"
        "code 3010\n");
    EXPECT_THAT(ReadBytes(prefix.DriveC() / "r.json"), testing::HasSubstr("\"code\":3010,"));
    EXPECT_THAT(ReadBytes(prefix.DriveC() / "l.txt"),
                testing::EndsWith("Windows startar inte om datorn. Avslutar med kod 3010\r\n"));
}

// The code of a restart is not a restart.
TEST_F(RestartedMachine, IsLeftAloneUnderSilenceWhateverTheCode)
{
    EXPECT_EQ(Drive(" /S /RESTARTEXITCODE=1641", "end\n"), "code 1641\n");
}

// The user would not be told beforehand.
TEST_F(RestartedMachine, IsLeftAloneWhereBoxesAreSuppressed)
{
    EXPECT_EQ(Drive(" /SUPPRESSMSGBOXES", "page Välkommen\npress 1\npage Komponenter\npress 1\n"
                                          "page Installationen avslutad\npress 1\nend\n"),
              "code 3010\n");
}

TEST_F(RestartedMachine, IsLeftAloneAgainstTheSwitch)
{
    EXPECT_EQ(Drive(" /norestart", "page Välkommen\npress 1\npage Komponenter\npress 1\n"
                                   "page Installationen avslutad\npress 1\nend\n"),
              "code 3010\n");
}

} // namespace
} // namespace quillon::test
