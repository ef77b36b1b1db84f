// The switches and codes of deployment tools, by what they leave on the machine: files, registry,
// shortcuts and logs.
#include "wine/driven_setup.h"
#include "wine/setup_switches.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST_F(SetupSwitches, InstallForTheUserOrForAll)
{
    Make();
    ASSERT_EQ(Setup("/S /CURRENTUSER"), 0U);
    const auto folder = RegistryText(prefix).Value(kForUser, "InstallLocation");
    ASSERT_TRUE(folder);
    EXPECT_THAT(*folder, testing::EndsWith("\\Programs\\Provpaket Åäö"));
    EXPECT_TRUE(Has(*folder + "\\Data\\a.txt"));
    EXPECT_FALSE(IsThere());
    EXPECT_TRUE(HasShortcut(prefix.OnHost("C:\\users"), "Provet.lnk"));
    EXPECT_FALSE(HasShortcut(prefix.OnHost("C:\\ProgramData"), "Provet.lnk"));
    // The setup and the uninstaller both find it there.
    EXPECT_EQ(Setup("/S /uninstall"), 0U);
    prefix.WaitForAll();
    EXPECT_FALSE(RegistryText(prefix).HasKey(kForUser));
    EXPECT_FALSE(Has(*folder));

    ASSERT_EQ(Setup("/S -allusers"), 0U);
    EXPECT_TRUE(RegistryText(prefix).HasKey(kForAll));
    EXPECT_FALSE(RegistryText(prefix).HasKey(kForUser));
    EXPECT_TRUE(HasShortcut(prefix.OnHost("C:\\ProgramData"), "Provet.lnk"));
    EXPECT_EQ(Uninstall("/S"), 0U);
    EXPECT_FALSE(IsThere());
    EXPECT_FALSE(HasShortcut(prefix.OnHost("C:\\ProgramData"), "Provet.lnk"));
}

TEST_F(SetupSwitches, InstallNothingForOneUserThatAllShare)
{
    product.project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Prov :: Mapp=\"%DESTDIR\"";
    Make();
    EXPECT_EQ(Setup("/S /CURRENTUSER /RESULT=C:\\r.json"), 1625U);
    EXPECT_EQ(Result()["result"], "forbidden");
    EXPECT_FALSE(RegistryText(prefix).HasKey("HKLM\\Software\\Prov"));
    EXPECT_FALSE(RegistryText(prefix).HasKey(kForUser));
}

TEST_F(SetupSwitches, TellWhatTheyAreAndWhichVersionThisIs)
{
    Make();
    EXPECT_EQ(Setup("/S /? /LOG=C:\\l.txt"), 0U);
    EXPECT_THAT(Bytes("C:\\l.txt"), HasSubstr("/PLAN, /PLAN=  skriver vad som skulle göras"));
    EXPECT_EQ(Setup("-s -version /LOG=C:\\l.txt"), 0U);
    EXPECT_THAT(Bytes("C:\\l.txt"), HasSubstr("Provpaket Åäö, version 3.4"));
    EXPECT_FALSE(IsThere());
}

TEST_F(SetupSwitches, PlanAndUnpackWithoutInstalling)
{
    Make();
    EXPECT_EQ(Setup("/S /PLAN=C:\\plan.json /GROUP=\"Annan grupp\""), 0U);
    const json plan = json::parse(Bytes("C:\\plan.json"));
    EXPECT_EQ(plan["product"], "Provpaket Åäö");
    EXPECT_EQ(plan["mainFolder"], kMainFolder);
    EXPECT_EQ(plan["files"][0]["path"], kMainFolder + "\\Data\\a.txt");
    EXPECT_THAT(plan["programGroup"].get<std::string>(), testing::EndsWith("\\Annan grupp"));
    EXPECT_EQ(plan["registry"][0]["value"], "Mapp");

    EXPECT_EQ(Setup("/S /extract:\"C:\\ut packat\""), 0U);
    EXPECT_EQ(Bytes("C:\\ut packat\\Data\\a.txt"), "innehåll");
    EXPECT_EQ(Setup("/S /extract:\"C:\\ut packat\" /RESULT=C:\\r.json"), 1603U);
    EXPECT_THAT(Result()["error"].get<std::string>(), HasSubstr("är inte tom"));
    EXPECT_FALSE(IsThere());
}

