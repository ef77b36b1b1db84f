// The codes that the setup ends with, and switches without a value, by what they leave.
#include "support/small_disk.h"
#include "wine/driven_setup.h"
#include "wine/page_script.h"
#include "wine/self_extracting_program.h"
#include "wine/setup_switches.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

class SetupCodes : public SetupSwitches {
protected:
    /// The one file of the folder that is called so; it is taken away.
    std::string TakeFile(const fs::path& folder, const std::string& begin, const std::string& end)
    {
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename();
            if (name.starts_with(begin) && name.ends_with(end)) {
                const fs::path path = entry.path();
                std::string bytes = ReadBytes(path);
                fs::remove(path);
                return bytes;
            }
        }
        return "<none>";
    }
};

TEST_F(SetupCodes, SpeakTheLanguageOfTheSwitch)
{
    Make();
    fs::copy_file(fs::path(QUILLON_SOURCE_FOLDER) / "resources" / "Language" / "GERMAN.LNG",
                  package / "GERMAN.LNG");
    ASSERT_EQ(Setup("/S /LANG=german /LOG=C:\\l.txt"), 0U);
    EXPECT_THAT(Bytes("C:\\l.txt"), HasSubstr("Kopiert: " + kMainFolder + "\\Data\\a.txt"));
    EXPECT_EQ(Uninstall("/S /LOG=C:\\l.txt"), 0U);
    EXPECT_THAT(Bytes("C:\\l.txt"), Not(HasSubstr("Tar bort")));
}

TEST_F(SetupCodes, WriteFilesOfTheirOwnNamesWhereNoneIsGiven)
{
    const fs::path temp = TempFolderOf(prefix);
    Make();
    ASSERT_EQ(Setup("/S /LOG"), 0U);
    EXPECT_THAT(TakeFile(temp, "QNSETUP-", ".LOG"), HasSubstr("\\Data\\a.txt"));
    ASSERT_EQ(Setup("/S /PLAN"), 0U);
    const json plan = json::parse(TakeFile(temp, "QNSETUP-", ".JSON"));
    EXPECT_EQ(plan["mainFolder"], kMainFolder);
    EXPECT_EQ(plan["entry"], "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\"
                             "Uninstall\\Provpaket Åäö");
    EXPECT_EQ(Uninstall("/S /LOG"), 0U);
    EXPECT_THAT(TakeFile(temp, "QNXUNIN-", ".LOG"), HasSubstr("\\Data\\a.txt"));
}

// A setup that showed something would wait for a user, and there is none.
TEST_F(SetupCodes, AreTheSameByAnyWordForSilence)
{
    Make();
    UseNoScreen(prefix);
    Remember();
    for (const char* word : {"/SILENT", "-verysilent", "/q", "/qb", "/passive"}) {
        EXPECT_EQ(Setup(std::string(word) + " /RESULT=C:\\r.json"), 0U) << word;
        EXPECT_EQ(Result()["result"], "done") << word;
        EXPECT_TRUE(IsThere()) << word;
        EXPECT_EQ(Uninstall(std::string(word)), 0U) << word;
        EXPECT_FALSE(IsThere()) << word;
    }
}

TEST_F(SetupCodes, TellOfASystemThatThePackageIsNotMeantFor)
{
    product.project.TargetOS.TargetOS_WinXP = kOff;
    product.project.TargetOS.TargetOS_StopIfWrong = kOn;
    Make();
    EXPECT_EQ(Setup("/S /RESULT=C:\\r.json"), 1633U);
    EXPECT_EQ(Result()["result"], "wrong system");
    EXPECT_FALSE(IsThere());
}

