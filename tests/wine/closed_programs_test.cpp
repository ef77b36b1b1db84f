// Programs that hold files and that the setup closes by the system's Restart Manager. Wine has
// none, so that a library of the tests stands in its place, which logs what it is asked for.
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

constexpr const char* kHeld = "C:\\Program Files\\Provpaket Åäö\\Data\\hållen.txt";

class ClosedPrograms : public testing::Test {
protected:
    ClosedPrograms()
    {
        UseNoScreen(prefix);
        EXPECT_EQ(prefix.RunCommandLine(
                      "reg add HKCU\\Software\\Wine\\DllOverrides /v rstrtmgr /d native"),
                  0U);
        prefix.Stop();
        const fs::path library = prefix.OnHost("C:\\windows\\system32\\rstrtmgr.dll");
        fs::remove(library);
        fs::copy_file(TestProgramFolder() / "fake_restart_manager.dll", library);
        product.project.DialogBoxes.DestinationDlg = 0;
        product.Add("Data", "hållen.txt", "new");
        package = MakePackage(product.Order({"--medium", "cd"}));
        WriteBytes(prefix.OnHost(kHeld), "former");
    }
    /// Leads through the pages while a program holds the file; `end` is what comes then.
    std::string Drive(const std::string& end, const std::string& switches = {})
    {
        return DriveSetup(prefix, "hold " + std::string(kHeld) + "\nrun \"" +
                                      OnZ(package / "SETUP.EXE") + "\" /LOG=C:\\l.txt" + switches +
                                      "\npage Välkommen\npress 1\npage Komponenter\npress 1\n" +
                                      end);
    }
    void Set(const std::string& settings) const
    {
        WriteBytes(prefix.DriveC() / "rm.ini", "[rm]\r\n" + settings);
    }
    std::string Calls() const { return ReadBytes(prefix.DriveC() / "rm.txt"); }

    const WinePrefix prefix;
    SampleProduct product;
    fs::path package;
};

TEST_F(ClosedPrograms, AreNamedHoweverManyTheyAreAndStartedAgain)
{
    Set("programs=90\r\n");
    const std::string log = Drive("box 6\nrelease\npage Installationen avslutad\npress 1\nend\n");
    EXPECT_THAT(log, HasSubstr("||Program 1|Program 2|"));
    EXPECT_THAT(log, testing::EndsWith("code 0\n"));
    EXPECT_EQ(Calls(), "start\nregister 1\nlist 0 of 90\nlist 0 of 110\nlist 0 of 130\n"
                       "list 130 of 130\nshutdown\nrestart\nend\n");
    EXPECT_TRUE(ReadBytes(prefix.DriveC() / "l.txt").find("Program 130 ") != std::string::npos);
    EXPECT_EQ(ReadBytes(prefix.OnHost(kHeld)), "new");
}

// They are named once more, and the file ends the installation where the user does not close them.
TEST_F(ClosedPrograms, MayRefuseToEnd)
{
    Set("programs=1\r\nrefuses=1\r\n");
    const std::string log = Drive("box 6\nbox 7\nbox 2\nend\n");
    EXPECT_THAT(log, HasSubstr("Program 1"));
    EXPECT_THAT(log, testing::EndsWith("code 20003\n"));
    EXPECT_EQ(Calls(), "start\nregister 1\nlist 1 of 1\nshutdown\nregister 1\nlist 1 of 1\n"
                       "restart\nend\n");
    EXPECT_EQ(ReadBytes(prefix.OnHost(kHeld)), "former");
}

// The desktop itself may be one of them. What is removed is not started again.
TEST_F(ClosedPrograms, AreStartedAgainByAnUninstallerToo)
{
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    Set("programs=1\r\n");
    const std::string log =
        DriveSetup(prefix, "hold " + std::string(kHeld) +
                               "\nrun \"C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE\"\n"
                               "list Vill du ta bort Provpaket Åäö från datorn? Det här tas bort:\n"
                               "press 1\nbox 6\nrelease\nbox 1\nend\n");
    EXPECT_THAT(log, testing::EndsWith("code 0\n"));
    EXPECT_EQ(Calls(), "start\nregister 1\nfilter 1\nlist 1 of 1\nshutdown\nrestart\nend\n");
    EXPECT_FALSE(fs::exists(prefix.OnHost(kHeld)));
}

TEST_F(ClosedPrograms, AreLeftAloneAgainstTheSwitch)
{
    EXPECT_THAT(Drive("box 2\nend\n", " /NOCLOSEAPPLICATIONS"), testing::EndsWith("code 20003\n"));
    EXPECT_FALSE(fs::exists(prefix.DriveC() / "rm.txt"));
}

} // namespace
} // namespace quillon::test
