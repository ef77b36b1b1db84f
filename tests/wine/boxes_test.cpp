// What the setup shows to its user, and that it shows nothing where there is no user.
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

struct LanguageCase {
    const char* file;
    const char* captions;
};

class MessageBoxes : public testing::TestWithParam<LanguageCase> {};

// Wine's own captions are English here.
TEST_P(MessageBoxes, HaveButtonsInTheLanguageOfThePackage)
{
    const WinePrefix prefix;
    fs::copy_file(TestProgramFolder() / "box_captions.exe", prefix.DriveC() / "boxes.exe");
    fs::copy_file(fs::path(QUILLON_SOURCE_FOLDER) / "resources" / "Language" / GetParam().file,
                  prefix.DriveC() / "language.lng");
    UseNoScreen(prefix);
    ASSERT_EQ(prefix.Run("C:\\boxes.exe", "C:\\language.lng C:\\log.txt"), 0U);
    EXPECT_EQ(ReadBytes(prefix.DriveC() / "log.txt"), GetParam().captions);
}

INSTANTIATE_TEST_SUITE_P(
    , MessageBoxes,
    testing::Values(LanguageCase{"ENGLISH.LNG", "OK 1\nOK|Cancel 2\nYes|No 7\nYes|No|Cancel 2\n"},
                    LanguageCase{"FINNISH.LNG",
                                 "OK 1\nOK|Peruuta 2\nKyllä|Ei 7\nKyllä|Ei|Peruuta 2\n"}));

// No user is there to close a box or a debugger: a run that waited for that would hang.
TEST(UnattendedSetup, EndsAtOnceWhereItCrashes)
{
    constexpr unsigned kAccessViolation = 0xC0000005;
    const WinePrefix prefix;
    const fs::path package = MakePackage(ExampleOrder());
    // The setup would refuse another library than the one that the manifest names.
    fs::remove(package / "PACKAGE.SHA256");
    WriteBytes(package / "DUNZIP32.DLL", ReadBytes(TestProgramFolder() / "crashing_unzip.dll"));
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), kAccessViolation);
    prefix.WaitForAll();
    // A debugger of crashes would have noted its settings.
    EXPECT_FALSE(RegistryText(prefix).HasKey("HKCU\\Software\\Wine\\WineDbg"));
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Program Files\\Hej")));
}

// The package has no helper program, which comes with a row that registers itself alone.
TEST(UnattendedSetup, IsNotEndedByAFileOfTheListThatCrashesWhenItRegisters)
{
    SampleProduct product;
    product.Add("Data", "crash.dll", ReadBytes(TestProgramFolder() / "crashing_registration.dll"));
    product.Add("Data", "good.dll", ReadBytes(TestProgramFolder() / "crashing_server.dll"));
    product.project.Lists.RegisterFileList =
        "%DESTDIR\\Data\\crash.dll\r\n%DESTDIR\\Data\\good.dll\r\n";
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    EXPECT_FALSE(fs::exists(package / "QNREG32.BIN"));
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), R"(/S /LOG="C:\logg.txt")"), 0U);
    const std::string log = ReadBytes(prefix.OnHost("C:\\logg.txt"));
    EXPECT_THAT(
        log, testing::ContainsRegex("registreringen av .*crash.dll: filen kunde inte registreras"));
    EXPECT_THAT(log, testing::ContainsRegex("Registrerar .*good.dll"));
}

} // namespace
} // namespace quillon::test
