// Packages whose FILEDATA.DAT is a solid container, installed by the real programs.
#include "wine/folder_state.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>

#include <random>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> kSmall = {"--medium", "cd", "--small"};
constexpr const char* kMainFolder = "C:\\Program Files\\Provpaket Åäö";

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

TEST(SmallPackage, InstallsTheComponentsThatAreChosen)
{
    SampleProduct product;
    product.Add("Data", "vald.txt", "a chosen file");
    const fs::path package = MakePackage(product.Order(kSmall));
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    ExpectInstalled(prefix, product);
}

TEST(SmallPackage, UpdatesAnEarlierVersion)
{
    const WinePrefix prefix;
    SampleProduct first;
    first.Add("Data", "ändras.txt", "the first version");
    EXPECT_EQ(prefix.Run(OnZ(MakePackage(first.Order({"--medium", "cd"})) / "SETUP.EXE"), "/S"),
              0U);
    SampleProduct second;
    second.Add("Data", "ändras.txt", "the second version, which is longer");
    EXPECT_EQ(prefix.Run(OnZ(MakePackage(second.Order(kSmall)) / "SETUP.EXE"), "/S"), 0U);
    ExpectInstalled(prefix, second);
}

// Without a manifest, only the container checks the files.
TEST(SmallPackage, IsNotInstalledWithADamageThatNoManifestTellsOf)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order(kSmall));
    fs::remove(package / "PACKAGE.SHA256");
    const WinePrefix prefix;
    const FolderState before = StateOf(prefix.DriveC());
    const std::string whole = ReadBytes(package / "FILEDATA.DAT");
    std::mt19937 random(42);
    for (int i = 0; i < 4; ++i) {
        std::string damaged = whole;
        const std::size_t at = random() % whole.size();
        damaged[at] = static_cast<char>(damaged[at] ^ 8);
        WriteBytes(package / "FILEDATA.DAT", damaged);
        EXPECT_NE(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U) << at;
        EXPECT_FALSE(fs::exists(prefix.OnHost(kMainFolder))) << at;
    }
    WriteBytes(package / "FILEDATA.DAT", whole.substr(0, whole.size() / 2));
    EXPECT_NE(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC())), "");
    WriteBytes(package / "FILEDATA.DAT", whole);
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    ExpectInstalled(prefix, product);
}

// The library of every other package knows nothing of frames.
TEST(SmallPackage, IsRefusedWithTheLibraryOfAnotherKind)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order(kSmall));
    fs::copy_file(RuntimeFolder() / "DUNZIP32.DLL", package / "DUNZIP32.DLL",
                  fs::copy_options::overwrite_existing);
    WriteManifest(package);
    const WinePrefix prefix;
    EXPECT_NE(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    EXPECT_FALSE(fs::exists(prefix.OnHost(kMainFolder)));
}

} // namespace
} // namespace quillon::test
