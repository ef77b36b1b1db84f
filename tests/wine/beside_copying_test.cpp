// What a setup does beside copying: scripts, programs that it waits for, what a machine has to
// have, updates, startup files, the sound of the screen. Afterwards the uninstaller leaves the
// machine as it was.
#include "helpers/text.h"
#include "wine/folder_state.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"
#include "wine/virtual_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

constexpr const char* kMainFolder = "C:\\Program Files\\Provpaket Åäö";

class BesideCopying : public testing::Test {
protected:
    /// Wine makes some keys and files of its own when its first program runs.
    BesideCopying()
    {
        prefix.Run("reg.exe", "query HKCU\\Software");
        prefix.WaitForAll();
        prefix.Stop();
    }
    void AddCanary()
    {
        product.Add("Data", "canary.exe", ReadBytes(TestProgramFolder() / "canary.exe"));
    }
    fs::path Package() { return MakePackage(product.Order({"--medium", "cd"})); }
    unsigned Install(const fs::path& package, const std::string& switches = "/S")
    {
        return prefix.Run(OnZ(package / "SETUP.EXE"), switches + R"( /LOG="C:\logg.txt")");
    }
    /// No user is there to press a button.
    void LeaveOutPages()
    {
        section::DialogBoxes& pages = product.project.DialogBoxes;
        pages.WelcomeDlg = 0;
        pages.DestinationDlg = 0;
        pages.StartInstallDlg = 0;
        pages.InstallCompletedDlg = 0;
        for (section::FileComponent& component : product.project.FileComponents)
            component.Comp = 0;
    }
    unsigned Uninstall()
    {
        const unsigned code = prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE", "/S");
        prefix.WaitForAll();
        return code;
    }
    std::string Log() const { return ReadBytes(prefix.OnHost("C:\\logg.txt")); }
    fs::path Main() const { return prefix.OnHost(kMainFolder); }
    /// Drive C: without the log that the test asks for, and without files of which the bytes alone
    /// come back, not the date.
    FolderState Files() const
    {
        FolderState state = StateOf(prefix.DriveC());
        for (const char* path : {"logg.txt", "firma.ini", "data.txt", "windows/win.ini"})
            state.erase(path);
        std::erase_if(state,
                      [](const auto& entry) { return entry.first.starts_with("windows/inf/"); });
        return state;
    }
    SampleProduct product;
    const WinePrefix prefix;
};

TEST_F(BesideCopying, ScriptsDoTheirWorkAndTheUninstallerTakesItBack)
{
    AddCanary();
    WriteBytes(prefix.DriveC() / "firma.ini", "[A]\r\nb=before\r\n");
    WriteBytes(prefix.DriveC() / "data.txt", "the user's");
    const FolderState before = Files();
    const RegistryText registry(prefix);
    product.project.Lists.RunScriptBefore =
        "IF FILE %DESTDIR\\Data\\canary.exe\r\nEXIT 11\r\nEND\r\n"
        "MAKEFOLDER %APPDATADIR\\Firma\\Ny\r\n"
        "INI C:\\firma.ini A b \"%DESTDIR\"\r\n"
        "REGISTRY HKEY_CURRENT_USER\\Software\\Provskript\\%PRODUCTVERSION :: Mapp=\"%DESTDIR\"";
    product.project.Lists.RunScriptAfter =
        "RUNHIDDEN %DESTDIR\\Data\\canary.exe \"\"\"%DESTDIR\\sång å.txt\"\" 7\"\r\n"
        "IF %EXITCODE <> 7\r\nEXIT 12\r\nEND\r\n"
        "COPY %DESTDIR\\Data\\canary.exe C:\\data.txt\r\n"
        "RENAME \"%DESTDIR\\sång å.txt\" %DESTDIR\\vers.txt\r\n"
        "DELETE %DESTDIR\\vers.txt\r\n"
        "IF NOT REGISTRY \"HKCU\\Software\\Provskript\\3.4 :: Mapp\"\r\nEXIT 13\r\nEND\r\n"
        "MESSAGE \"Ingen ser det här.\"";
    ASSERT_EQ(Install(Package()), 0U) << Log();
    EXPECT_EQ(ReadBytes(prefix.OnHost("C:\\firma.ini")),
              "[A]\r\nb=C:\\Program Files\\Provpaket \xC5\xE4\xF6\r\n");
    EXPECT_EQ(ReadBytes(prefix.OnHost("C:\\data.txt")),
              ReadBytes(TestProgramFolder() / "canary.exe"));
    EXPECT_FALSE(fs::exists(Main() / "vers.txt"));
    EXPECT_THAT(Log(), HasSubstr("Meddelande: Ingen ser det här."));
    EXPECT_EQ(RegistryText(prefix).Value("HKCU\\Software\\Provskript\\3.4", "Mapp"), kMainFolder);
    ASSERT_EQ(Uninstall(), 0U);
    EXPECT_EQ(FolderDifference(before, Files()), "");
    EXPECT_EQ(RegistryDifference(registry, RegistryText(prefix)), "");
    EXPECT_EQ(ReadBytes(prefix.OnHost("C:\\firma.ini")), "[A]\r\nb=before\r\n");
    EXPECT_EQ(ReadBytes(prefix.OnHost("C:\\data.txt")), "the user's");
}

