// Files that a program of the machine holds open while they are to be replaced.
#include "wine/folder_state.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

constexpr const char* kHeld = "C:\\Program Files\\Provpaket Åäö\\Data\\hållen.txt";

class HeldFile : public testing::Test {
protected:
    /// Installs a product with that file, and once more while the driver holds it.
    std::string InstallTwice(const std::string& options)
    {
        SampleProduct product;
        product.Add("Data", "hållen.txt", "is held", options);
        const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
        setup_ = "other \"" + OnZ(package / "SETUP.EXE") + "\" /S ";
        EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
        // It would be the same one otherwise.
        WriteBytes(prefix.OnHost(kHeld), "by hand");
        before = StateOf(prefix.OnHost("C:\\Program Files"));
        return Drive("hold " + std::string(kHeld) + "\n" + setup_ +
                     "/LOG=C:\\logg.txt /RESULT=C:\\r.json\n");
    }
    std::string Drive(const std::string& script)
    {
        const fs::path driver = WorkFolder() / "drive_setup.exe";
        fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver,
                      fs::copy_options::skip_existing);
        WriteBytes(prefix.DriveC() / "script.txt", script);
        EXPECT_EQ(prefix.Run(OnZ(driver), R"(C:\script.txt C:\driven.txt)"), 0U);
        return ReadBytes(prefix.DriveC() / "driven.txt");
    }
    std::string Log() const { return ReadBytes(prefix.OnHost("C:\\logg.txt")); }

    const WinePrefix prefix;
    FolderState before;
    std::string setup_;
};

TEST_F(HeldFile, EndsTheSetupWithACodeOfItsOwn)
{
    EXPECT_EQ(InstallTwice(""), "code 20003\n");
    EXPECT_THAT(Log(), HasSubstr("20003: Filen '" + std::string(kHeld) +
                                 "' används av ett program och kan inte skrivas."));
    const auto result = nlohmann::json::parse(ReadBytes(prefix.OnHost("C:\\r.json")));
    EXPECT_EQ(result["code"], 20003);
    EXPECT_EQ(result["result"], "file in use");
    EXPECT_EQ(result["restart"], false);
    EXPECT_THAT(result["error"].get<std::string>(), HasSubstr(kHeld));
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.OnHost("C:\\Program Files"))), "");
}

TEST_F(HeldFile, IsReplacedAtTheNextStartWhereItsRowSaysSo)
{
    EXPECT_EQ(InstallTwice("A"), "code 3010\n");
    EXPECT_EQ(ReadBytes(prefix.OnHost(kHeld)), "by hand");
    EXPECT_THAT(Log(), HasSubstr("används och ersätts när datorn startas om"));
    prefix.Restart();
    EXPECT_EQ(ReadBytes(prefix.OnHost(kHeld)), "is held");
}

// A later setup that finds it free does it at once, and leaves nothing to the next start: what was
// to be moved then is older.
TEST_F(HeldFile, WaitsNoLongerOnceALaterSetupHasReplacedIt)
{
    EXPECT_EQ(InstallTwice("A"), "code 3010\n");
    EXPECT_EQ(Drive(setup_ + "\n"), "code 0\n");
    EXPECT_EQ(ReadBytes(prefix.OnHost(kHeld)), "is held");
    prefix.Stop();
    EXPECT_FALSE(RegistryText(prefix)
                     .Value("HKLM\\System\\CurrentControlSet\\Control\\Session Manager",
                            "PendingFileRenameOperations")
                     .has_value());
    for (const auto& entry : fs::recursive_directory_iterator(prefix.OnHost("C:\\Program Files")))
        EXPECT_FALSE(entry.path().filename().string().starts_with("~qn")) << entry.path();
    WriteBytes(prefix.OnHost(kHeld), "changed since");
    prefix.Restart();
    EXPECT_EQ(ReadBytes(prefix.OnHost(kHeld)), "changed since");
}

} // namespace
} // namespace quillon::test
