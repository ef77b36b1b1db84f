// The uninstaller against crashing registrations and against planted journals and libraries.
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

constexpr const char* kMainFolder = "C:\\Program Files\\Provpaket Åäö";
constexpr const char* kEntry =
    "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Provpaket Åäö";

class Uninstaller : public testing::Test {
protected:
    void Install()
    {
        package = MakePackage(product.Order({"--medium", "cd"}));
        ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    }
    unsigned Uninstall(const std::string& arguments)
    {
        const unsigned code =
            prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE", arguments + " /S");
        prefix.WaitForAll();
        return code;
    }
    fs::path Main() const { return prefix.OnHost(kMainFolder); }

    /// Folders of ours that are left where temporary files lie.
    std::string LeftInTemp() const
    {
        std::string left;
        for (const auto& entry :
             fs::recursive_directory_iterator(prefix.DriveC(), fs::directory_options::none))
            if (entry.path().filename().string().starts_with("QN"))
                left += entry.path().string() + "\n";
        return left;
    }

    /// What the driver logs of the script; both are files of the prefix.
    std::string Drive(const std::string& driver, const std::string& script)
    {
        WriteBytes(prefix.DriveC() / "script.txt", script);
        EXPECT_EQ(prefix.Run(driver, R"(C:\script.txt C:\driven.txt)"), 0U);
        return ReadBytes(prefix.DriveC() / "driven.txt");
    }

    SampleProduct product;
    fs::path package;
    const WinePrefix prefix;
};

TEST_F(Uninstaller, IsNotEndedByAFileThatCrashesWhenItUnregisters)
{
    product.Add("Data", "server.dll", ReadBytes(TestProgramFolder() / "crashing_server.dll"), "R");
    Install();
    EXPECT_EQ(Uninstall(R"(/LOG="C:\bort.txt")"), 0U);
    EXPECT_FALSE(fs::exists(Main()));
    EXPECT_FALSE(RegistryText(prefix).HasKey(kEntry));
    // A debugger of crashes notes its settings, and holds the files of the crashed program.
    EXPECT_FALSE(RegistryText(prefix).HasKey("HKCU\\Software\\Wine\\WineDbg"));
}

TEST_F(Uninstaller, LeavesNothingOfItselfEvenBeforeTheNextStart)
{
    Install();
    EXPECT_EQ(Uninstall(""), 0U);
    EXPECT_FALSE(fs::exists(Main()));
    EXPECT_EQ(LeftInTemp(), "");
}

TEST_F(Uninstaller, ObeysNoLogButOneBesideIt)
{
    Install();
    WriteBytes(prefix.DriveC() / "victim.txt", "victim");
    const std::string log =
        "Quillon installationslogg 2\r\nPRODUCT\tX\r\nPLACE\tC:\\\r\n"
        "FILE\tC:\\victim.txt\r\nUNINSTALLKEY\tHKEY_LOCAL_MACHINE\tSystem\\Select\r\n";
    WriteBytes(prefix.DriveC() / "QNXUNIN.LOG", log);
    EXPECT_EQ(Uninstall(R"("C:\QNXUNIN.LOG")"), 1603U);
    WriteBytes(Main() / "annat.txt", log);
    EXPECT_EQ(Uninstall('"' + std::string(kMainFolder) + R"(\annat.txt")"), 1603U);
    // Beside it, but with a key of the system's own.
    WriteBytes(Main() / "QNXUNIN2.LOG", log);
    EXPECT_EQ(Uninstall('"' + std::string(kMainFolder) + R"(\QNXUNIN2.LOG")"), 1603U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\victim.txt")));
    EXPECT_TRUE(fs::exists(Main() / "QNXUNIN.EXE"));
    EXPECT_TRUE(RegistryText(prefix).HasKey(kEntry));
}

TEST_F(Uninstaller, RegistersNothingForWhoeverNamesAHandle)
{
    Install();
    const std::string uninstaller = std::string(kMainFolder) + "\\QNXUNIN.EXE";
    EXPECT_EQ(prefix.Run(uninstaller, "/UNREGISTER=64 /S"), 1639U);
    EXPECT_EQ(prefix.Run(uninstaller, "/REGISTER=64 /S"), 1639U);
    EXPECT_EQ(prefix.Run(uninstaller, "/CLEAN=0,0"), 1U);
    fs::copy_file(Main() / "QNS32X.BIN", prefix.DriveC() / "QNS32X.EXE");
    EXPECT_EQ(prefix.Run("C:\\QNS32X.EXE", "/UNREGISTER=64"), 2U);
    EXPECT_EQ(prefix.Run("C:\\QNS32X.EXE", "/REGISTER=64"), 2U);
    EXPECT_TRUE(fs::exists(Main() / "QNXUNIN.EXE"));
}

