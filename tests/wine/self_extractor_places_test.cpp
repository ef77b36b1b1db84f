// The self-extracting program where it lies and unpacks elsewhere than on a local disk with room:
// a share of another machine, a mapped drive, a full disk; and signed.
#include "support/certificates.h"
#include "support/small_disk.h"
#include "wine/self_extracting_program.h"

#include <algorithm>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using namespace SelfExtractCode;

/// The folder as Wine's own root sees it.
fs::path AsWineSeesIt(const fs::path& folder)
{
    std::string path = OnZ(folder).substr(2);
    std::ranges::replace(path, '\\', '/');
    return path;
}

/// Makes the folder a share of another machine, and a drive that is mapped to it.
void Share(const WinePrefix& prefix, const fs::path& folder)
{
    const fs::path devices = prefix.Folder() / "dosdevices";
    fs::create_directories(devices / "unc" / "server");
    fs::create_directory_symlink(AsWineSeesIt(folder), devices / "unc" / "server" / "delning");
    fs::create_directory_symlink(AsWineSeesIt(folder), devices / "n:");
    EXPECT_EQ(prefix.RunCommandLine("reg add HKLM\\Software\\Wine\\Drives /v n: /d network"), 0U);
    prefix.Stop();
}

// Wine gives a program that was started from \\server\delning a path without its
// beginning, so the program is started from the mapped drive.
class SelfExtractorOnAShare : public testing::Test {
protected:
    fs::path ProgramOnTheShare()
    {
        const fs::path program = MakeProgram(product);
        Share(prefix, program.parent_path());
        return program;
    }

    SampleProduct product;
    const WinePrefix prefix;
};

TEST_F(SelfExtractorOnAShare, InstallsFromThere)
{
    const fs::path program = ProgramOnTheShare();
    EXPECT_EQ(prefix.Run("N:\\Prov Åäö.exe", "/S"), 0U);
    prefix.WaitForAll();
    ExpectInstalled(product, prefix);
    EXPECT_EQ(LeftOvers(prefix), "");
    EXPECT_EQ(CountOf(program.parent_path()), 1U);
}

TEST_F(SelfExtractorOnAShare, UnpacksBesideItself)
{
    product.project.InstallOptionsInternet.ExpandEXEInWinTempMap = kOff;
    const fs::path program = ProgramOnTheShare();
    EXPECT_EQ(prefix.Run("N:\\Prov Åäö.exe", "/S"), 0U);
    prefix.WaitForAll();
    ExpectInstalled(product, prefix);
    EXPECT_EQ(CountOf(program.parent_path()), 1U);
}

TEST_F(SelfExtractorOnAShare, UnpacksIntoAFolderThere)
{
    const fs::path program = ProgramOnTheShare();
    for (const char* folder : {"N:\\Ut ett", "\\\\server\\delning\\Ut två\\Djupt åäö"})
        EXPECT_EQ(prefix.Run("N:\\Prov Åäö.exe", std::string("/S /extract:\"") + folder + "\""), 0U)
            << folder;
    for (const char* folder : {"Ut ett", "Ut två/Djupt åäö"})
        EXPECT_TRUE(fs::exists(program.parent_path() / folder / "PACKAGE.SHA256")) << folder;
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
}

constexpr const char* kNoMount = "only an administrator can mount a small disk";

class SelfExtractorOnAFullDisk : public testing::Test {
protected:
    SampleProduct product;
    const WinePrefix prefix;
};

TEST_F(SelfExtractorOnAFullDisk, WritesNothingIntoAFolderWithoutRoom)
{
    const fs::path program = MakeProgram(product);
    const fs::path folder = prefix.DriveC() / "Liten disk";
    fs::create_directory(folder);
    const MountedDisk disk(folder, "size=1m");
    if (!disk.IsMounted())
        GTEST_SKIP() << kNoMount;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:\"C:\\Liten disk\""), kNoRoom);
    EXPECT_EQ(CountOf(folder), 0U);
}

TEST_F(SelfExtractorOnAFullDisk, InstallsNothing)
{
    const fs::path program = MakeProgram(product);
    const fs::path temp = TempFolderOf(prefix);
    const MountedDisk disk(temp, "size=1m");
    if (!disk.IsMounted())
        GTEST_SKIP() << kNoMount;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), kNoRoom);
    EXPECT_EQ(CountOf(temp), 0U);
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
}

// There is room for the bytes, but not for so many files.
TEST_F(SelfExtractorOnAFullDisk, TakesAwayWhatItHadUnpackedUntilThen)
{
    const fs::path program = MakeProgram(product);
    const fs::path temp = TempFolderOf(prefix);
    const MountedDisk disk(temp, "nr_inodes=8");
    if (!disk.IsMounted())
        GTEST_SKIP() << kNoMount;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), kNoRoom);
    EXPECT_EQ(CountOf(temp), 0U);
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:\"" + OnZ(temp) + "\\Ut\""), kNoRoom);
    EXPECT_EQ(CountOf(temp), 0U);
}

TEST_F(SelfExtractorOnAFullDisk, LeavesItselfAloneWhereItHasNoRoomBesideIt)
{
    product.project.InstallOptionsInternet.ExpandEXEInWinTempMap = kOff;
    const fs::path program = MakeProgram(product);
    const fs::path folder = prefix.DriveC() / "Nästan full";
    fs::create_directory(folder);
    const MountedDisk disk(folder, "size=" + std::to_string(fs::file_size(program) + 1024 * 1024));
    if (!disk.IsMounted())
        GTEST_SKIP() << kNoMount;
    fs::copy_file(program, folder / "Prov.exe");
    EXPECT_EQ(prefix.Run("C:\\Nästan full\\Prov.exe", "/S"), kNoRoom);
    EXPECT_EQ(CountOf(folder), 1U);
    EXPECT_TRUE(ReadBytes(folder / "Prov.exe") == ReadBytes(program));
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
}

TEST(SignedSelfExtractor, InstallsAndIsRefusedWhereItIsCut)
{
    const Certificates& keys = Certificates::Shared();
    SampleProduct product;
    const fs::path program =
        MakeProgram(product, {"--sign-cert", keys.Path("code.pem"), "--sign-key",
                              keys.Path("code.key"), "--timestamp", "none"});
    const ProgramResult verified = RunProgram(
        {"/usr/bin/osslsigncode", "verify", "-CAfile", keys.Path("ca.pem"), "-in", program});
    EXPECT_EQ(verified.exitCode, 0) << verified.output;

    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), 0U);
    prefix.WaitForAll();
    ExpectInstalled(product, prefix);
    EXPECT_EQ(LeftOvers(prefix), "");

    // Within the signature, at its beginning, and within the packed files.
    const std::string whole = ReadBytes(program);
    const std::size_t unpacked = std::string(whole).rfind("QNSOLID\x1A") + 72;
    for (const std::size_t length : {whole.size() - 1, unpacked, unpacked - 1, whole.size() / 2}) {
        WriteBytes(program, whole.substr(0, length));
        EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:C:\\Ut"), kDamaged) << length;
    }
    std::string changed = whole;
    changed[unpacked - 100] = static_cast<char>(changed[unpacked - 100] ^ 1);
    WriteBytes(program, changed);
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:C:\\Ut"), kDamaged);
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Ut")));
}

} // namespace
} // namespace quillon::test
