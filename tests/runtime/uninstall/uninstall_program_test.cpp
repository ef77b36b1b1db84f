// The uninstaller as a whole: what it shows before and after, and its exit codes.
#include "runtime/support/setup_fixture.h"

#include "platform/run_error.h"
#include "runtime/journal/restart_moves.h"
#include "runtime/shared_files.h"
#include "runtime/uninstall/removal_list.h"
#include "runtime/uninstall/uninstall_program.h"

#include <nlohmann/json.hpp>

namespace quillon {
namespace {

using nlohmann::json;
using test::BoxKind;
using test::ScriptedAsk;
using testing::ElementsAre;
using testing::IsEmpty;

using test::kMain;
const Text kLog = kMain + "\\QNXUNIN.LOG";
const Text kUninstaller = kMain + "\\QNXUNIN.EXE";
const Text kTitle = "Avinstallation av Exempel";
const Text kNoLog =
    "Avinstallationen kan inte startas. Filen '" + kLog + "' saknas eller är skadad.";

class Lists : public UninstallView {
public:
    bool ShowList(const ListPage& page) override
    {
        pages.push_back(page);
        events.push_back("list");
        return page.cancelCaption.empty() || goesOn;
    }
    void ShowProgress(bool isAtWork) override { events.push_back(isAtWork ? "work" : "rest"); }

    bool goesOn = true;
    std::vector<ListPage> pages;
    std::vector<Text> events;
};

class Running : public RunningProgram {
public:
    explicit Running(std::vector<Text>& events) : events_(events) {}
    void MoveAway(const Text& path) override { events_.push_back("away " + path); }

private:
    std::vector<Text>& events_;
};

class UninstallProgramTest : public test::SetupFixture {
protected:
    UninstallProgramTest() { AddFile("prog.exe", "%DESTDIR\\Bin", "program"); }

    ExitCode RunProgram(const Text& commandLine = "", std::deque<test::ExpectedBox> boxes = {})
    {
        ScriptedAsk scripted(std::move(boxes));
        UninstallerCommand line = ReadUninstallerCommand(commandLine);
        if (line.journalPath.empty())
            line.journalPath = kLog;
        Running running(lists.events);
        UninstallProgram program(
            {host, target, line, kUninstaller, otherSetupRuns, nullptr, &running});
        program.Prepare();
        return program.Run(scripted, lists);
    }

    /// As the system writes a file down that it removes at its next start.
    void RemoveAtRestart(const Text& path)
    {
        target.MakeKey(RestartMovesKey());
        const RegistryData from = TextData("\\??\\" + path);
        target.WriteValue(RestartMovesKey(), kRestartMoves, {7, from.bytes + std::string(4, '\0')});
    }

    json Result() const { return json::parse(memory.files.Get("L:\\r.json")); }

    Lists lists;
};

TEST_F(UninstallProgramTest, ShowsWhatItWillRemoveAndDoesNothingWhereThatIsCancelled)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const test::MachineState before = State();
    lists.goesOn = false;
    EXPECT_EQ(RunProgram(), ExitCode::Cancelled);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(lists.events, ElementsAre("list"));
    ASSERT_EQ(lists.pages.size(), 1U);
    const ListPage& page = lists.pages[0];
    EXPECT_EQ(page.title, kTitle);
    EXPECT_EQ(page.text, "Vill du ta bort Exempel från datorn? Det här tas bort:");
    EXPECT_THAT(page.lines,
                ElementsAre(kMain + "\\Bin\\prog.exe", kUninstaller, kMain + "\\QNS32X.BIN",
                            kMain + "\\QNXUNIN.SHA256", kLog, kMain, kMain + "\\Bin"));
    EXPECT_EQ(page.okCaption, "&Avinstallera");
    EXPECT_EQ(page.cancelCaption, "Avbryt");
}

TEST_F(UninstallProgramTest, RemovesTheProductAndItself)
{
    const test::MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(RunProgram("", {{BoxKind::Inform, kTitle, "Exempel har tagits bort från datorn."}}),
              ExitCode::Done);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(lists.events, ElementsAre("list", "work", "away " + kUninstaller, "rest"));
}

TEST_F(UninstallProgramTest, ListsWhatStaysAndWhy)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kMain + "\\Bin\\egen.txt", "användarens");
    EXPECT_EQ(RunProgram(), ExitCode::Done);
    ASSERT_EQ(lists.pages.size(), 2U);
    EXPECT_EQ(lists.pages[1].title, kTitle);
    EXPECT_EQ(lists.pages[1].text, "Exempel har tagits bort från datorn. Det här finns kvar:");
    EXPECT_THAT(lists.pages[1].lines,
                ElementsAre(kMain + "\\Bin: mappen är inte tom", kMain + ": mappen är inte tom"));
    EXPECT_EQ(lists.pages[1].okCaption, "OK");
    EXPECT_EQ(lists.pages[1].cancelCaption, "");
}