TEST_F(SetupSwitches, StartTheUninstallerAndHandItTheLogs)
{
    Make();
    EXPECT_EQ(Setup("/S /uninstall /RESULT=C:\\r.json"), 1605U);
    EXPECT_EQ(Result()["result"], "not installed");
    ASSERT_EQ(Setup("/S"), 0U);
    EXPECT_EQ(Setup("/S /uninstall /LOG=C:\\l.txt /LOGJSON=C:\\a.json /RESULT=C:\\r.json"), 0U);
    prefix.WaitForAll();
    EXPECT_FALSE(IsThere());
    EXPECT_EQ(Result()["counts"]["filesRemoved"],
              Records("C:\\a.json").back()["counts"]["filesRemoved"]);
    EXPECT_GE(Result()["counts"]["filesRemoved"], 2);
    EXPECT_THAT(Bytes("C:\\l.txt"), HasSubstr("\\Data\\a.txt"));
    // Its entry without the program.
    ASSERT_EQ(Setup("/S"), 0U);
    fs::remove(prefix.OnHost(kMainFolder) / "QNXUNIN.EXE");
    EXPECT_EQ(Setup("/S /uninstall"), 1614U);
    // The next installation brings it again.
    EXPECT_EQ(Setup("/S"), 0U);
}

TEST_F(SetupSwitches, SaveTheAnswersAndTakeThemAgain)
{
    Make();
    ASSERT_EQ(Setup("/S /D=C:\\Egen mapp /GROUP=Gruppen /COMPONENTS=!Kanske /SAVEINF=C:\\svar.inf"),
              0U);
    EXPECT_TRUE(Has("C:\\Egen mapp\\Data\\a.txt"));
    EXPECT_EQ(Setup("/S /uninstall"), 0U);
    prefix.WaitForAll();
    EXPECT_FALSE(Has("C:\\Egen mapp"));
    ASSERT_EQ(Setup("/S /LOADINF=C:\\svar.inf"), 0U);
    EXPECT_TRUE(Has("C:\\Egen mapp\\Data\\a.txt"));
    EXPECT_FALSE(Has("C:\\Egen mapp\\Kanske\\Kanske.txt"));
    EXPECT_TRUE(HasShortcut(prefix.DriveC(), "Gruppen"));
    EXPECT_EQ(Setup("/S /LOADINF=C:\\borta.inf /RESULT=C:\\r.json"), 1639U);
    EXPECT_THAT(Result()["error"].get<std::string>(), HasSubstr("/LOADINF=C:\\borta.inf"));
}

// A setup that showed something would wait for a user, and there is none.
TEST_F(SetupSwitches, ShowNothingAndNameTheOneThatIsWrong)
{
    Make();
    UseNoScreen(prefix);
    Remember();
    for (const char* wrong :
         {"/FEL=1", "/ALLUSERS /CURRENTUSER", "/RESTARTEXITCODE=x", "/extract:ut", "/D=ut",
          "/LANG=FINNS_EJ", "/PLAN /uninstall", "/COMPONENTS=Borta"}) {
        EXPECT_EQ(Setup(std::string("/S /LOG=C:\\l.txt /RESULT=C:\\r.json ") + wrong), 1639U)
            << wrong;
        const std::string last = std::string(wrong).substr(std::string(wrong).rfind('/'));
        // The value of a switch that is none may be a password; these two are understood.
        const bool isKnown = last.starts_with("/LANG=") || last.starts_with("/COMPONENTS=");
        const std::string name = isKnown ? last : last.substr(0, last.find_first_of("=:"));
        EXPECT_THAT(Bytes("C:\\l.txt"), HasSubstr(name));
        EXPECT_EQ(Result()["code"], 1639) << wrong;
        EXPECT_THAT(Result()["error"].get<std::string>(), HasSubstr(name));
    }
    EXPECT_FALSE(IsThere());
    ASSERT_EQ(Setup("/S /SP- /SUPPRESSMSGBOXES /NOCANCEL /norestart /NOCLOSEAPPLICATIONS"), 0U);
    for (const char* wrong : {"/FEL=1", "/PLAN", "/extract:C:\\ut", "/TEST"}) {
        EXPECT_EQ(Uninstall(std::string("/S /LOG=C:\\l.txt /RESULT=C:\\r.json ") + wrong), 1639U)
            << wrong;
        EXPECT_EQ(Result()["result"], "bad switch");
        EXPECT_EQ(Result()["code"], 1639);
    }
    EXPECT_TRUE(IsThere());
}