TEST_F(SetupCodes, TellOfAFullDisk)
{
    product.Add("Data", "stor.bin", std::string(3 << 20, 'x'));
    Make();
    const fs::path folder = prefix.DriveC() / "ut packat";
    fs::create_directory(folder);
    const MountedDisk disk(folder, "size=1m");
    if (!disk.IsMounted())
        GTEST_SKIP() << "only an administrator can mount a small disk";
    EXPECT_EQ(Setup("/S /D=C:\\ut packat\\Prov /RESULT=C:\\r.json"), 112U);
    EXPECT_EQ(Result()["result"], "disk full");
    EXPECT_TRUE(fs::is_empty(folder)) << "everything was undone";
    EXPECT_FALSE(IsThere());

    const fs::path temp = TempFolderOf(prefix);
    const std::string logs = " /LOG=C:\\l.txt /LOGJSON=C:\\a.json /RESULT=C:\\r.json";
    {
        const MountedDisk forTheStarter(temp, "size=64k");
        EXPECT_EQ(Setup("/SUPPRESSMSGBOXES" + logs), 112U);
        EXPECT_EQ(Result()["result"], "disk full");
        EXPECT_THAT(Result()["error"].get<std::string>(),
                    HasSubstr("Det finns inte plats att packa upp installationen i 'C:\\users"));
        EXPECT_TRUE(fs::is_empty(temp));
    }
    {
        // The root, the starter's folder with its lock, and the two programs: no more.
        const MountedDisk forTheSetupProper(temp, "nr_inodes=5");
        EXPECT_EQ(Setup("/SUPPRESSMSGBOXES" + logs), 112U);
        EXPECT_EQ(Result()["result"], "disk full");
        EXPECT_EQ(Records("C:\\a.json").back()["result"], "disk full");
        EXPECT_THAT(Bytes("C:\\l.txt"),
                    HasSubstr("Avslutar med kod 112: Det finns inte tillräckligt"));
    }
    ASSERT_EQ(Setup("/S"), 0U);
    {
        const MountedDisk forTheUninstaller(temp, "size=64k");
        EXPECT_EQ(Uninstall("/passive /RESULT=C:\\r.json"), 112U);
        EXPECT_EQ(Result()["result"], "disk full");
        EXPECT_THAT(
            Result()["error"].get<std::string>(),
            HasSubstr("Avinstallationen kan inte startas. Det finns inte plats i 'C:\\users"));
        EXPECT_TRUE(IsThere());
    }
}

// The folder for temporary files was removed.
TEST_F(SetupCodes, AreThoseOfAnyOtherRunWithoutAFolderForTemporaryFiles)
{
    Make();
    const fs::path temp = TempFolderOf(prefix);
    fs::remove_all(temp);
    EXPECT_EQ(Setup("/S"), 0U);
    EXPECT_TRUE(IsThere());
    EXPECT_TRUE(fs::is_empty(temp));
    fs::remove_all(temp);
    EXPECT_EQ(Uninstall("/S"), 0U);
    EXPECT_FALSE(IsThere());
    fs::create_directory(temp);
}

TEST_F(SetupCodes, TellOfANewerVersion)
{
    Make();
    ASSERT_EQ(Setup("/S"), 0U);
    product.project.Version.ProductVersion = "3.3";
    Make();
    EXPECT_EQ(Setup("/S /RESULT=C:\\r.json"), 1638U);
    EXPECT_EQ(Result()["result"], "newer version installed");
    EXPECT_THAT(Result()["error"].get<std::string>(), HasSubstr("3.4"));
    EXPECT_EQ(RegistryText(prefix).Value(kForAll, "DisplayVersion"), "3.4");
    EXPECT_EQ(Setup("/S /PLAN=C:\\plan.json"), 1638U);
    EXPECT_EQ(Uninstall("/S"), 0U);
    EXPECT_EQ(Setup("/S"), 0U);
    EXPECT_EQ(RegistryText(prefix).Value(kForAll, "DisplayVersion"), "3.3");
}

TEST_F(SetupCodes, ComeFromTheUserWhoIsAskedAboutANewerVersion)
{
    Make();
    UseNoScreen(prefix);
    Remember();
    ASSERT_EQ(Setup("/S"), 0U);
    product.project.Version.ProductVersion = "3.3";
    Make();
    Script script;
    script.Box(kNo).End();
    EXPECT_EQ(
        DriveSetup(prefix, script.Text("\"" + OnZ(package / "SETUP.EXE") + "\"")),
        "Installation av Provpaket Åäö: Version 3.4 är redan installerad, och den är nyare än "
        "version 3.3. Vill du ersätta den med den äldre?\ncode 1602\n");
    EXPECT_EQ(RegistryText(prefix).Value(kForAll, "DisplayVersion"), "3.4");
}

TEST_F(SetupCodes, TellOfAFolderThatWindowsCannotHold)
{
    Make();
    EXPECT_EQ(Setup("/S /D=C:\\con\\x /RESULT=C:\\r.json"), 1639U);
    EXPECT_EQ(Result()["result"], "bad switch");
}

TEST_F(SetupCodes, OfAScriptAreNeverASuccess)
{
    product.project.Lists.RunScriptAfter = "EXIT 1641 \"Stopp\"";
    Make();
    EXPECT_EQ(Setup("/S /RESULT=C:\\r.json"), 1641U);
    EXPECT_EQ(Result()["result"], "failed");
    EXPECT_EQ(Result()["restart"], false);
    EXPECT_FALSE(IsThere());
}

} // namespace
} // namespace quillon::test