TEST_F(UninstallProgramTest, TellsThatTheMachineHasToBeStartedAnew)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    files.inUse.insert(kMain + "\\Bin\\prog.exe");
    EXPECT_EQ(RunProgram(), ExitCode::RestartNeeded);
    ASSERT_EQ(lists.pages.size(), 2U);
    EXPECT_EQ(lists.pages[1].text, "Exempel har tagits bort från datorn. Starta om datorn, så "
                                   "försvinner även det som används nu:");
    const Text why = ": tas bort när datorn startas om";
    EXPECT_THAT(lists.pages[1].lines,
                ElementsAre(kMain + "\\Bin\\prog.exe" + why, kMain + "\\Bin" + why, kMain + why));
}

TEST_F(UninstallProgramTest, TellsWhatCouldNotBeRemoved)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    files.inUse.insert(kMain + "\\Bin\\prog.exe");
    target.beforeChange = [] { throw RunError(ErrorNumber::kPermissionDenied, "registret"); };
    EXPECT_EQ(RunProgram(), ExitCode::Failed);
    target.beforeChange = [] {};
    ASSERT_EQ(lists.pages.size(), 2U);
    EXPECT_EQ(lists.pages[1].text,
              "Exempel har tagits bort, men några filer eller inställningar kunde inte tas bort:");
    EXPECT_THAT(lists.pages[1].lines,
                testing::Contains(kMain + "\\Bin\\prog.exe: åtkomst nekas till 'registret'"));
    EXPECT_TRUE(files.FileExists(kUninstaller));
}

TEST_F(UninstallProgramTest, AsksForARestartWhereWhatAKilledSetupLeftCanNotGoYet)
{
    const Text journal = "C:\\Program\\~qnsetup-Exempel.tmp";
    const auto leave = [&] {
        memory.files.Put(kUninstaller, "uninstaller");
        memory.files.Put(journal, "Quillon installationsjournal 1\r\nFOLDER\t" + kMain +
                                      "\r\nFILE\t" + kUninstaller + "\r\n");
    };
    leave();
    EXPECT_EQ(RunProgram("/S"), ExitCode::Done);
    EXPECT_FALSE(memory.files.DirExists(kMain));

    leave();
    target.MakeKey(RestartMovesKey());
    target.listsMovesAtRestart = true;
    files.running.insert(kUninstaller); // and can't leave its folder
    EXPECT_EQ(RunProgram("/S"), ExitCode::RestartNeeded);
    EXPECT_FALSE(memory.files.FileExists(kUninstaller));
    ASSERT_EQ(target.movesAtRestart.size(), 2U);
    EXPECT_EQ(target.movesAtRestart[1].first, kMain);
}

TEST_F(UninstallProgramTest, NamesNothingTwice)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kMain + "\\Bin\\egen.txt", "användarens");
    EXPECT_EQ(RunProgram(), ExitCode::Done);
    ASSERT_EQ(lists.pages.size(), 2U);
    EXPECT_THAT(lists.pages[1].lines,
                ElementsAre(kMain + "\\Bin: mappen är inte tom", kMain + ": mappen är inte tom"));
}

// The first installation has made the folder that the second one names first.
TEST_F(UninstallProgramTest, NamesNoFolderThatHasGoneAfterAll)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(RunProgram("", {{BoxKind::Inform, kTitle, "Exempel har tagits bort från datorn."}}),
              ExitCode::Done);
}