TEST_F(SetupSwitches, EndWithTheGivenCodeWhereARestartIsDue)
{
    product.project.InstallOptions.RestartWindows = kOn;
    Make();
    EXPECT_EQ(Setup("/S /RESTARTEXITCODE=77 /RESULT=C:\\r.json"), 77U);
    EXPECT_EQ(Result()["restart"], true);
    EXPECT_EQ(Result()["result"], "done");
    EXPECT_EQ(Setup("/S /RESULT=C:\\r.json"), 3010U);
    EXPECT_EQ(Result()["code"], 3010);
}

TEST_F(SetupSwitches, LogEachActionForPrograms)
{
    product.Add("Data", "finns.txt", "ny", "N");
    Make();
    WriteBytes(prefix.DriveC() / "Program Files" / "Provpaket Åäö" / "Data" / "finns.txt",
               "gammal");
    Remember();
    ASSERT_EQ(Setup("/S /LOGJSON=C:\\a.json /RESULT=C:\\r.json"), 0U);
    const std::vector<json> records = Records("C:\\a.json");
    ASSERT_GT(records.size(), 4U);
    std::vector<std::string> reasons;
    for (const json& record : records) {
        EXPECT_TRUE(record["time"].is_string());
        if (record["action"] == "Log_Skips")
            reasons.push_back(record["reason"]);
    }
    EXPECT_THAT(reasons, ElementsAre("Skip_NeverReplaced"));
    EXPECT_EQ(records.back()["action"], "result");
    EXPECT_EQ(records.back()["counts"]["files"], 2);
    EXPECT_EQ(records.back()["counts"]["skipped"], 1);
    EXPECT_EQ(records.back()["counts"]["shortcuts"], 1);
    EXPECT_EQ(Result(), records.back());

    WriteBytes(prefix.OnHost(kMainFolder) / "Kanske" / "egen.txt", "användarens");
    EXPECT_EQ(Uninstall("/S /LOGJSON=C:\\a.json /RESULT=C:\\r.json"), 0U);
    EXPECT_EQ(Records("C:\\a.json").back(), Result());
    EXPECT_EQ(Result()["result"], "done");
    EXPECT_GE(Result()["counts"]["filesRemoved"], 2);
    EXPECT_GE(Result()["counts"]["skipped"], 1);
    // The user's own file has kept its folder.
    fs::remove_all(prefix.OnHost(kMainFolder) / "Kanske");
}

TEST_F(SetupSwitches, TellOfADamagedPackage)
{
    Make();
    std::string bytes = ReadBytes(package / "FILEDATA.DAT");
    bytes[bytes.size() / 2] ^= 1;
    WriteBytes(package / "FILEDATA.DAT", bytes);
    EXPECT_EQ(Setup("/S /RESULT=C:\\r.json"), 20001U);
    EXPECT_EQ(Result()["result"], "damaged package");
    EXPECT_FALSE(IsThere());
}

