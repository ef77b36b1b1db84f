// The setup as deployment tools run it: its switches, the codes it ends with, and the log that it
// writes for programs.
#include "runtime/support/scripted_pages.h"
#include "runtime/support/unattended_fixture.h"

#include "platform/run_error.h"
#include "runtime/uninstall_entry_key.h"

#include <gmock/gmock.h>

namespace quillon {

using nlohmann::json;
using test::BoxKind;
using test::MachineState;
using test::ScriptedAsk;
using test::ScriptedPages;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

using test::kMain;
const Text kTitle = "Installation av Exempel";

} // namespace

class UnattendedTest : public test::UnattendedFixture {};

TEST_F(UnattendedTest, EndsWithTheGivenCodeWhereARestartIsDue)
{
    memory.files.Put(kMain + "\\bin\\prog.exe", "old", {2003, 1, 1, 0, 0, 0});
    package.rows[0].copyOptions = "A";
    files.inUse.insert(kMain + "\\bin\\prog.exe");
    EXPECT_EQ(Install("/S /RESTARTEXITCODE=77 /RESULT=L:\\r.json"), ExitCode{77}) << Log();
    const json last = Records("L:\\r.json").at(0);
    EXPECT_EQ(last["code"], 77);
    EXPECT_EQ(last["result"], "done");
    EXPECT_EQ(last["restart"], true);
    EXPECT_EQ(last["counts"]["filesAtRestart"], 1);
}