TEST_F(BesideCopying, AScriptEndsTheSetupAndNothingIsLeft)
{
    AddCanary();
    WriteBytes(prefix.DriveC() / "data.txt", "the user's");
    const FolderState before = Files();
    const RegistryText registry(prefix);
    product.project.Lists.RunScriptAfter =
        "DELETE C:\\data.txt\r\nINI C:\\ny.ini A b c\r\n"
        "REGISTRY HKEY_CURRENT_USER\\Software\\Provskript :: a=1\r\n"
        "EXIT 4711 \"Det går inte.\"";
    EXPECT_EQ(Install(Package()), 4711U);
    EXPECT_THAT(Log(), HasSubstr("Avslutar med kod 4711: Det går inte."));
    EXPECT_EQ(FolderDifference(before, Files()), "");
    EXPECT_EQ(RegistryDifference(registry, RegistryText(prefix)), "");
}

TEST_F(BesideCopying, AFaultyScriptChangesNothing)
{
    const FolderState before = Files();
    product.project.Lists.RunScriptBefore = "COPY a";
    EXPECT_EQ(Install(Package()), 20001U);
    EXPECT_THAT(Log(), HasSubstr("rad 1: fel antal värden till COPY"));
    EXPECT_EQ(FolderDifference(before, Files()), "");
}

TEST_F(BesideCopying, NetFrameworkIsLookedForInTheRegistry)
{
    product.project.NET = {.NET_TestIfInstalled = kOn,
                           .NET_ver10 = kOff,
                           .NET_ver11 = kOn,
                           .NET_WarnIfNoNET = kOff,
                           .NET_StopIfNoNET = kOn};
    const fs::path package = Package();
    const std::string key = "HKLM\\Software\\Microsoft\\NET Framework Setup\\NDP";
    if (!RegistryText(prefix).HasKey(key)) {
        EXPECT_EQ(Install(package), 20002U);
        EXPECT_THAT(Log(), HasSubstr("Microsoft .NET Framework 1.1 eller senare"));
        EXPECT_FALSE(fs::exists(Main()));
    }
    prefix.Run("reg.exe", "add \"" + key + "\\v2.0.50727\" /v Install /t REG_DWORD /d 1 /f");
    EXPECT_EQ(Install(package), 0U) << Log();
}

