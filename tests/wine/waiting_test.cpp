// Programs that a setup and its uninstaller wait for, and that wait for an answer of each window
// themselves.
#include "wine/driven_setup.h"
#include "wine/setup_switches.h"

namespace quillon::test {
namespace {

class WaitingSetup : public SetupSwitches {
protected:
    /// The lines of the programs that have run since the last call.
    std::string TakeAnswers() const
    {
        const std::filesystem::path path = prefix.DriveC() / "broadcast.txt";
        const std::string lines = ReadBytes(path);
        std::filesystem::remove(path);
        return lines;
    }
};

TEST_F(WaitingSetup, AnswersWhatAProgramSendsToAllWindows)
{
    product.Add("Data", "sändare.exe", ReadBytes(TestProgramFolder() / "broadcast.exe"), "R");
    product.project.Lists.RunScriptAfter = "RUN \"%DESTDIR\\Data\\sändare.exe\" script";
    Make();
    UseNoScreen(prefix);
    Remember();
    EXPECT_EQ(Setup("/passive"), 0U);
    EXPECT_EQ(TakeAnswers(), "/regserver 1 0 held\nscript 1 0 held\n");
    // The setup waits for the uninstaller, and that for the program.
    EXPECT_EQ(Setup("/uninstall /passive"), 0U);
    prefix.WaitForAll();
    EXPECT_EQ(TakeAnswers(), "/unregserver 2 0 held\n");
    EXPECT_FALSE(IsThere());
}

} // namespace
} // namespace quillon::test
