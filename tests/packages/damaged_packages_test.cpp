// Packages that something has happened to on their way: the setup installs what Create has packed,
// or nothing.
#include "packages/packaged_product.h"

#include "helpers/text.h"

#include <random>

namespace quillon::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

const ProductMedium kMedia[] = {{"Cd", Medium::CompressedCd},
                                {"SmallCd", Medium::CompressedCd, false, true},
                                {"OneByOne", Medium::CompressedCd, true},
                                {"Tree", Medium::CdTree},
                                {"Floppies", Medium::Floppy}};

/// A bit of a package, every one of all its files as likely as the next.
struct Bit {
    Text file;
    std::size_t byte = 0;
    unsigned bit = 0;
};

Bit RandomBit(const PackageFiles& files, std::mt19937& random)
{
    std::size_t total = 0;
    for (const auto& [name, bytes] : files)
        total += bytes.size();
    std::size_t place = random() % total;
    for (const auto& [name, bytes] : files) {
        if (place < bytes.size())
            return {name, place, unsigned(random() % 8)};
        place -= bytes.size();
    }
    return {};
}

class DamagedPackage : public testing::TestWithParam<ProductMedium> {
protected:
    const PackageFiles whole = MakeProductPackage(GetParam());
    const std::map<Text, std::string> before = EmptyMachine();
    const InstalledProduct installed = InstallProduct(whole);

    /// True where the setup refused; what it installed all the same has to be the product.
    bool IsRefused(const PackageFiles& files, const Text& what) const
    {
        const InstalledProduct run = InstallProduct(files);
        if (run.code == ExitCode::Done) {
            EXPECT_EQ(run.machine == installed.machine, true) << what << "\n" << run.log;
            return false;
        }
        EXPECT_EQ(run.code, ExitCode::DamagedPackage) << what;
        EXPECT_EQ(run.machine == before, true) << what << "\n" << run.log;
        return true;
    }
};

TEST_P(DamagedPackage, IsWholeToBeginWith)
{
    EXPECT_EQ(installed.code, ExitCode::Done) << installed.log;
    EXPECT_NE(installed.machine, before);
    EXPECT_THAT(VerifyProduct(whole), IsEmpty());
}

TEST_P(DamagedPackage, IsNeverInstalledWithABitThatHasTurned)
{
    std::mt19937 random(20041231);
    int refused = 0;
    constexpr int kBits = 1000;
    for (int i = 0; i < kBits; ++i) {
        const Bit bit = RandomBit(whole, random);
        PackageFiles files = whole;
        char& byte = files[bit.file][bit.byte];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ 1U << bit.bit);
        const Text what = bit.file + " " + std::to_string(bit.byte) + "." + std::to_string(bit.bit);
        const bool isRefused = IsRefused(files, what);
        refused += isRefused ? 1 : 0;
        // A changed case in the manifest has no effect; a bit can change the case of a letter.
        if (!isRefused)
            EXPECT_EQ(bit.file, "PACKAGE.SHA256") << what;
    }
    EXPECT_GT(refused, kBits * 8 / 10);
}

TEST_P(DamagedPackage, IsNeverInstalledWithAFileThatIsCutOrGone)
{
    for (const auto& [name, bytes] : whole) {
        if (name == "PACKAGE.SHA256")
            continue;
        const bool onlyStarts = name == "SETUP.EXE" || name == "AUTORUN.INF";
        PackageFiles files = whole;
        files.erase(name);
        EXPECT_EQ(IsRefused(files, name), !onlyStarts) << name;
        EXPECT_THAT(VerifyProduct(files), testing::Not(IsEmpty())) << name;
        for (const std::size_t size : {std::size_t(0), bytes.size() / 2, bytes.size() - 1}) {
            if (bytes.empty())
                continue;
            files[name] = bytes.substr(0, size);
            EXPECT_TRUE(IsRefused(files, name)) << size;
            EXPECT_THAT(VerifyProduct(files), testing::Not(IsEmpty())) << name << size;
        }
    }
}