TEST_F(UninstallProgramTest, NamesAFileThatOthersUse)
{
    AddFile("delad.dll", "%DESTDIR", "delad", "S");
    ASSERT_EQ(Install(), ExitCode::Done);
    target.WriteValue(SharedFilesKey(), kMain + "\\delad.dll", NumberData(2));
    EXPECT_EQ(RunProgram(), ExitCode::Done);
    ASSERT_EQ(lists.pages.size(), 2U);
    EXPECT_THAT(lists.pages[1].lines,
                testing::Contains(kMain + "\\delad.dll: filen används av andra program"));
}

TEST_F(UninstallProgramTest, NamesNoKeyThatHasGoneAfterAll)
{
    project.Lists.Registry = "UNINSTALL=HKEY_CURRENT_USER\\Firma\\Prog\r\n"
                             "HKEY_CURRENT_USER\\Firma\\Prog\\Djup";
    ASSERT_EQ(Install(), ExitCode::Done);
    const RegistryKey key{RegistryRoot::CurrentUser, "Firma\\Prog\\Djup"};
    target.WriteValue(key, "Programmets", TextData("x"));
    EXPECT_EQ(RunProgram("", {{BoxKind::Inform, kTitle, "Exempel har tagits bort från datorn."}}),
              ExitCode::Done);
    EXPECT_FALSE(target.KeyExists(key));
}

TEST_F(UninstallProgramTest, TellsItsResultWhereItsLogCanNotBeMade)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    UninstallerCommand line = ReadUninstallerCommand("/S /LOG=Q:\\borta\\l.txt /RESULT=L:\\r.json");
    line.journalPath = kLog;
    UninstallProgram program({host, target, line, kUninstaller});
    try {
        program.Prepare();
        FAIL() << "there is no such drive";
    } catch (const RunError& error) {
        program.Fail(error);
    }
    EXPECT_EQ(Result()["code"], 1603);
    EXPECT_EQ(Result()["result"], "failed");
    EXPECT_THAT(Text(Result()["error"]), testing::HasSubstr("Q:\\borta\\l.txt"));
}

TEST_F(UninstallProgramTest, EndsWithACodeOfItsOwnWhereNothingIsInstalled)
{
    EXPECT_EQ(RunProgram("", {{BoxKind::Critical, "Avinstallation av ", kNoLog}}),
              ExitCode::NothingInstalled);
    EXPECT_THAT(lists.events, IsEmpty());
}

TEST_F(UninstallProgramTest, EndsWithAnotherOneWhereTheProductHasGoneAlready)
{
    memory.files.Put(kUninstaller, "uninstaller");
    RemoveAtRestart(kUninstaller);
    const Text gone = "Programmet har redan avinstallerats. Det som finns kvar tas bort när datorn "
                      "startas om.";
    EXPECT_EQ(RunProgram("", {{BoxKind::Critical, "Avinstallation av ", gone}}),
              ExitCode::AlreadyUninstalled);
    ASSERT_EQ(Install(), ExitCode::Done);
    RemoveAtRestart(kLog);
    EXPECT_EQ(RunProgram("", {{BoxKind::Critical, kTitle, gone}}), ExitCode::AlreadyUninstalled);
    EXPECT_TRUE(files.FileExists(kMain + "\\Bin\\prog.exe"));
}

TEST_F(UninstallProgramTest, IsStillThereWhereItsFileIsToBeReplacedAlone)
{
    memory.files.Put(kUninstaller, "uninstaller");
    target.MakeKey(RestartMovesKey());
    target.WriteValue(RestartMovesKey(), kRestartMoves,
                      {7, TextData("\\??\\" + kUninstaller).bytes +
                              TextData("!\\??\\" + kMain + "\\NY.EXE").bytes +
                              std::string(2, '\0')});
    EXPECT_EQ(RunProgram("", {{BoxKind::Critical, "Avinstallation av ", kNoLog}}),
              ExitCode::NothingInstalled);
}

TEST_F(UninstallProgramTest, WaitsForNoOtherSetup)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const test::MachineState before = State();
    otherSetupRuns = true;
    EXPECT_EQ(
        RunProgram("/LOG=\"L:\\bort.txt\"",
                   {{BoxKind::Critical, kTitle,
                     "En annan installation pågår. Vänta tills den är klar och försök igen."}}),
        ExitCode::OtherSetupRuns);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(lists.events, IsEmpty());
    EXPECT_THAT(memory.files.Get("L:\\bort.txt"),
                testing::HasSubstr("En annan installation pågår."));
}

