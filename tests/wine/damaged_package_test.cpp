// Packages in which one bit was changed, run with the real programs: nothing is installed, and
// nothing crashes.
#include "wine/driven_setup.h"
#include "wine/folder_state.h"
#include "wine/package.h"
#include "wine/registry_text.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <random>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kRefused = 20001;
constexpr unsigned kFailed = 1603;

class DamagedPackage : public testing::Test {
protected:
    void Flip(const std::string& file, std::size_t byte, unsigned bit = 0)
    {
        std::string bytes = ReadBytes(package / file);
        bytes.at(byte) = static_cast<char>(static_cast<unsigned char>(bytes.at(byte)) ^ 1U << bit);
        WriteBytes(package / file, bytes);
    }
    unsigned Install() const { return prefix.Run(OnZ(package / "SETUP.EXE"), "/S"); }
    bool IsInstalled() const { return fs::exists(prefix.OnHost("C:\\Program Files\\Hej")); }

    const fs::path package = MakePackage(ExampleOrder());
    const WinePrefix prefix;
};

TEST_F(DamagedPackage, IsRefusedWhicheverOfItsFilesHasABitThatTurned)
{
    prefix.Restart();
    const RegistryText registryBefore(prefix);
    const FolderState before = StateOf(prefix.DriveC());
    std::mt19937 random(42);
    for (const auto& entry : fs::directory_iterator(package)) {
        const std::string file = entry.path().filename();
        // A damaged starter may fail in any way; it has a test of its own below.
        if (file == "SETUP.EXE" || file == "PACKAGE.SHA256")
            continue;
        for (int i = 0; i < 3; ++i) {
            const std::string whole = ReadBytes(entry.path());
            const std::size_t byte = random() % whole.size();
            Flip(file, byte, unsigned(random() % 8));
            EXPECT_EQ(Install(), kRefused) << file << " " << byte;
            WriteBytes(entry.path(), whole);
        }
    }
    EXPECT_FALSE(IsInstalled());
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC())), "");
    EXPECT_EQ(RegistryDifference(registryBefore, RegistryText(prefix)), "");
    EXPECT_EQ(Install(), 0U) << "the whole package";
    EXPECT_TRUE(IsInstalled());
}

TEST_F(DamagedPackage, IsRefusedByAStarterThatFindsItselfChanged)
{
    constexpr std::size_t kInTheTextForDos = 0x50;
    Flip("SETUP.EXE", kInTheTextForDos);
    EXPECT_EQ(Install(), kRefused);
    EXPECT_FALSE(IsInstalled());
}

TEST_F(DamagedPackage, MayHaveAStarterOfAnotherName)
{
    fs::rename(package / "SETUP.EXE", package / "Installera.exe");
    EXPECT_EQ(prefix.Run(OnZ(package / "Installera.exe"), "/S"), 0U);
    EXPECT_TRUE(IsInstalled());
}

TEST_F(DamagedPackage, IsRefusedWithoutALibraryOrASetup)
{
    for (const char* file : {"DUNZIP32.DLL", "QNS32X.BIN", "QNXUNIN.BIN", "FILEDATA.DAT"}) {
        const std::string whole = ReadBytes(package / file);
        fs::remove(package / file);
        EXPECT_EQ(Install(), kRefused) << file;
        WriteBytes(package / file, "");
        EXPECT_EQ(Install(), kRefused) << file;
        WriteBytes(package / file, whole);
    }
    EXPECT_FALSE(IsInstalled());
}

// No user may be there to close it.
TEST_F(DamagedPackage, IsRefusedWithoutABoxWhereBoxesAreNotWanted)
{
    UseNoScreen(prefix);
    ASSERT_EQ(Install(), 0U);
    fs::remove(package / "QNS32X.BIN");
    fs::remove(prefix.OnHost("C:\\Program Files\\Hej") / "QNS32X.BIN");
    for (const char* word : {"/passive", "-qb", "/SUPPRESSMSGBOXES"}) {
        EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), word), kRefused) << word;
        EXPECT_EQ(prefix.Run("C:\\Program Files\\Hej\\QNXUNIN.EXE", word), kFailed) << word;
    }
}

TEST_F(DamagedPackage, IsToldInTheResultByAStarterToo)
{
    fs::remove(package / "QNS32X.BIN");
    const fs::path file = prefix.Folder() / "resultat av körningen.json";
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "-q /result=\"" + OnZ(file) + '"'), kRefused);
    const auto record = nlohmann::json::parse(ReadBytes(file));
    EXPECT_EQ(record["action"], "result");
    EXPECT_EQ(record["result"], "damaged package");
    EXPECT_EQ(record["code"], kRefused);
    EXPECT_EQ(record["restart"], false);
    EXPECT_EQ(record["error"],
              "Installationen kan inte startas. Filen 'QNS32X.BIN' saknas eller är skadad.");
    EXPECT_THAT(record["time"], testing::ContainsRegex("^20..-..-..T..:..:..$"));
}

TEST_F(DamagedPackage, IsToldInTheResultByAnUninstallerToo)
{
    ASSERT_EQ(Install(), 0U);
    const fs::path folder = prefix.OnHost("C:\\Program Files\\Hej");
    fs::remove(folder / "QNS32X.BIN");
    EXPECT_EQ(prefix.Run("C:\\Program Files\\Hej\\QNXUNIN.EXE", R"(/S "/RESULT=C:\slut.json")"),
              kFailed);
    const auto record = nlohmann::json::parse(ReadBytes(prefix.DriveC() / "slut.json"));
    EXPECT_EQ(record["result"], "failed");
    EXPECT_EQ(record["code"], kFailed);
    EXPECT_TRUE(IsInstalled());
}

TEST_F(DamagedPackage, IsRefusedWhereCreateWasNotFinished)
{
    WriteBytes(package / "PACKAGE.SHA256", "");
    EXPECT_EQ(Install(), kRefused);
    EXPECT_FALSE(IsInstalled());
}

TEST_F(DamagedPackage, WithoutAManifestIsInstalledAsItIs)
{
    fs::remove(package / "PACKAGE.SHA256");
    const fs::path log = prefix.Folder() / "logg.txt";
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S /LOG=\"" + OnZ(log) + '"'), 0U);
    EXPECT_TRUE(IsInstalled());
    EXPECT_THAT(ReadBytes(log), testing::HasSubstr("PACKAGE.SHA256"));
}

} // namespace
} // namespace quillon::test