TEST_F(UnattendedTest, ShowsItsSwitches)
{
    ScriptedAsk script({{BoxKind::Inform, kTitle}});
    ask = &script;
    EXPECT_EQ(RunInVain("/?"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Växlar:"));
    EXPECT_THAT(Log(), HasSubstr("/PLAN, /PLAN=  skriver vad som skulle göras, och gör ingenting"));
    ask = nullptr;
    EXPECT_EQ(RunInVain("/S /?"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("/uninstall  avinstallerar programmet"));
}

TEST_F(UnattendedTest, ShowsItsVersion)
{
    project.Version.ProductVersion = "1.2";
    ScriptedAsk script({{BoxKind::Inform, kTitle, "Exempel, version 1.2"}});
    ask = &script;
    EXPECT_EQ(RunInVain("/version"), ExitCode::Done);
    package.setup.XProductVersion = "1.3";
    ask = nullptr;
    EXPECT_EQ(RunInVain("/S -version"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Exempel, version 1.3"));
}

TEST_F(UnattendedTest, InstallsForTheCurrentUserAlone)
{
    project.Lists.Registry = "HKEY_CURRENT_USER\\Software\\Firma :: Namn=\"Värde\"";
    package.rows[0].iconMarker = "IKON";
    package.rows[0].iconTitle = "Exempel";
    project.ProgramGroup.ProgramGroup_AllUsers = kOn;
    memory.files.PutFolder("C:\\Data\\Local");
    target.keys[{RegistryRoot::CurrentUser, "software"}] = {"SOFTWARE", {}};
    const MachineState before = State();
    EXPECT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    const Text folder = "C:\\Data\\Local\\Programs\\Exempel";
    EXPECT_TRUE(files.FileExists(folder + "\\bin\\prog.exe"));
    EXPECT_TRUE(files.FileExists("C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\Exempel.lnk"));
    EXPECT_EQ(
        target.TextAt(UninstallEntryKey("Exempel", InstallScope::CurrentUser), "InstallLocation"),
        folder);
    EXPECT_EQ(target.TextAt(UninstallEntryKey("Exempel"), "InstallLocation"), "<none>");
    EXPECT_EQ(UninstallProduct(folder + "\\QNXUNIN.LOG"), ExitCode::Done) << Log();
    EXPECT_EQ(State(), before);
}

TEST_F(UnattendedTest, DoesNotInstallForTheCurrentUserWhatTheMachineShares)
{
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\Software\\Firma :: Namn=\"Värde\"";
    EXPECT_EQ(RunInVain("/S /CURRENTUSER"), ExitCode::Forbidden);
    EXPECT_THAT(Log(), HasSubstr("Programmet kan inte installeras bara för den aktuella användaren "
                                 "(HKEY_LOCAL_MACHINE\\Software\\Firma)."));
    project.Lists.Registry.clear();
    for (const char* options : {"R", "S", "F"}) {
        package.rows[0].copyOptions = options;
        EXPECT_EQ(RunInVain("/S /CURRENTUSER"), ExitCode::Forbidden) << options;
    }
    package.rows[0].copyOptions = "";
    package.rows[0].destination = "%SYSDIR";
    EXPECT_EQ(RunInVain("/S /CURRENTUSER"), ExitCode::Forbidden);
    EXPECT_EQ(Install("/S /ALLUSERS"), ExitCode::Done) << Log();
}

TEST_F(UnattendedTest, InstallsForAllUsersWhereTheSystemKnowsThem)
{
    package.rows[0].iconMarker = "IKON";
    package.rows[0].iconTitle = "Exempel";
    memory.files.PutFolder("C:\\Alla\\Start-meny\\Program");
    target.hasCommonFolders = false;
    EXPECT_EQ(RunInVain("/S /ALLUSERS"), ExitCode::Forbidden);
    EXPECT_THAT(Log(), HasSubstr("Programmet kan inte installeras för alla användare på den här "
                                 "datorn."));
    target.hasCommonFolders = true;
    EXPECT_EQ(Install("/S /ALLUSERS"), ExitCode::Done) << Log();
    EXPECT_TRUE(files.FileExists("C:\\Alla\\Start-meny\\Program\\Exempelgrupp\\Exempel.lnk"));
}

TEST_F(UnattendedTest, StartsTheUninstallerAndEndsWithItsCode)
{
    EXPECT_EQ(RunInVain("/S /uninstall"), ExitCode::NothingInstalled);
    EXPECT_THAT(Log(), HasSubstr("Exempel är inte installerat."));
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    codeOfStarted = 3010;
    EXPECT_EQ(RunInVain("/S /uninstall /LOGJSON=L:\\a.json"), ExitCode::RestartNeeded);
    EXPECT_THAT(started, ElementsAre(kMain + "\\QNXUNIN.EXE \"" + kMain +
                                     "\\QNXUNIN.LOG\" /S /LOG=\"L:\\logg.txt\" "
                                     "/LOGJSON=\"L:\\a.json\""));
    target.ofOthers.insert(kMain + "\\QNXUNIN.EXE");
    EXPECT_EQ(RunInVain("/S /uninstall"), ExitCode::AlreadyUninstalled);
    target.ofOthers.clear();
    memory.files.RemoveFile(kMain + "\\QNXUNIN.EXE");
    EXPECT_EQ(RunInVain("/S /uninstall"), ExitCode::AlreadyUninstalled);
    EXPECT_THAT(Log(), HasSubstr("Exempel kan inte avinstalleras. Filen '" + kMain +
                                 "\\QNXUNIN.EXE' saknas"));
    EXPECT_EQ(started.size(), 1U);
}

TEST_F(UnattendedTest, UnpacksWhatItHoldsAndInstallsNothing)
{
    AddFile("system.dll", "%SYSDIR\\Sub", "dll");
    AddFile("prog.exe", "%DESTDIR\\bin", "twin");
    AddFile("data.txt", "D:\\..\\Data", "text");
    package.rows.back().destination = "D:\\Data";
    AddFolder("%DESTDIR\\tom");
    EXPECT_EQ(RunInVain("/S /extract:L:\\ut"), ExitCode::Done) << Log();
    EXPECT_EQ(BytesOf("L:\\ut\\bin\\prog.exe"), "program");
    EXPECT_EQ(BytesOf("L:\\ut\\bin\\prog.exe.3"), "twin");
    EXPECT_EQ(BytesOf("L:\\ut\\SYSDIR\\Sub\\system.dll"), "dll");
    EXPECT_EQ(BytesOf("L:\\ut\\D\\Data\\data.txt"), "text");
    EXPECT_TRUE(files.DirExists("L:\\ut\\tom"));
    EXPECT_EQ(files.Status("L:\\ut\\bin\\prog.exe").modified, (LocalTime{2004, 1, 2, 3, 4, 6}));
    EXPECT_EQ(RunInVain("/S /extract:L:\\ut"), ExitCode::Failed);
    EXPECT_THAT(Log(), HasSubstr("Mappen 'L:\\ut' är inte tom."));
}

TEST_F(UnattendedTest, UnpacksNothingOfADamagedPackage)
{
    damagedEntry = 0;
    EXPECT_EQ(RunInVain("/S /extract:L:\\ut"), ExitCode::DamagedPackage);
    EXPECT_FALSE(files.DirExists("L:\\ut"));
}

TEST_F(UnattendedTest, LogsEachActionForPrograms)
{
    AddFile("gammal.txt", "%DESTDIR", "x", "N");
    memory.files.Put(kMain + "\\gammal.txt", "y");
    ASSERT_EQ(Install("/S /LOGJSON=L:\\a.json /RESULT=L:\\r.json"), ExitCode::Done) << Log();
    const std::vector<json> records = Records("L:\\a.json");
    ASSERT_GT(records.size(), 3U);
    EXPECT_EQ(records[0]["action"], "Log_Begins");
    bool copied = false;
    bool skipped = false;
    for (const json& record : records) {
        EXPECT_THAT(record["time"].get<std::string>(),
                    testing::MatchesRegex("....-..-..T..:..:.."));
        copied = copied || (record["action"] == "Log_Copies" &&
                            record["subject"] == kMain + "\\bin\\prog.exe");
        if (record["action"] == "Log_Skips") {
            skipped = true;
            EXPECT_EQ(record["subject"], kMain + "\\gammal.txt");
            EXPECT_EQ(record["reason"], "Skip_NeverReplaced");
        }
    }
    EXPECT_TRUE(copied);
    EXPECT_TRUE(skipped);
    const json& last = records.back();
    EXPECT_EQ(last["action"], "result");
    EXPECT_EQ(last["result"], "done");
    EXPECT_EQ(last["code"], 0);
    EXPECT_EQ(last["restart"], false);
    EXPECT_EQ(last["counts"]["files"], 1);
    EXPECT_EQ(last["counts"]["skipped"], 1);
    EXPECT_EQ(Records("L:\\r.json"), std::vector<json>{last});
}

// Whatever an installation leaves on the machine stands in the log.
TEST_F(UnattendedTest, LogsWhatTheSetupAddsByItself)
{
    AddFile("delad.dll", "%DESTDIR", "shared", "S");
    AddFile("brev.ttf", "%DESTDIR", "font", "F");
    package.rows.back().iconTitle = "Brev";
    AddFile("sen.dll", "%DESTDIR", "registers later", "AR");
    memory.files.Put(kMain + "\\sen.dll", "old");
    files.inUse.insert(kMain + "\\sen.dll");
    project.Lists.RunScriptAfter = "LOG \"klart så långt\"";
    project.Lists.Registry = "HKEY_CURRENT_USER\\Firma :: Namn=\"Värde\"\r\n"
                             "DELETE=HKEY_CURRENT_USER\\Finns ej\r\n";
    ASSERT_EQ(Install("/S /LOGJSON=L:\\a.json"), ExitCode::RestartNeeded) << Log();
    std::map<std::string, std::vector<std::string>> subjects;
    for (const json& record : Records("L:\\a.json"))
        if (record.contains("subject"))
            subjects[record["action"]].push_back(record["subject"]);
    EXPECT_THAT(subjects["Log_WritesOwnFile"],
                testing::UnorderedElementsAre(kMain + "\\QNXUNIN.EXE", kMain + "\\QNS32X.BIN",
                                              kMain + "\\QNXUNIN.SHA256", kMain + "\\QNXREG2.EXE",
                                              kMain + "\\QNXUNIN.LOG"));
    const std::vector<std::string>& values = subjects["Log_WritesRegistry"];
    const Text current = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
    const Text entry = KeyText(UninstallEntryKey("Exempel")) + " :: ";
    for (const Text& value :
         {entry + "DisplayName", entry + "UninstallString", entry + "EstimatedSize",
          current + "SharedDLLs :: " + kMain + "\\delad.dll",
          current + "RunOnce :: QNXREG2 Exempel", Text("HKEY_CURRENT_USER\\Firma :: Namn"),
          Text("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts :: "
               "Brev (TrueType)")})
        EXPECT_THAT(values, testing::Contains(value).Times(1));
    EXPECT_EQ(Records("L:\\a.json").back()["counts"]["registryWritten"], values.size());
    EXPECT_THAT(subjects["Log_RemovesRegistry"], testing::IsEmpty()) << "there was nothing";
    EXPECT_THAT(subjects["Log_Note"], ElementsAre("klart så långt"));
}

TEST_F(UnattendedTest, TellsTheResultOfWhatFailsToo)
{
    struct Case {
        Text switches;
        int code;
        const char* result;
    };
    damagedEntry = 0;
    for (const Case& one : {Case{"/FEL", 1639, "bad switch"}, Case{"", 20001, "damaged package"},
                            Case{"/uninstall", 1605, "not installed"}}) {
        RunInVain("/S /RESULT=L:\\r.json " + one.switches);
        const json last = Records("L:\\r.json").at(0);
        EXPECT_EQ(last["code"], one.code);
        EXPECT_EQ(last["result"], one.result);
        EXPECT_NE(last["error"], "");
    }
    EXPECT_EQ(RunInVain("/S /LOG=Q:\\borta\\l.txt /RESULT=L:\\r.json"), ExitCode::Failed);
    EXPECT_EQ(Records("L:\\r.json").at(0)["code"], 1603);
    EXPECT_THAT(Text(Records("L:\\r.json").at(0)["error"]), HasSubstr("Q:\\borta\\l.txt"));
    otherSetupRuns = true;
    EXPECT_EQ(RunInVain("/S /RESULT=L:\\r.json"), ExitCode::OtherSetupRuns);
    EXPECT_EQ(Records("L:\\r.json").at(0)["result"], "another setup runs");
}

TEST_F(UnattendedTest, WritesItsResultWithoutALog)
{
    JsonLog(memory.files, memory.machine, {{}, {}, "L:\\r.json"})
        .End(ExitCode::Failed, RunEnd::Stopped, "ingen mapp");
    const json last = Records("L:\\r.json").at(0);
    EXPECT_EQ(last["action"], "result");
    EXPECT_EQ(last["result"], "failed");
    EXPECT_EQ(last["code"], 1603);
    EXPECT_EQ(last["error"], "ingen mapp");
    // None was asked for, and one that can't be written.
    JsonLog(memory.files, memory.machine, {}).End(ExitCode::Failed, RunEnd::Stopped, "ingen mapp");
    EXPECT_THROW(JsonLog(memory.files, memory.machine, {{}, {}, "Q:\\borta\\r.json"}), RunError);
    EXPECT_FALSE(memory.files.FileExists("Q:\\borta\\r.json"));
}

// Before the pages there is a private folder to make, for instance.
TEST_F(UnattendedTest, WritesItsLogsAlsoWhereItComesToNothing)
{
    const Switches switches =
        ReadSwitches("/S /LOG=L:\\logg.txt /LOGJSON=L:\\a.json /RESULT=L:\\r.json");
    const RunError full(ErrorNumber::kDiskFull, "C:\\TEMP\\QN1.TMP");
    const SetupFailure failure = FailBeforeSetup(host, switches, full, package.texts);
    EXPECT_EQ(failure.Code(), ExitCode::DiskFull);
    EXPECT_STREQ(failure.what(), "Det finns inte tillräckligt med ledigt utrymme "
                                 "(C:\\TEMP\\QN1.TMP). Frigör utrymme och försök igen.");
    EXPECT_THAT(Log(), HasSubstr(Text("Avslutar med kod 112: ") + failure.what()));
    for (const char* file : {"L:\\a.json", "L:\\r.json"})
        EXPECT_EQ(Records(file).back()["result"], "disk full") << file;
    // Also where one of them can't be made.
    const Switches nowhere = ReadSwitches("/S /LOG=Q:\\logg.txt /RESULT=L:\\r.json");
    EXPECT_EQ(FailBeforeSetup(host, nowhere, std::bad_alloc(), package.texts).Code(),
              ExitCode::Failed);
    EXPECT_EQ(Records("L:\\r.json").at(0)["code"], 1603);
}

TEST_F(UnattendedTest, NamesNoPasswordAnywhere)
{
    project.DialogBoxes.PasswordDlg = 1;
    project.DialogBoxData.CorrectPassword = "Hemligt";
    for (const char* password :
         {"/PASSWORD=Hemligt", "/PASSWORD=Fel-Hemligt", "/PASSWORDS=Hemligt", "/PASWORD=Hemligt",
          "/PWD=Hemligt", "/PASSWORD=Mitt Hemligt", "/PASSWORD=Mitt -Hemligt"}) {
        Install(Text("/S /LOGJSON=L:\\a.json /RESULT=L:\\r.json /SAVEINF=L:\\svar.inf "
                     "/PLAN=L:\\plan.json ") +
                password);
        for (const char* file :
             {"L:\\logg.txt", "L:\\a.json", "L:\\r.json", "L:\\svar.inf", "L:\\plan.json"})
            EXPECT_THAT(BytesOf(file), Not(HasSubstr("Hemligt"))) << file << password;
    }
}

TEST_F(UnattendedTest, ShowsNoBoxesWhereTheyAreSuppressed)
{
    memory.files.Put(kMain + "\\bin\\prog.exe", "old", {2003, 1, 1, 0, 0, 0});
    package.rows[0].copyOptions = "X";
    ScriptedAsk nobody;
    ask = &nobody;
    EXPECT_EQ(Install("/SUPPRESSMSGBOXES"), ExitCode::Done) << Log();
    EXPECT_EQ(BytesOf(kMain + "\\bin\\prog.exe"), "old");
    EXPECT_EQ(Install("/SUPPRESSMSGBOXES /FEL"), ExitCode::BadSwitch);
}

TEST_F(UnattendedTest, LetsNobodyCancelWhereThatIsNotWanted)
{
    project.DialogBoxes.WelcomeDlg = project.DialogBoxes.LicenseInfoDlg = 1;
    ScriptedPages shown({{PageKind::Welcome}, {PageKind::LicenseInfo}});
    pages = &shown;
    ScriptedAsk nobody;
    ask = &nobody;
    project.DialogBoxes.DestinationDlg = project.DialogBoxes.InstallCompletedDlg = 0;
    EXPECT_EQ(Install("/NOCANCEL"), ExitCode::Done) << Log();
    EXPECT_FALSE(shown.shown[0].canCancel);
    EXPECT_TRUE(shown.shown[1].canCancel) << "an agreement can be declined";
}

TEST_F(UnattendedTest, WritesALogOfItsOwnNameWhereNoneIsGiven)
{
    Switches switches = ReadSwitches("/LOG");
    const Text path = LogFilesOf(switches, files, memory.machine, "QNSETUP").readable;
    EXPECT_THAT(path, testing::MatchesRegex("C:.TEMP.QNSETUP-........-.......LOG"));
    memory.files.Put(path, "");
    EXPECT_EQ(LogFilesOf(switches, files, memory.machine, "QNSETUP").readable,
              path.substr(0, path.size() - 4) + "-2.LOG");
    EXPECT_EQ(LogFilesOf(ReadSwitches("/S"), files, memory.machine, "QNSETUP").readable, "");
}

} // namespace quillon
