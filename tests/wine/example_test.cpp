// The example, installed, looked at and removed again.
#include "helpers/text.h"
#include "wine/folder_state.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/shell_link.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMainFolder = "C:\\Program Files\\Hej";
constexpr const char* kUninstallKey =
    "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Hej";

// What is below the main folder, by its place in the staged sources.
constexpr std::pair<const char*, const char*> kFiles[] = {
    {"Hej.exe", "Hej.exe"},
    {"Hjälp.txt", "Hjälp.txt"},
    {"Data\\Ordspråk.txt", "Data/Ordspråk.txt"},
    {"Data\\Bilder\\Sol.bmp", "Data/Bilder/Sol.bmp"},
    {"Data\\Hälsningar\\Danska.txt", "Data/Hälsningar/Danska.txt"},
    {"Data\\Hälsningar\\Finska.txt", "Data/Hälsningar/Finska.txt"},
    {"Data\\Hälsningar\\Svenska.txt", "Data/Hälsningar/Svenska.txt"},
    {"Recept\\Kanelbullar.txt", "Recept/Kanelbullar.txt"},
    {"Recept\\Våfflor.txt", "Recept/Våfflor.txt"},
};

// One package and one installation for all tests that only look.
class Example : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        package_ = MakePackage(ExampleOrder());
        prefix_ = new WinePrefix;
        exitCode_ = prefix_->Run(OnZ(package_ / "SETUP.EXE"), R"(/S /LOG="C:\logg å.txt")");
        registry_ = new RegistryText(*prefix_);
    }
    static void TearDownTestSuite()
    {
        delete registry_;
        delete prefix_;
    }

    static std::string Inside(const std::string& path)
    {
        return std::string(kMainFolder) + "\\" + path;
    }
    static fs::path Menu()
    {
        return prefix_->OnHost("C:\\users") / User() / "AppData" / "Roaming" / "Microsoft" /
               "Windows" / "Start Menu" / "Programs";
    }
    static std::string User()
    {
        for (const auto& entry : fs::directory_iterator(prefix_->OnHost("C:\\users")))
            if (entry.path().filename() != "Public")
                return entry.path().filename();
        return {};
    }

    static fs::path package_;
    static WinePrefix* prefix_;
    static unsigned exitCode_;
    static RegistryText* registry_;
};

fs::path Example::package_;
WinePrefix* Example::prefix_ = nullptr;
unsigned Example::exitCode_ = 0;
RegistryText* Example::registry_ = nullptr;

TEST_F(Example, EndsWithZero)
{
    EXPECT_EQ(exitCode_, 0U);
}

TEST_F(Example, PutsEveryFileWhereItBelongsWithItsBytesAndDate)
{
    for (const auto& [path, source] : kFiles) {
        const fs::path original = ExampleOrder().drive / "hello" / source;
        const fs::path installed = prefix_->OnHost(Inside(path));
        ASSERT_TRUE(fs::exists(installed)) << path;
        EXPECT_EQ(ReadBytes(installed), ReadBytes(original)) << path;
        // A container counts seconds by twos.
        const auto apart = fs::last_write_time(installed) - fs::last_write_time(original);
        EXPECT_LT(std::chrono::abs(apart), std::chrono::seconds(2)) << path;
    }
}

TEST_F(Example, MakesTheEmptyFolder)
{
    EXPECT_TRUE(fs::is_directory(prefix_->OnHost(Inside("Mina hälsningar"))));
    EXPECT_TRUE(fs::is_empty(prefix_->OnHost(Inside("Mina hälsningar"))));
}

TEST_F(Example, WritesTheRegistryWithItsVariablesExpanded)
{
    const std::string machine = "HKLM\\Software\\Solglimt\\Hej";
    const std::string user = "HKCU\\Software\\Solglimt\\Hej";
    EXPECT_EQ(registry_->Value(machine, "Katalog"), kMainFolder);
    EXPECT_EQ(registry_->Value(machine, "Version"), "1.2.0.0");
    EXPECT_EQ(registry_->Value(machine, "Färg"), "hex:00,52,93");
    EXPECT_EQ(registry_->Value(user, ""), "Hej på dig");
    EXPECT_EQ(registry_->Value(user, "Antal starter"), "dword:00000000");
}

TEST_F(Example, WritesTheIniFile)
{
    const std::string bytes = ReadBytes(prefix_->OnHost(Inside("HEJ.INI")));
    EXPECT_THAT(bytes, testing::HasSubstr("[Hej]\r\nNamn=min v\xE4n\r\n"));
    EXPECT_THAT(bytes, testing::HasSubstr("[Mappar]\r\nData=C:\\Program Files\\Hej\\Data\r\n"
                                          "Recept=C:\\Program Files\\Hej\\Recept\r\n"));
}

TEST_F(Example, MakesTheShortcutsOfItsGroup)
{
    const ShellLink program = ReadShellLink(Menu() / "Hej" / "Hej.lnk");
    EXPECT_TRUE(program.isShellLink);
    EXPECT_EQ(LowerCase(program.target), LowerCase(Inside("Hej.exe")));
    EXPECT_EQ(LowerCase(program.workFolder), LowerCase(kMainFolder));

    const ShellLink help = ReadShellLink(Menu() / "Hej" / "Hjälp till Hej.lnk");
    EXPECT_TRUE(help.isShellLink);
    EXPECT_THAT(LowerCase(help.target), testing::EndsWith("\\notepad.exe"));
    EXPECT_EQ(help.arguments, '"' + Inside("Hjälp.txt") + '"');
}

