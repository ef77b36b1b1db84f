// /PLAN: what an installation would do, and that nothing of it is done.
#include "runtime/support/unattended_fixture.h"

#include "runtime/uninstall_entry_key.h"

#include <gmock/gmock.h>

namespace quillon {

using nlohmann::json;
using test::BoxKind;
using test::ScriptedAsk;

namespace {

using test::kMain;
const Text kTitle = "Installation av Exempel";

} // namespace

class PlanReportTest : public test::UnattendedFixture {};

TEST_F(PlanReportTest, PlansAndDoesNothing)
{
    AddFile("ny.sys", "%SYSDIR", "s");
    package.rows.back().component = "1";
    package.setup.UseComponents = kOn;
    project.FileComponents[0].Comp = 1;
    project.FileComponents[0].CompName = "Ett";
    project.FileComponents[0].CompDefault = 0;
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\Software\\Firma :: Namn=\"Värde\"";
    project.Lists.INIFiles = "-- prov.ini --\r\n[Del]\r\nNamn=värde\r\n";
    ScriptedAsk script({{BoxKind::Inform, kTitle,
                         "Planen har skrivits till L:\\plan.json. Ingenting har installerats."}});
    ask = &script;
    otherSetupRuns = true;
    EXPECT_EQ(RunInVain("/PLAN=L:\\plan.json"), ExitCode::Done) << Log();
    const json plan = json::parse(BytesOf("L:\\plan.json"));
    EXPECT_EQ(plan["product"], "Exempel");
    EXPECT_EQ(plan["scope"], "project");
    EXPECT_EQ(plan["mainFolder"], kMain);
    EXPECT_EQ(plan["bytes"], 7);
    EXPECT_EQ(plan["uninstaller"], true);
    EXPECT_EQ(plan["record"], kMain + "\\QNXUNIN.LOG");
    ASSERT_EQ(plan["files"].size(), 1U);
    EXPECT_EQ(plan["files"][0]["path"], kMain + "\\bin\\prog.exe");
    EXPECT_EQ(plan["files"][0]["size"], 7);
    EXPECT_EQ(plan["files"][0]["exists"], false);
    EXPECT_EQ(plan["registry"][0]["key"], "HKEY_LOCAL_MACHINE\\Software\\Firma");
    EXPECT_EQ(plan["registry"][0]["action"], "write");
    EXPECT_EQ(plan["ini"][0]["file"], "C:\\WINDOWS\\prov.ini");
    EXPECT_EQ(plan["skipped"][0]["reason"], "Skip_ComponentOff");
}

TEST_F(PlanReportTest, PlansWhatRunsBesideCopying)
{
    AddFile("gammal.txt", "%DESTDIR", "old");
    AddFile("egen.txt", "%DESTDIR", "own");
    AddFile("MDAC_TYP.ZIP", "%DESTDIR", "mdac");
    AddFile("brev.ttf", "%DESTDIR", "font", "F");
    package.rows[0].iconMarker = "IKON";
    package.rows[0].iconTitle = "Exempel";
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    memory.files.Put(kMain + "\\egen.txt", "changed");
    package.rows.erase(package.rows.begin() + 1, package.rows.begin() + 3);
    package.rows[0].iconTitle = "Nytt namn";
    project.InstallOptions.DeleteProgGroup = kOn;
    project.InstallOptions.RestartWindows = kOn;
    project.Lists.RunScriptBefore = "LOG \"ett\"\r\n\r\n  LOG \"två\"\r\n";
    project.Lists.RunScriptAfter = "LOG \"tre\"";
    project.Lists.AutoexecBat = "SET A=%DESTDIR\r\n";
    project.RunAppSelfX.ProgramFilename = "licens.exe";
    project.RunAppSelfX.VisibleWin = kOff;
    project.RunAppAfter.AppFileName1 = "%DESTDIR\\bin\\prog.exe";
    project.RunAppAfter.AppParam1 = " /x ";
    project.ShowDocAfter.DocFileName = "%DESTDIR\\egen.txt";
    ScriptedAsk script({{BoxKind::Inform, kTitle}});
    ask = &script;
    EXPECT_EQ(RunInVain("/PLAN=L:\\plan.json"), ExitCode::Done) << Log();
    const json plan = json::parse(BytesOf("L:\\plan.json"));
    EXPECT_EQ(plan["entry"], KeyText(UninstallEntryKey("Exempel")));
    EXPECT_EQ(plan["restart"], "always");
    EXPECT_EQ(plan["fonts"], json({kMain + "\\brev.ttf"}));
    EXPECT_EQ(plan["scriptBefore"], json({"LOG \"ett\"", "LOG \"två\""}));
    EXPECT_EQ(plan["scriptAfter"], json({"LOG \"tre\""}));
    EXPECT_EQ(plan["programs"].dump(),
              json({{{"path", "licens.exe"}, {"when", "before"}},
                    {{"path", kMain + "\\MDAC_TYP.ZIP"}, {"when", "after"}},
                    {{"arguments", "/x"}, {"path", kMain + "\\bin\\prog.exe"}, {"when", "after"}},
                    {{"path", kMain + "\\egen.txt"}, {"when", "document"}}})
                  .dump());
    EXPECT_EQ(plan["filesRemoved"], json({kMain + "\\gammal.txt"}));
    EXPECT_EQ(plan["shortcutsRemoved"],
              json({"C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\Exempel.lnk"}));
    EXPECT_TRUE(plan["startupLines"].empty());
    std::map<std::string, std::string> skipped;
    for (const json& part : plan["skipped"])
        skipped[part["subject"]] = part["reason"];
    EXPECT_EQ(skipped[kMain + "\\egen.txt"], "Skip_ChangedFile");
    EXPECT_EQ(skipped["raderna till AUTOEXEC.BAT"], "Skip_NoStartupFiles");
    // The installation itself does what the plan says.
    ask = nullptr;
    project.RunAppSelfX.ProgramFilename.clear();
    project.InstallOptions.RestartWindows = kOff;
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_FALSE(files.FileExists(kMain + "\\gammal.txt"));
    EXPECT_TRUE(files.FileExists(kMain + "\\egen.txt"));
    EXPECT_FALSE(files.FileExists("C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\Exempel.lnk"));
}

TEST_F(PlanReportTest, PlansForOldWindowsAndForSilence)
{
    target.system = SystemKind::Win98;
    memory.files.Put("C:\\CONFIG.SYS", "FILES=60\r\n");
    project.Lists.AutoexecBat = "SET A=%DESTDIR\r\n";
    project.Lists.ConfigSys = "files=60\r\nBUFFERS=20\r\n";
    project.RunAppSelfX.ProgramFilename = "licens.exe";
    project.RunAppSelfX.VisibleWin = kOn;
    project.RunAppAfter.AppFileName2 = "%DESTDIR\\bin\\prog.exe";
    project.ShowDocAfter.DocFileName = "%DESTDIR\\egen.txt";
    EXPECT_EQ(RunInVain("/S /PLAN=L:\\plan.json"), ExitCode::Done) << Log();
    const json plan = json::parse(BytesOf("L:\\plan.json"));
    EXPECT_EQ(plan["startupLines"],
              json({{{"file", "C:\\AUTOEXEC.BAT"}, {"line", "SET A=" + kMain}},
                    {{"file", "C:\\CONFIG.SYS"}, {"line", "BUFFERS=20"}}}));
    EXPECT_TRUE(plan["programs"].empty());
    ASSERT_EQ(plan["skipped"].size(), 3U);
    for (const json& part : plan["skipped"])
        EXPECT_EQ(part["reason"], "Skip_Silent");
    EXPECT_EQ(plan["restart"], "ifNeeded");
}

TEST_F(PlanReportTest, PlansWithTheCodesOfTheFolderAndOfTheHelpers)
{
    target.ofOthers.insert("C:\\Program");
    EXPECT_EQ(RunInVain("/S /PLAN=L:\\plan.json"), ExitCode::Failed);
    target.ofOthers.clear();
    memory.files.RemoveFile("D:\\Paket\\QNXUNIN.BIN");
    EXPECT_EQ(RunInVain("/S /PLAN=L:\\plan.json"), ExitCode::DamagedPackage);
    EXPECT_FALSE(files.FileExists("L:\\plan.json"));
}

TEST_F(PlanReportTest, PlansIntoANewFileWhereNoneIsNamed)
{
    memory.files.PutFolder("C:\\TEMP");
    ASSERT_EQ(Install("/S /PLAN"), ExitCode::Done) << Log();
    std::vector<Text> names;
    for (const FolderEntry& entry : files.List("C:\\TEMP"))
        names.push_back(entry.name);
    ASSERT_EQ(names.size(), 1U);
    EXPECT_THAT(names[0], testing::StartsWith("QNSETUP-"));
    EXPECT_THAT(names[0], testing::EndsWith(".JSON"));
}

TEST_F(PlanReportTest, PlansWithTheCodeThatTheInstallationWouldHave)
{
    project.TargetOS.TargetOS_Win2000 = kOff;
    project.TargetOS.TargetOS_StopIfWrong = kOn;
    EXPECT_EQ(RunInVain("/S /PLAN=L:\\plan.json"), ExitCode::WrongSystem);
    EXPECT_EQ(BytesOf("L:\\plan.json"), "<none>");
}

} // namespace quillon