TEST_F(UninstallProgramTest, RefusesAWrongSwitchBeforeItChangesAnything)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const test::MachineState before = State();
    otherSetupRuns = true;
    ScriptedAsk scripted({{BoxKind::Critical, kTitle, package.texts(Message::BadSwitch, "/X")}});
    const UninstallerCommand line =
        ReadUninstallerCommand("\"" + kLog + "\" /X /LOG=\"L:\\l.txt\"");
    UninstallProgram program({host, target, line, kUninstaller, otherSetupRuns});
    program.Prepare();
    EXPECT_EQ(program.Run(scripted, lists), ExitCode::BadSwitch);
    EXPECT_EQ(State(), before);
}

TEST_F(UninstallProgramTest, BelievesNoLogOfSomebodyElse)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    target.ofOthers.insert(kLog);
    EXPECT_EQ(RunProgram("", {{BoxKind::Critical, "Avinstallation av ", kNoLog}}),
              ExitCode::Failed);
    EXPECT_TRUE(files.FileExists(kMain + "\\Bin\\prog.exe"));
}

// What an installation writes over or shares, and what is no longer as it left it.
TEST_F(UninstallProgramTest, ListsOnlyWhatReallyGoes)
{
    memory.files.Put("C:\\WINDOWS\\gammal.dll", "gammal", {2003, 1, 1, 0, 0, 0});
    AddFile("gammal.dll", "%WINDIR", "ny");
    AddFile("delad.dll", "%SYSDIR", "delad", "S");
    AddFile("ensam.dll", "%SYSDIR", "ensam", "S");
    AddFile("borta.txt", "%DESTDIR", "borta");
    AddFile("kvar.txt", "%DESTDIR\\Kvar", "kvar", "*");
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Nytt=\"1\"\r\n"
                             "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Gammalt=\"1\"\r\n"
                             "UNINSTALL=HKEY_CURRENT_USER\\Firma\r\n"
                             "UNINSTALL=HKEY_CURRENT_USER\\Annan :: Namn\r\n"
                             "UNINSTALL=HKEY_CURRENT_USER\\Finns inte";
    project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nx=1\r\ny=2";
    memory.files.Put("C:\\WINDOWS\\A.INI", "[S]\r\ny=1\r\n");
    const RegistryKey firma{RegistryRoot::LocalMachine, "SOFTWARE\\Firma"};
    target.MakeKey(firma);
    target.WriteValue(firma, "Gammalt", TextData("före"));
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.RemoveFile(kMain + "\\borta.txt");
    target.WriteValue(SharedFilesKey(), "C:\\WINDOWS\\SYSTEM32\\delad.dll", NumberData(2));
    const RegistryKey user{RegistryRoot::CurrentUser, "Firma"};
    target.MakeKey(user);
    const RegistryKey other{RegistryRoot::CurrentUser, "Annan"};
    target.MakeKey(other);
    target.WriteValue(other, "Namn", TextData("x"));
    const auto product = ReadInstalledProduct(files, kLog);
    ASSERT_TRUE(product);
    EXPECT_THAT(PlanRemoval(*product, host, target, kLog).Lines(),
                ElementsAre(kMain + "\\Bin\\prog.exe", "C:\\WINDOWS\\SYSTEM32\\ensam.dll",
                            kUninstaller, kMain + "\\QNS32X.BIN", kMain + "\\QNXUNIN.SHA256", kLog,
                            kMain + "\\Bin", "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Nytt",
                            "HKEY_CURRENT_USER\\Firma", "HKEY_CURRENT_USER\\Annan :: Namn",
                            "C:\\WINDOWS\\A.INI [S] x"));
}