TEST_F(Uninstaller, IsRefusedWithoutTheProgramThatItStarts)
{
    Install();
    const std::string whole = ReadBytes(Main() / "QNS32X.BIN");
    std::string damaged = whole;
    damaged[damaged.size() / 2] ^= 1;
    for (const std::string& bytes : {damaged, whole.substr(0, whole.size() / 2), std::string()}) {
        WriteBytes(Main() / "QNS32X.BIN", bytes);
        EXPECT_EQ(Uninstall(""), 1603U) << bytes.size();
    }
    fs::remove(Main() / "QNS32X.BIN");
    EXPECT_EQ(Uninstall(""), 1603U);
    EXPECT_TRUE(fs::exists(Main() / "Stort" / "Stor fil.bin"));
    EXPECT_TRUE(RegistryText(prefix).HasKey(kEntry));

    // The next installation puts it right.
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    EXPECT_EQ(Uninstall(""), 0U);
    EXPECT_FALSE(fs::exists(Main()));
    EXPECT_EQ(LeftInTemp(), "");
}

TEST_F(Uninstaller, FollowsNoLinkInThePlaceOfAFolder)
{
    Install();
    const fs::path elsewhere = prefix.DriveC() / "elsewhere";
    fs::rename(Main() / "Stort", elsewhere);
    fs::create_directory_symlink(fs::path("..") / ".." / "elsewhere", Main() / "Stort");
    EXPECT_EQ(Uninstall(R"(/LOG="C:\bort.txt")"), 0U);
    EXPECT_TRUE(fs::exists(elsewhere / "Stor fil.bin"));
    EXPECT_TRUE(fs::is_symlink(Main() / "Stort"));
    EXPECT_THAT(ReadBytes(prefix.OnHost("C:\\bort.txt")),
                HasSubstr("Stor fil.bin: en länk leder till en annan mapp"));
}

TEST_F(Uninstaller, TakesSwitchesThatAreQuotedAsAWhole)
{
    Install();
    EXPECT_EQ(prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE",
                         "\t\"/S\"\t\"/LOG=C:\\en logg.txt\""),
              0U);
    prefix.WaitForAll();
    EXPECT_FALSE(fs::exists(Main()));
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\en logg.txt")));
}

// A caller may go on as soon as its process has ended.
TEST_F(Uninstaller, HasDoneItsWorkWhenItEnds)
{
    Install();
    EXPECT_EQ(prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE", "/S"), 0U);
    EXPECT_FALSE(fs::exists(Main()));
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    prefix.WaitForAll();
    EXPECT_TRUE(fs::exists(Main() / "QNXUNIN.EXE"));
}

TEST_F(Uninstaller, TellsWhereNothingIsInstalled)
{
    Install();
    fs::remove(Main() / "QNXUNIN.LOG");
    EXPECT_EQ(Uninstall(""), 1605U);
}

// The driver is a file of the product, and runs.
TEST_F(Uninstaller, LeavesAProgramThatRunsToTheNextStart)
{
    product.Add("Data", "driver.exe", ReadBytes(TestProgramFolder() / "drive_setup.exe"));
    Install();
    const std::string uninstaller = std::string(kMainFolder) + "\\QNXUNIN.EXE";
    EXPECT_EQ(Drive(std::string(kMainFolder) + "\\Data\\driver.exe",
                    "other \"" + uninstaller + "\" /S\n"),
              "code 3010\n");
    prefix.WaitForAll();
    EXPECT_TRUE(fs::exists(Main() / "Data" / "driver.exe"));
    EXPECT_FALSE(fs::exists(Main() / "QNXUNIN.EXE"));
    EXPECT_FALSE(RegistryText(prefix).HasKey(kEntry));
    prefix.Restart();
    EXPECT_FALSE(fs::exists(Main()));
}

class UninstallerWindows : public Uninstaller {
protected:
    // There is no screen. Wine has to be told so, or it makes no windows.
    void SetUp() override
    {
        UseNoScreen(prefix);
        product.Add("Data", "driver.exe", ReadBytes(TestProgramFolder() / "drive_setup.exe"));
        Install();
    }

    std::string DriveUninstaller(const std::string& script)
    {
        const fs::path driver = WorkFolder() / "drive_setup.exe";
        fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver,
                      fs::copy_options::skip_existing);
        const std::string run = "run \"" + std::string(kMainFolder) + "\\QNXUNIN.EXE\"\n";
        std::string log = Drive(OnZ(driver), run + script);
        prefix.WaitForAll();
        return log;
    }

    const std::string question =
        "list Vill du ta bort Provpaket Åäö från datorn? Det här tas bort:\n";
};