TEST_F(BesideCopying, TheProgramBeforeTheInstallationGivesTheFolder)
{
    const fs::path package = Package();
    fs::copy_file(TestProgramFolder() / "canary.exe", package / "licens.exe");
    const std::string setup = ReadBytes(package / "QNSETUP.INF");
    const std::string section = "[RunAppSelfX]\r\nProgramFilename = licens.exe\r\n"
                                "Param = C:\\sjunget.txt 3\r\nReturnValueExit = 5\r\n"
                                "ReturnValueBack = \r\nReturnValueDD = 3\r\nDD_iHKEYIndex = 1\r\n"
                                "DD_sSubKey = Software\\Provlicens\r\nDD_sValueName = Mapp\r\n"
                                "VisibleWin = 0\r\n\r\n";
    WriteBytes(package / "QNSETUP.INF",
               ReplaceAll(setup, "[Language]\r\n", section + "[Language]\r\n"));
    ChangeSetupKey(package, "TargetMedia", "4");
    prefix.Run("reg.exe", "add HKCU\\Software\\Provlicens /v Mapp /d \"C:\\Egen mapp\" /f");
    EXPECT_EQ(Install(package), 0U) << Log();
    EXPECT_EQ(ReadBytes(prefix.OnHost("C:\\sjunget.txt")), "sings");
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Egen mapp\\QNXUNIN.EXE")));
    EXPECT_FALSE(fs::exists(Main()));
    // Its other value ends the setup.
    ChangeSetupKey(package, "ReturnValueExit", "3");
    EXPECT_EQ(Install(package), 1602U);
}

TEST_F(BesideCopying, AnUpdateTakesTheOldVersionsFilesAway)
{
    const FolderState before = Files();
    const RegistryText registry(prefix);
    product.Add("Data", "gammal.txt", "old");
    product.Add("Data", "min.txt", "old too");
    ASSERT_EQ(Install(Package()), 0U);
    WriteBytes(Main() / "Data" / "min.txt", "changed");
    SampleProduct next;
    ASSERT_EQ(Install(MakePackage(next.Order({"--medium", "cd"}))), 0U);
    EXPECT_FALSE(fs::exists(Main() / "Data" / "gammal.txt"));
    EXPECT_EQ(ReadBytes(Main() / "Data" / "min.txt"), "changed");
    EXPECT_THAT(Log(), HasSubstr("gammal.txt, som inte ingår i den nya versionen"));
    EXPECT_THAT(Log(), HasSubstr("min.txt: filen har ändrats efter den förra installationen"));
    ASSERT_EQ(Uninstall(), 0U);
    EXPECT_EQ(FolderDifference(before, Files()), "");
    EXPECT_EQ(RegistryDifference(registry, RegistryText(prefix)), "");
}

TEST_F(BesideCopying, StartupFilesAreLeftAloneBySystemsThatDoNotReadThem)
{
    product.project.Lists.AutoexecBat = "SET PROV=%DESTDIR";
    ASSERT_EQ(Install(Package()), 0U);
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\AUTOEXEC.BAT")));
    EXPECT_THAT(Log(), HasSubstr("raderna till AUTOEXEC.BAT: den här versionen av Windows läser "
                                 "inte filen"));
}

TEST_F(BesideCopying, ARestartIsDueWithoutASwitchOfAnyoneWhereTheProjectWantsIt)
{
    product.project.InstallOptions.RestartWindows = kOn;
    EXPECT_EQ(Install(Package()), 3010U);
}

// A file that is none is the same on a machine with and without a device for sound.
TEST_F(BesideCopying, ASoundThatCannotBePlayedIsALineOfTheLog)
{
    const VirtualDisplay display;
    WriteBytes(product.Drive() / "fanfar.wav", "no sound");
    product.project.DesSound.BackSoundFilename = "s:\\fanfar.wav";
    LeaveOutPages();
    const FolderState before = Files();
    ASSERT_EQ(Install(Package(), ""), 0U);
    EXPECT_THAT(Log(), HasSubstr("ljudet till installationsskärmen: ljudet kan inte spelas upp"));
    ASSERT_EQ(Uninstall(), 0U);
    EXPECT_EQ(FolderDifference(before, Files()), "");
    // Silence plays nothing.
    ASSERT_EQ(Install(Package()), 0U);
    EXPECT_THAT(Log(), HasSubstr("ljudet till installationsskärmen: startas inte när"));
}

} // namespace
} // namespace quillon::test