TEST_P(DamagedPackage, IsNeverInstalledWithAManifestThatIsCut)
{
    const std::string manifest = whole.at("PACKAGE.SHA256");
    std::size_t refused = 0;
    for (std::size_t size = 0; size < manifest.size(); size += 7) {
        PackageFiles files = whole;
        files["PACKAGE.SHA256"] = manifest.substr(0, size);
        refused += IsRefused(files, std::to_string(size)) ? 1U : 0U;
    }
    EXPECT_EQ(refused, (manifest.size() + 6) / 7);
}

TEST_P(DamagedPackage, WithoutAManifestIsInstalledAndTheLogSaysSo)
{
    PackageFiles files = whole;
    files.erase("PACKAGE.SHA256");
    const InstalledProduct run = InstallProduct(files);
    EXPECT_EQ(run.code, ExitCode::Done);
    EXPECT_EQ(run.machine == installed.machine, true);
    EXPECT_THAT(run.log,
                HasSubstr("Paketet har ingen PACKAGE.SHA256. Dess filer prövas utan den."));
}

INSTANTIATE_TEST_SUITE_P(OnEveryMedium, DamagedPackage, testing::ValuesIn(kMedia),
                         [](const auto& medium) { return medium.param.name; });

struct FaultCase {
    const char* file;
    const char* told;
};
class ToldFault : public testing::TestWithParam<FaultCase> {};

TEST_P(ToldFault, NamesTheFile)
{
    PackageFiles files = MakeProductPackage({"Cd", Medium::CompressedCd});
    const auto [file, told] = GetParam();
    files[file].clear();
    EXPECT_THAT(InstallProduct(files).log,
                HasSubstr(Text("ofullständiga (") + told + "). Ingenting har installerats."));
}

INSTANTIATE_TEST_SUITE_P(, ToldFault,
                         testing::Values(FaultCase{"QNXUNIN.BIN", "QNXUNIN.BIN är skadad"},
                                         FaultCase{"FILEDATA.DAT", "FILEDATA.DAT är skadad"},
                                         FaultCase{"DUNZIP32.DLL", "DUNZIP32.DLL är skadad"},
                                         FaultCase{"PACKAGE.SHA256",
                                                   "PACKAGE.SHA256 är ofullständig"}));

TEST(PackageWithoutItsContainer, IsToldAsIncomplete)
{
    PackageFiles files = MakeProductPackage({"Cd", Medium::CompressedCd});
    files.erase("FILEDATA.DAT");
    const Text told = "ofullständiga (FILEDATA.DAT saknas eller kan inte läsas). Ingenting har "
                      "installerats.";
    EXPECT_THAT(InstallProduct(files).log, HasSubstr(told));
    files.erase("PACKAGE.SHA256");
    EXPECT_THAT(InstallProduct(files).log, HasSubstr(told));
}

TEST(PackageWithAManifest, MustListWhatItHolds)
{
    PackageFiles files = MakeProductPackage({"Cd", Medium::CompressedCd});
    std::string& manifest = files["PACKAGE.SHA256"];
    const std::size_t name = manifest.find("  QNXUNIN.BIN\n");
    ASSERT_NE(name, std::string::npos);
    const std::size_t begin = manifest.rfind('\n', name) + 1;
    manifest.erase(begin, manifest.find('\n', name) + 1 - begin);
    EXPECT_THAT(InstallProduct(files).log,
                HasSubstr("(QNXUNIN.BIN och PACKAGE.SHA256 hör inte ihop)"));
}

TEST(PackageWithAManifest, MayHaveAStarterOfAnotherName)
{
    PackageFiles files = MakeProductPackage({"Cd", Medium::CompressedCd});
    files["Installera.exe"] = files["SETUP.EXE"];
    files.erase("SETUP.EXE");
    EXPECT_EQ(InstallProduct(files).code, ExitCode::Done);
}

} // namespace
} // namespace quillon::test