TEST_F(UninstallerWindows, ShowWhatGoesAndCanBeCancelled)
{
    const std::string log = DriveUninstaller(question + "controls\nread 102\npress 2\nend\n");
    EXPECT_THAT(log, HasSubstr("Edit 102 tab"));
    EXPECT_THAT(log, HasSubstr("Button 1 tab &Avinstallera\nButton 2 tab Avbryt\n"));
    EXPECT_THAT(log, HasSubstr(std::string(kMainFolder) + "\\Stort\\Stor fil.bin|"));
    EXPECT_THAT(log, HasSubstr("|" + std::string(kMainFolder) + "\\QNXUNIN.EXE|"));
    EXPECT_THAT(log, HasSubstr("HKEY_LOCAL_MACHINE\\SOFTWARE\\Prov\\Djup\\Nyckel :: Tal|"));
    EXPECT_THAT(log, HasSubstr("code 1602\n"));
    EXPECT_TRUE(fs::exists(Main() / "Stort" / "Stor fil.bin"));
    EXPECT_TRUE(RegistryText(prefix).HasKey(kEntry));
}

TEST_F(UninstallerWindows, AreClosedByTheFrameAsByCancel)
{
    EXPECT_EQ(DriveUninstaller(question + "close\nend\n"), "code 1602\n");
    EXPECT_TRUE(fs::exists(Main() / "QNXUNIN.EXE"));
}

TEST_F(UninstallerWindows, TellThatTheProductIsGone)
{
    EXPECT_EQ(
        DriveUninstaller(question + "press 1\nbox 1\nend\n"),
        "Avinstallation av Provpaket Åäö: Provpaket Åäö har tagits bort från datorn.\ncode 0\n");
    EXPECT_FALSE(fs::exists(Main()));
    EXPECT_EQ(LeftInTemp(), "");
}

TEST_F(UninstallerWindows, NameADamagedProgramInTheLanguageOfTheInstallation)
{
    WriteBytes(Main() / "QNS32X.BIN", "no program");
    EXPECT_EQ(DriveUninstaller("box 1\nend\n"),
              "Quillon: Avinstallationen kan inte startas. Filen 'QNS32X.BIN' saknas eller är "
              "skadad.\ncode 1603\n");
    WriteBytes(Main() / "QNXUNIN.LOG", "MESSAGE\tErr_NoLog\t'%251' är borta.\r\n");
    EXPECT_EQ(DriveUninstaller("box 1\nend\n"), "Quillon: 'QNS32X.BIN' är borta.\ncode 1603\n");
}

TEST_F(UninstallerWindows, ListWhatStaysAndWhy)
{
    WriteBytes(Main() / "Data" / "egen.txt", "användarens");
    const std::string log = DriveUninstaller(
        question +
        "press 1\nlist Provpaket Åäö har tagits bort från datorn. Det här finns kvar:\nread 102\n"
        "controls\npress 1\nend\n");
    EXPECT_THAT(log, HasSubstr(std::string(kMainFolder) + "\\Data: mappen är inte tom"));
    EXPECT_THAT(log, testing::Not(HasSubstr("Button 2")));
    EXPECT_THAT(log, HasSubstr("code 0\n"));
    EXPECT_EQ(ReadBytes(Main() / "Data" / "egen.txt"), "användarens");
}

// Wine's Restart Manager knows no programs, so that the file is named.
TEST_F(UninstallerWindows, NameAFileThatAProgramHolds)
{
    const std::string main(kMainFolder);
    const std::string driver = main + "\\Data\\driver.exe";
    const std::string log = Drive(
        driver, "run \"" + main + "\\QNXUNIN.EXE\"\n" + question +
                    "press 1\nbox 7\nlist Provpaket Åäö har tagits bort från datorn. Starta om "
                    "datorn, så försvinner även det som används nu:\nread 102\npress 1\nend\n");
    prefix.WaitForAll();
    EXPECT_EQ(log,
              "Avinstallation av Provpaket Åäö: De här filerna används av ett program:||" + driver +
                  "||Stäng programmet och svara Ja. Om du svarar Nej kan datorn behöva startas "
                  "om efteråt.\n" +
                  driver + ": tas bort när datorn startas om|" + main +
                  "\\Data: tas bort när datorn startas om|" + main +
                  ": tas bort när datorn startas om\ncode 3010\n");
    prefix.Restart();
    EXPECT_FALSE(fs::exists(Main()));
}

TEST_F(UninstallerWindows, StayAwayWhileAnotherOneRuns)
{
    EXPECT_EQ(DriveUninstaller(question + "other \"" + std::string(kMainFolder) +
                               "\\QNXUNIN.EXE\" /S\nother \"" + OnZ(package / "SETUP.EXE") +
                               "\" /S\npress 2\nend\n"),
              "code 1618\ncode 1618\ncode 1602\n");
    EXPECT_TRUE(fs::exists(Main() / "QNXUNIN.EXE"));
}

TEST_F(UninstallerWindows, ShowNothingButProgressWhereNobodyIsAsked)
{
    EXPECT_EQ(prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE", "/passive"), 0U);
    EXPECT_FALSE(fs::exists(Main()));
}

TEST(QuotedSwitches, AreTakenByTheStarter)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "\"/D=C:\\Med Blank\"\t\"/S\""), 0U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Med Blank\\Hej.exe")));
}

} // namespace
} // namespace quillon::test
