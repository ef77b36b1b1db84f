#include "runtime/restart.h"

#include "helpers/number_text.h"
#include "runtime/refused_restart.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

constexpr const char* kTitle = "Installation av Exempel";
constexpr const char* kQuestion = "Datorn måste startas om innan programmet kan användas. Vill du "
                                  "starta om den nu?";
constexpr const char* kNow = "Datorn startas om när du stänger den här rutan. Spara först det som "
                             "är öppet i andra program.";

class RestartTest : public SetupFixture {
protected:
    RestartTest() { AddFile("prog.exe", "%DESTDIR", "program", "A"); }

    void HoldTheFile()
    {
        memory.files.Put("C:\\Program\\Exempel\\prog.exe", "old");
        files.inUse = {"C:\\Program\\Exempel\\prog.exe"};
    }
    ExitCode InstallWith(const Text& switches, std::deque<ExpectedBox> boxes)
    {
        ScriptedAsk user(std::move(boxes));
        ask = &user;
        const ExitCode code = Install(switches);
        ask = nullptr;
        return code;
    }
    section::InstallOptions& options = project.InstallOptions;
};

TEST_F(RestartTest, IsNotSpokenOfWhereNothingWaitsForIt)
{
    EXPECT_EQ(InstallWith("", {}), ExitCode::Done);
    options.NeverRestartWindows = kOn;
    EXPECT_EQ(InstallWith("", {}), ExitCode::Done);
}

TEST_F(RestartTest, IsAskedForWhereAFileWaitsForIt)
{
    HoldTheFile();
    EXPECT_EQ(InstallWith("", {{BoxKind::YesNo, kTitle, kQuestion, Answer::Yes}}),
              ExitCode::RestartStarted);
    EXPECT_THAT(Log(), HasSubstr("Datorn måste startas om"));
    EXPECT_EQ(InstallWith("", {{BoxKind::YesNo, kTitle, kQuestion, Answer::No}}),
              ExitCode::RestartNeeded);
}

TEST_F(RestartTest, IsAnnouncedWhereTheProjectAlwaysWantsIt)
{
    options.RestartWindows = kOn;
    EXPECT_EQ(InstallWith("", {{BoxKind::Inform, kTitle, kNow}}), ExitCode::RestartStarted);
    HoldTheFile();
    EXPECT_EQ(InstallWith("", {{BoxKind::Inform, kTitle, kNow}}), ExitCode::RestartStarted);
}

TEST_F(RestartTest, NeverComesWhereTheProjectForbidsIt)
{
    HoldTheFile();
    options.NeverRestartWindows = kOn;
    EXPECT_EQ(InstallWith("", {}), ExitCode::RestartNeeded);
    options.RestartWindows = kOn;
    EXPECT_EQ(InstallWith("", {}), ExitCode::RestartNeeded);
}

TEST_F(RestartTest, NeverComesBySilenceOrAgainstTheSwitch)
{
    for (const char* switches : {"/S", "/passive", "/norestart", "-NoRestart"}) {
        options.RestartWindows = kOff;
        EXPECT_EQ(InstallWith(switches, {}), ExitCode::Done) << switches;
        options.RestartWindows = kOn;
        EXPECT_EQ(InstallWith(switches, {}), ExitCode::RestartNeeded) << switches;
    }
    HoldTheFile();
    options.RestartWindows = kOff;
    EXPECT_EQ(InstallWith("/S", {}), ExitCode::RestartNeeded);
}

TEST_F(RestartTest, NeverComesUnannouncedWhereBoxesAreSuppressed)
{
    options.RestartWindows = kOn;
    EXPECT_EQ(InstallWith("/SUPPRESSMSGBOXES", {}), ExitCode::RestartNeeded);
    EXPECT_FALSE(startsMachineAnew);
}

