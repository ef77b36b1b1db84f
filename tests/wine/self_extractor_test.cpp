// The whole package as one program: run, looked into, damaged, and what is left afterwards.
#include "wine/folder_state.h"
#include "wine/self_extracting_program.h"

#include <thread>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using namespace SelfExtractCode;

TEST(SelfExtractor, InstallsSilentlyAndLeavesNothingBehind)
{
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), 0U);
    prefix.WaitForAll();
    ExpectInstalled(product, prefix);
    EXPECT_EQ(LeftOvers(prefix), "");
    EXPECT_EQ(CountOf(program.parent_path()), 1U);
}

TEST(SelfExtractor, HandsSwitchesOnAndCodesBack)
{
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /Okänd"), kBadSwitch);
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /D=C:\\Annan mapp /LOG=\"C:\\min logg.txt\""), 0U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Annan mapp")));
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\min logg.txt")));
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
    EXPECT_EQ(LeftOvers(prefix), "");
}

TEST(SelfExtractor, UnpacksBesideItselfWhereTheProjectSaysSo)
{
    SampleProduct product;
    product.project.InstallOptionsInternet.ExpandEXEInWinTempMap = kOff;
    const fs::path program = MakeProgram(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), 0U);
    prefix.WaitForAll();
    EXPECT_TRUE(fs::exists(InstalledFolder(prefix)));
    EXPECT_EQ(CountOf(program.parent_path()), 1U);
}

TEST(SelfExtractor, UnpacksIntoAFolderAndStartsNothing)
{
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:\"C:\\Ut hit\""), 0U);
    const fs::path folder = prefix.OnHost("C:\\Ut hit");
    for (const char* name : {"SETUP.EXE", "QNSETUP.INF", "FILEDATA.DAT", "PACKAGE.SHA256"})
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    const ProgramResult summed =
        RunProgram({"/bin/sh", "-c", "cd \"$0\" && sha256sum --quiet -c PACKAGE.SHA256", folder});
    EXPECT_EQ(summed.exitCode, 0) << summed.output;
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
    // What is there stays as it is.
    WriteBytes(folder / "SETUP.EXE", "mine");
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:\"C:\\Ut hit\""), kFailed);
    EXPECT_EQ(ReadBytes(folder / "SETUP.EXE"), "mine");
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract"), kBadSwitch);
}

TEST(SelfExtractor, TellsItsVersionAndItsSwitches)
{
    SampleProduct product;
    product.project.Version.ProductName = "Provpaket Åäö";
    product.project.Version.ProductVersion = "3.1";
    const fs::path program = MakeProgram(product);
    const WinePrefix prefix;
    const auto answer = [&](const char* word) {
        EXPECT_EQ(prefix.RunCommandLine("cmd /c \"\"" + OnZ(program) + "\" " + word +
                                        " > C:\\svar.txt\""),
                  0U);
        return ReadBytes(prefix.DriveC() / "svar.txt");
    };
    EXPECT_EQ(answer("/version"), "Provpaket Åäö 3.1\r\n");
    EXPECT_NE(answer("/?").find("/extract:"), std::string::npos);
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
}

TEST(SelfExtractor, WritesNothingWhereItIsDamagedOrCut)
{
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    const std::string whole = ReadBytes(program);
    const WinePrefix prefix;
    prefix.Run("C:\\windows\\system32\\cmd.exe", "/c exit 0");
    const FolderState before = StateOf(prefix.DriveC() / "users");
    for (const double part : {0.5, 0.7, 0.9, 0.99999}) {
        std::string damaged = whole;
        const auto place = static_cast<std::size_t>(static_cast<double>(whole.size() - 1) * part);
        damaged[place] = static_cast<char>(damaged[place] ^ 0x10);
        WriteBytes(program, damaged);
        EXPECT_EQ(prefix.Run(OnZ(program), "/S"), kDamaged) << part;
        WriteBytes(program, whole.substr(0, place));
        EXPECT_EQ(prefix.Run(OnZ(program), "/S"), kDamaged) << part;
        EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:C:\\Ut"), kDamaged) << part;
    }
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC() / "users")), "");
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Ut")));
    EXPECT_FALSE(fs::exists(InstalledFolder(prefix)));
}

TEST(SelfExtractor, RunsTwiceAtOnce)
{
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    const WinePrefix prefix;
    prefix.Run("C:\\windows\\system32\\cmd.exe", "/c exit 0");
    unsigned codes[2] = {};
    std::thread other([&] { codes[1] = prefix.Run(OnZ(program), "/S"); });
    codes[0] = prefix.Run(OnZ(program), "/S");
    other.join();
    for (const unsigned code : codes)
        EXPECT_TRUE(code == 0 || code == kOtherSetupRuns) << code;
    EXPECT_TRUE(codes[0] == 0 || codes[1] == 0);
    EXPECT_TRUE(fs::exists(InstalledFolder(prefix)));
    prefix.WaitForAll();
    EXPECT_EQ(LeftOvers(prefix), "");
}

TEST(SelfExtractor, ClearsUpAfterARunThatWasKilled)
{
    SampleProduct product;
    const fs::path program = MakeProgram(product);
    const WinePrefix prefix;
    const fs::path base = TempFolderOf(prefix) / "QNEXPAND";
    WriteBytes(base / "QN12345.TMP" / "mapp" / "SETUP.EXE", "left");
    WriteBytes(base / "min fil.txt", "mine");
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), 0U);
    EXPECT_FALSE(fs::exists(base / "QN12345.TMP"));
    EXPECT_EQ(ReadBytes(base / "min fil.txt"), "mine");
}

} // namespace
} // namespace quillon::test