TEST_F(Example, CanBeRemovedFromTheListOfPrograms)
{
    EXPECT_EQ(registry_->Value(kUninstallKey, "DisplayName"), "Hej");
    EXPECT_EQ(registry_->Value(kUninstallKey, "DisplayVersion"), "1.2.0.0");
    EXPECT_EQ(registry_->Value(kUninstallKey, "Publisher"), "Solglimt Program");
    EXPECT_TRUE(registry_->Value(kUninstallKey, "UninstallString").has_value());
}

TEST_F(Example, LogsEachActionInUtf8)
{
    const std::string log = ReadBytes(prefix_->OnHost("C:\\logg å.txt"));
    for (const auto& [path, source] : kFiles)
        EXPECT_THAT(log, testing::HasSubstr(Inside(path)));
    EXPECT_THAT(log, testing::HasSubstr("Mina hälsningar"));
    EXPECT_THAT(log, testing::HasSubstr("Solglimt\\Hej"));
    EXPECT_THAT(LowerCase(log), testing::HasSubstr("hej.ini"));
    EXPECT_THAT(log, testing::HasSubstr("Hej.lnk"));
}

TEST(ExampleSetup, TakesAnotherFolder)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), R"(/S /DIR="C:\Egen mapp\Hej på dig")"), 0U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Egen mapp\\Hej på dig\\Data\\Bilder\\Sol.bmp")));
    EXPECT_FALSE(fs::exists(prefix.OnHost(kMainFolder)));
    const RegistryText registry(prefix);
    EXPECT_EQ(registry.Value("HKLM\\Software\\Solglimt\\Hej", "Katalog"),
              "C:\\Egen mapp\\Hej på dig");
}

TEST(ExampleSetup, LeavesNothingBehindWhenItIsRemoved)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    prefix.Restart();
    const RegistryText registryBefore(prefix);
    const FolderState before = StateOf(prefix.DriveC());

    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const RegistryText registry(prefix);
    const auto uninstall = registry.Value(kUninstallKey, "QuietUninstallString");
    ASSERT_TRUE(uninstall.has_value());
    EXPECT_NE(FolderDifference(before, StateOf(prefix.DriveC())), "");

    EXPECT_EQ(prefix.RunCommandLine(*uninstall), 0U);
    prefix.Restart();
    EXPECT_EQ(RegistryDifference(registryBefore, RegistryText(prefix)), "");
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC())), "");
}

TEST(ExampleSetup, LeavesTheUsersOwnFilesWhenItIsRemoved)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const fs::path mainFolder = prefix.OnHost(kMainFolder);
    WriteBytes(mainFolder / "Mina hälsningar" / "Till mormor.txt", "Kära mormor!");
    const auto uninstall = RegistryText(prefix).Value(kUninstallKey, "QuietUninstallString");
    ASSERT_TRUE(uninstall.has_value());

    EXPECT_EQ(prefix.RunCommandLine(*uninstall), 0U);
    prefix.Restart();
    EXPECT_EQ(ReadBytes(mainFolder / "Mina hälsningar" / "Till mormor.txt"), "Kära mormor!");
    const FolderState left = StateOf(mainFolder);
    EXPECT_EQ(left.size(), 2U) << FolderDifference({}, left);
}

TEST(ExampleSetup, LeavesTheUninstallerToAnotherProductInItsFolder)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const auto uninstall = RegistryText(prefix).Value(kUninstallKey, "QuietUninstallString");
    ASSERT_TRUE(uninstall.has_value());
    const fs::path mainFolder = prefix.OnHost(kMainFolder);
    fs::copy_file(mainFolder / "QNXUNIN.LOG", mainFolder / "QNXUNIN2.LOG");

    EXPECT_EQ(prefix.RunCommandLine(*uninstall), 0U);
    prefix.Restart();
    EXPECT_TRUE(fs::exists(mainFolder / "QNXUNIN.EXE"));
    EXPECT_FALSE(fs::exists(mainFolder / "QNXUNIN.LOG"));
}

TEST(ExampleSetup, WritesNothingWhenThePackageIsDamaged)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    prefix.Restart();
    const RegistryText registryBefore(prefix);
    const FolderState before = StateOf(prefix.DriveC());

    std::string bytes = ReadBytes(package / "FILEDATA.DAT");
    bytes[bytes.size() / 3] = static_cast<char>(bytes[bytes.size() / 3] ^ 0x10);
    WriteBytes(package / "FILEDATA.DAT", bytes);
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 20001U);
    EXPECT_EQ(RegistryDifference(registryBefore, RegistryText(prefix)), "");
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC())), "");
}

TEST(ExampleSetup, RefusesASwitchThatItDoesNotKnow)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S /TYST"), 1639U);
    EXPECT_FALSE(fs::exists(prefix.OnHost(kMainFolder)));
}

} // namespace
} // namespace quillon::test