TEST_F(RestartTest, IsNotPromisedToAUserWhoHasNoRightToIt)
{
    mayRestart = [] { return false; };
    options.RestartWindows = kOn;
    EXPECT_EQ(InstallWith("/RESTARTEXITCODE=77", {}), ExitCode{77});
    EXPECT_FALSE(startsMachineAnew);
    HoldTheFile();
    options.RestartWindows = kOff;
    EXPECT_EQ(InstallWith("", {}), ExitCode::RestartNeeded);
    mayRestart = [] { return true; };
    EXPECT_EQ(InstallWith("", {{BoxKind::YesNo, kTitle, kQuestion, Answer::Yes}}),
              ExitCode::RestartStarted);
    EXPECT_TRUE(startsMachineAnew);
}

TEST_F(RestartTest, ThatWindowsRefusesIsCorrectedInTheLogs)
{
    options.RestartWindows = kOn;
    EXPECT_EQ(
        InstallWith("/LOGJSON=L:\\a.json /RESULT=L:\\r.json", {{BoxKind::Inform, kTitle, kNow}}),
        ExitCode::RestartStarted);
    const Text log = Log();
    const Text records = memory.files.Get("L:\\a.json");
    const Text result = memory.files.Get("L:\\r.json");
    EXPECT_THAT(result, HasSubstr("\"code\":1641,\"restart\":true"));
    const LanguageTexts texts;
    LogRefusedRestart({files, memory.machine, texts, logsWritten, ExitCode{77}});
    EXPECT_TRUE(Log().starts_with(log));
    EXPECT_TRUE(Log().ends_with("Windows startar inte om datorn. Avslutar med kod 77\r\n"));
    EXPECT_EQ(memory.files.Get("L:\\a.json"), ReplaceAll(records, "\"code\":1641", "\"code\":77"));
    EXPECT_EQ(memory.files.Get("L:\\r.json"), ReplaceAll(result, "\"code\":1641", "\"code\":77"));
}

TEST_F(RestartTest, ThatWindowsRefusesMakesNoLogThatNobodyWanted)
{
    const LanguageTexts texts;
    LogRefusedRestart({files, memory.machine, texts, {}, ExitCode::RestartNeeded});
    LogRefusedRestart(
        {files, memory.machine, texts, {"L:\\l.txt", {}, "L:\\r.json"}, ExitCode::RestartNeeded});
    EXPECT_FALSE(memory.files.FileExists("L:\\l.txt"));
    EXPECT_FALSE(memory.files.FileExists("L:\\r.json"));
}

// The code is the one that the caller asked for, and does not say what the machine does.
TEST_F(RestartTest, DoesNotComeFromACodeAlone)
{
    options.RestartWindows = kOn;
    for (const char* switches : {"/S", "/passive", "/norestart"}) {
        EXPECT_EQ(InstallWith(Text(switches) + " /RESTARTEXITCODE=1641", {}),
                  ExitCode::RestartStarted)
            << switches;
        EXPECT_FALSE(startsMachineAnew) << switches;
    }
    options.NeverRestartWindows = kOn;
    HoldTheFile();
    EXPECT_EQ(InstallWith("/RESTARTEXITCODE=1641", {}), ExitCode::RestartStarted);
    EXPECT_FALSE(startsMachineAnew);
    codeOfStarted = 1641;
    EXPECT_EQ(InstallWith("/S /uninstall", {}), ExitCode::RestartStarted);
    EXPECT_FALSE(startsMachineAnew);
}

TEST_F(RestartTest, DoesNotComeFromTheCodeOfAScriptThatIsUndone)
{
    options.RestartWindows = kOn;
    for (const Text code : {"1641", "3010"}) {
        project.Lists.RunScriptBefore = "EXIT " + code + " \"Stopp\"";
        const MachineState before = State();
        EXPECT_EQ(InstallWith("/S /RESULT=L:\\r.json", {}), ExitCode(LeadingNumber(code)));
        EXPECT_EQ(State(), before);
        EXPECT_FALSE(startsMachineAnew);
        EXPECT_THAT(memory.files.Get("L:\\r.json"), HasSubstr("\"result\":\"failed\""));
        EXPECT_THAT(memory.files.Get("L:\\r.json"), HasSubstr("\"restart\":false"));
    }
}

} // namespace
} // namespace quillon::test
