// The uninstaller against what crashes in it and against what somebody has laid in its way.
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
        const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
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

    SampleProduct product;
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
    EXPECT_EQ(prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE", "/UNREGISTER=64"), 2U);
    EXPECT_EQ(prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE", "/REGISTER=64"), 2U);
    EXPECT_EQ(prefix.Run(std::string(kMainFolder) + "\\QNXUNIN.EXE", "/CLEAN=0,0"), 1U);
    EXPECT_TRUE(fs::exists(Main() / "QNXUNIN.EXE"));
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

TEST(QuotedSwitches, AreTakenByTheStarter)
{
    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "\"/D=C:\\Med Blank\"\t\"/S\""), 0U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Med Blank\\Hej.exe")));
}

} // namespace
} // namespace quillon::test