TEST_F(SetupSwitches, TellOfAMissingFrameworkThatTheProductNeeds)
{
    product.project.NET.NET_TestIfInstalled = kOn;
    product.project.NET.NET_ver11 = kOn;
    product.project.NET.NET_StopIfNoNET = kOn;
    Make();
    for (const char* place :
         {"Microsoft\\.NETFramework\\policy", "Microsoft\\NET Framework Setup\\NDP",
          "Wow6432Node\\Microsoft\\.NETFramework\\policy",
          "Wow6432Node\\Microsoft\\NET Framework Setup\\NDP"})
        prefix.RunCommandLine("reg delete \"HKLM\\SOFTWARE\\" + std::string(place) + "\" /f");
    Remember();
    EXPECT_EQ(Setup("/S /RESULT=C:\\r.json"), 20002U);
    EXPECT_EQ(Result()["code"], 20002);
    EXPECT_EQ(Result()["result"], "prerequisite missing");
    EXPECT_THAT(Result()["error"].get<std::string>(), HasSubstr("1.1"));
    EXPECT_FALSE(IsThere());
    ASSERT_EQ(prefix.RunCommandLine("reg add \"HKLM\\SOFTWARE\\Microsoft\\NET Framework "
                                    "Setup\\NDP\\v4\\Full\" /v Install /t REG_DWORD /d 1"),
              0U);
    Remember();
    EXPECT_EQ(Setup("/S /RESULT=C:\\r.json"), 0U);
    EXPECT_EQ(Result()["result"], "done");
    EXPECT_TRUE(IsThere());
}

TEST_F(SetupSwitches, LeaveThePasswordOutOfEveryFile)
{
    product.project.DialogBoxes.PasswordDlg = 1;
    product.project.DialogBoxData.CorrectPassword = "Mellon7";
    Make();
    const std::string logs = "/S /LOG=C:\\l.txt /LOGJSON=C:\\a.json /RESULT=C:\\r.json "
                             "/SAVEINF=C:\\svar.inf ";
    EXPECT_EQ(Setup(logs), 1603U);
    for (const char* password : {"/PASSWORD=Mellon7x", "/PASSWRD=Mellon7", "/PASWORD=Mellon7",
                                 "/PASSWORD=Mitt Mellon7", "/PASSWORD=Mellon7"}) {
        const bool isRight = std::string(password) == "/PASSWORD=Mellon7";
        EXPECT_EQ(Setup(logs + password) == 0, isRight) << password;
        for (const char* file : {"C:\\l.txt", "C:\\a.json", "C:\\r.json"})
            EXPECT_THAT(Bytes(file), Not(HasSubstr("Mellon7"))) << file;
    }
    EXPECT_THAT(Bytes("C:\\svar.inf"), Not(HasSubstr("Mellon7")));
    EXPECT_THAT(Bytes(kMainFolder + "\\QNXUNIN.LOG"), Not(HasSubstr("Mellon7")));
}

// It ends with 0 only where it was started hidden, and is counted only then.
TEST_F(SetupSwitches, ShowNothingOfAProgramThatRegistersItself)
{
    product.Add("Data", "server.exe", ReadBytes(TestProgramFolder() / "hidden_server.exe"), "R");
    Make();
    ASSERT_EQ(Setup("/S /LOGJSON=C:\\a.json"), 0U);
    EXPECT_EQ(Records("C:\\a.json").back()["counts"]["registrations"], 1);
}

TEST_F(SetupSwitches, MeanTheSameToTheUninstaller)
{
    Make();
    ASSERT_EQ(Setup("/S"), 0U);
    EXPECT_EQ(Uninstall("/S /? /LOG=C:\\l.txt"), 0U);
    EXPECT_THAT(Bytes("C:\\l.txt"), HasSubstr("/LOG, /LOG=, /LOGJSON=, /RESULT="));
    EXPECT_THAT(Bytes("C:\\l.txt"), Not(HasSubstr("/PLAN")));
    EXPECT_EQ(Uninstall("/S /version /LOG=C:\\l.txt"), 0U);
    EXPECT_THAT(Bytes("C:\\l.txt"), HasSubstr("Provpaket Åäö, version 3.4"));
    EXPECT_TRUE(IsThere());
    EXPECT_EQ(Uninstall("-quiet /SP- /SUPPRESSMSGBOXES /norestart /NOCLOSEAPPLICATIONS "
                        "/RESTARTEXITCODE=5 /RESULT=C:\\r.json"),
              0U);
    EXPECT_EQ(Result()["result"], "done");
    EXPECT_FALSE(IsThere());
}

} // namespace
} // namespace quillon::test