TEST_F(UninstallProgramTest, TellsProgramsHowItEnded)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const Text logs = "/LOG=L:\\l.txt /LOGJSON=L:\\a.json /RESULT=L:\\r.json ";
    EXPECT_EQ(RunProgram(logs + "/FEL", {{BoxKind::Critical, kTitle}}), ExitCode::BadSwitch);
    EXPECT_EQ(Result()["result"], "bad switch");
    EXPECT_THAT(Result()["error"].get<std::string>(), testing::HasSubstr("'/FEL'"));
    EXPECT_THAT(memory.files.Get("L:\\l.txt"), testing::HasSubstr("'/FEL'"));
    otherSetupRuns = true;
    EXPECT_EQ(RunProgram(logs, {{BoxKind::Critical, kTitle}}), ExitCode::OtherSetupRuns);
    EXPECT_EQ(Result()["result"], "another setup runs");
    otherSetupRuns = false;
    lists.goesOn = false;
    EXPECT_EQ(RunProgram(logs), ExitCode::Cancelled);
    EXPECT_EQ(Result()["result"], "cancelled");
    lists.goesOn = true;
    EXPECT_EQ(RunProgram(logs + "/SUPPRESSMSGBOXES"), ExitCode::Done);
    EXPECT_EQ(Result()["result"], "done");
    EXPECT_EQ(Result()["counts"]["filesRemoved"], 5) << memory.files.Get("L:\\l.txt");
    EXPECT_THAT(memory.files.Get("L:\\a.json"), testing::EndsWith(memory.files.Get("L:\\r.json")));
    EXPECT_EQ(RunProgram(logs + "/SUPPRESSMSGBOXES"), ExitCode::NothingInstalled);
    EXPECT_EQ(Result()["code"], 1605);
}

TEST_F(UninstallProgramTest, EndsWithTheGivenCodeWhereARestartIsDue)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    files.inUse.insert(kMain + "\\Bin\\prog.exe");
    EXPECT_EQ(RunProgram("/RESTARTEXITCODE=77 /RESULT=L:\\r.json"), ExitCode{77});
    EXPECT_EQ(Result()["code"], 77);
    EXPECT_EQ(Result()["restart"], true);
}

TEST_F(UninstallProgramTest, TellsAFailureToPrograms)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const UninstallerCommand line = ReadUninstallerCommand("\"" + kLog + "\" /RESULT=L:\\r.json");
    UninstallProgram program({host, target, line, kUninstaller});
    program.Prepare();
    const Text text = program.Fail(RunError(ErrorNumber::kPermissionDenied, "C:\\x"));
    EXPECT_THAT(text, testing::StartsWith("Avinstallationen misslyckades ("));
    EXPECT_EQ(Result()["code"], 1603);
    EXPECT_EQ(Result()["error"], text);
}

TEST_F(UninstallProgramTest, ShowsItsSwitchesAndTheVersionAndRemovesNothing)
{
    project.Version.ProductVersion = "1.2";
    ASSERT_EQ(Install(), ExitCode::Done);
    const test::MachineState before = State();
    otherSetupRuns = true; // it does not wait for that one
    EXPECT_EQ(RunProgram("/version", {{BoxKind::Inform, kTitle, "Exempel, version 1.2"}}),
              ExitCode::Done);
    EXPECT_EQ(RunProgram("/? /LOG=L:\\l.txt", {{BoxKind::Inform, kTitle}}), ExitCode::Done);
    const Text log = memory.files.Get("L:\\l.txt");
    EXPECT_THAT(log, testing::HasSubstr("Växlar:"));
    EXPECT_THAT(log, testing::HasSubstr("/version  visar versionen"));
    EXPECT_THAT(log, testing::Not(testing::HasSubstr("/PLAN")));
    EXPECT_TRUE(lists.events.empty());
    memory.files.RemoveFile("L:\\l.txt");
    EXPECT_EQ(State(), before);
}

TEST_F(UninstallProgramTest, LeavesTheProgramOfAnotherProductOutOfTheList)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    project.ProjectName.ProjectName = "Annat";
    ASSERT_EQ(Install(), ExitCode::Done);
    const auto product = ReadInstalledProduct(files, kLog);
    ASSERT_TRUE(product);
    EXPECT_THAT(PlanRemoval(*product, host, target, kLog).Lines(),
                ElementsAre(kMain + "\\Bin\\prog.exe", kLog, kMain + "\\Bin"));
}

} // namespace
} // namespace quillon
