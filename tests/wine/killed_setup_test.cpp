// A setup whose process is killed while it copies, on a real (Wine's) file system and registry.
#include "wine/folder_state.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMainFolder = "C:\\Program Files\\Provpaket Åäö";
constexpr const char* kUninstallKey =
    "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Provpaket Åäö";

std::size_t FilesBelow(const fs::path& folder)
{
    std::size_t count = 0;
    std::error_code gone; // the setup works on while this counts
    for (fs::recursive_directory_iterator entry(folder, gone), end; !gone && entry != end;
         entry.increment(gone))
        count += entry->is_regular_file(gone) ? 1 : 0;
    return count;
}

// Everything that a setup calls its own for a while.
std::vector<std::string> TemporaryPaths(const WinePrefix& prefix)
{
    std::vector<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(prefix.DriveC())) {
        const std::string name = entry.path().filename();
        const bool isWorkFolder = name.starts_with("QN") && name.ends_with(".TMP");
        if (name.starts_with("~qn") || isWorkFolder)
            found.push_back(entry.path());
    }
    return found;
}

void ExpectInstalled(const WinePrefix& prefix, const SampleProduct& product)
{
    for (const SampleFile& file : product.Files()) {
        const fs::path installed = prefix.OnHost(file.destination);
        ASSERT_EQ(fs::exists(installed), file.isInstalled) << file.destination;
        if (file.isInstalled)
            EXPECT_TRUE(ReadBytes(installed) == ReadBytes(product.Drive() / file.source))
                << file.destination;
    }
}

class KilledSetup : public testing::Test {
protected:
    KilledSetup() : package_(MakePackage(product_.Order({"--medium", "cd"}))) { prefix_.Restart(); }

    // Kills the setup when that many files are there.
    void KillAt(std::size_t files)
    {
        const fs::path folder = prefix_.OnHost(kMainFolder);
        ASSERT_TRUE(prefix_.RunAndKill(OnZ(package_ / "SETUP.EXE"), "/S",
                                       [&] { return FilesBelow(folder) >= files; }));
        EXPECT_THAT(TemporaryPaths(prefix_), testing::Not(testing::IsEmpty()));
    }

    SampleProduct product_;
    fs::path package_;
    WinePrefix prefix_;
};

TEST_F(KilledSetup, IsRepeatedAndLeavesNothingOfTheKilledOne)
{
    const RegistryText registryBefore(prefix_);
    const FolderState before = StateOf(prefix_.DriveC());
    for (const std::size_t files : {1U, 60U, 150U})
        KillAt(files);
    ASSERT_EQ(prefix_.Run(OnZ(package_ / "SETUP.EXE"), "/S"), 0U);
    ExpectInstalled(prefix_, product_);
    EXPECT_THAT(TemporaryPaths(prefix_), testing::IsEmpty());

    const auto uninstall = RegistryText(prefix_).Value(kUninstallKey, "QuietUninstallString");
    ASSERT_TRUE(uninstall.has_value());
    EXPECT_EQ(prefix_.RunCommandLine(*uninstall), 0U);
    prefix_.Restart();
    EXPECT_EQ(RegistryDifference(registryBefore, RegistryText(prefix_)), "");
    EXPECT_EQ(FolderDifference(before, StateOf(prefix_.DriveC())), "changed: windows/win.ini\n");
}

// A journal is trusted by its owner. Wine shows a file of another Unix user as another user's, and
// only an administrator can make one.
TEST_F(KilledSetup, IsBelievedOnlyFromWhoeverRunsTheSetup)
{
    const fs::path victim = prefix_.DriveC() / "victim.txt";
    const fs::path folder = prefix_.OnHost("C:\\Program Files");
    const fs::path journal = folder / "~qnsetup-Provpaket Åäö.tmp";
    const fs::path lock = journal.string() + ".lock";
    const auto plant = [&] {
        WriteBytes(victim, "important");
        WriteBytes(journal, "Quillon installationsjournal 1\r\nFILE\tC:\\victim.txt\r\n");
    };
    constexpr uid_t kOther = 4711;
    if (geteuid() == 0) {
        plant();
        WriteBytes(lock, "");
        ASSERT_EQ(chown(journal.c_str(), kOther, kOther), 0);
        ASSERT_EQ(chown(lock.c_str(), kOther, kOther), 0);
        EXPECT_EQ(prefix_.Run(OnZ(package_ / "SETUP.EXE"), "/S /RESULT=C:\\r.json"), 1603U);
        EXPECT_THAT(ReadBytes(prefix_.OnHost("C:\\r.json")), testing::HasSubstr("~qnsetup-"));
        EXPECT_TRUE(fs::exists(victim));
        EXPECT_FALSE(fs::exists(prefix_.OnHost(kMainFolder)));
        fs::remove(journal);
        fs::remove(lock);
    }
    plant();
    EXPECT_EQ(prefix_.Run(OnZ(package_ / "SETUP.EXE"), "/S"), 0U);
    EXPECT_FALSE(fs::exists(victim));
    ExpectInstalled(prefix_, product_);
}

TEST_F(KilledSetup, GivesTheEarlierVersionBackToItsUninstaller)
{
    const RegistryText registryBefore(prefix_);
    ASSERT_EQ(prefix_.Run(OnZ(package_ / "SETUP.EXE"), "/S"), 0U);
    const std::size_t installed = FilesBelow(prefix_.OnHost(kMainFolder));
    KillAt(installed + 40);

    const auto uninstall = RegistryText(prefix_).Value(kUninstallKey, "QuietUninstallString");
    ASSERT_TRUE(uninstall.has_value());
    // A line that is refused changes nothing.
    const auto left = TemporaryPaths(prefix_);
    EXPECT_EQ(prefix_.RunCommandLine(*uninstall + " /X"), 1639U);
    EXPECT_EQ(TemporaryPaths(prefix_), left);

    EXPECT_EQ(prefix_.RunCommandLine(*uninstall + R"( /LOG="C:\logg.txt")"), 0U);
    const std::string log = ReadBytes(prefix_.OnHost("C:\\logg.txt"));
    EXPECT_THAT(log, testing::HasSubstr("En tidigare installation avbröts. Dess ändringar ångras"));
    EXPECT_THAT(log, testing::HasSubstr("Tar bort " + std::string(kMainFolder)));
    prefix_.Restart();
    EXPECT_EQ(RegistryDifference(registryBefore, RegistryText(prefix_)), "");
    for (const std::string& path : TemporaryPaths(prefix_))
        EXPECT_THAT(path, testing::HasSubstr("QN")) << "only work folders, for the next setup";
    EXPECT_FALSE(fs::exists(prefix_.OnHost(kMainFolder)));
}

} // namespace
} // namespace quillon::test
