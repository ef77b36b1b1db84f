// The whole package as one program: run, looked into, damaged, and what is left afterwards.
#include "wine/folder_state.h"
#include "wine/sample_product.h"

#include <gtest/gtest.h>

#include <thread>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kDamaged = 1620;
constexpr unsigned kBadSwitch = 1639;
constexpr unsigned kOtherSetupRuns = 1618;

class SelfExtractor : public testing::Test {
protected:
    void SetUp() override
    {
        if (WineBits() == 64)
            GTEST_SKIP() << "the program is made for 32-bit Windows alone";
    }

    // In a folder with blanks and letters of its own, as a browser may have one.
    static fs::path Program(SampleProduct& product)
    {
        const fs::path package = MakePackage(product.Order({"--medium", "internet"}));
        EXPECT_TRUE(fs::exists(package / "self.exe"));
        const fs::path folder = package / "Hämtade filer åäö";
        fs::create_directory(folder);
        fs::rename(package / "self.exe", folder / "Prov Åäö.exe");
        return folder / "Prov Åäö.exe";
    }

    static fs::path Installed(const WinePrefix& prefix)
    {
        return prefix.OnHost("C:\\Program Files\\Provpaket Åäö");
    }

    // Every folder of that name below the users' folders and Windows' own.
    static std::string LeftOvers(const WinePrefix& prefix)
    {
        std::string found;
        for (const auto& entry : fs::recursive_directory_iterator(prefix.DriveC()))
            if (entry.path().filename().string().starts_with("QNEXPAND"))
                found += entry.path().string() + "\n";
        return found;
    }

    static std::size_t CountOf(const fs::path& folder)
    {
        const fs::directory_iterator files(folder);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }
};

TEST_F(SelfExtractor, InstallsSilentlyAndLeavesNothingBehind)
{
    SampleProduct product;
    const fs::path program = Program(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), 0U);
    prefix.WaitForAll();
    for (const SampleFile& file : product.Files()) {
        const fs::path installed = prefix.OnHost(file.destination);
        ASSERT_EQ(fs::exists(installed), file.isInstalled) << file.destination;
        if (file.isInstalled)
            EXPECT_TRUE(ReadBytes(installed) == ReadBytes(product.Drive() / file.source))
                << file.destination;
    }
    EXPECT_EQ(LeftOvers(prefix), "");
    EXPECT_EQ(CountOf(program.parent_path()), 1U);
}

TEST_F(SelfExtractor, HandsSwitchesOnAndCodesBack)
{
    SampleProduct product;
    const fs::path program = Program(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /Okänd"), kBadSwitch);
    EXPECT_FALSE(fs::exists(Installed(prefix)));
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /D=C:\\Annan mapp /LOG=\"C:\\min logg.txt\""), 0U);
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\Annan mapp")));
    EXPECT_TRUE(fs::exists(prefix.OnHost("C:\\min logg.txt")));
    EXPECT_FALSE(fs::exists(Installed(prefix)));
    EXPECT_EQ(LeftOvers(prefix), "");
}

TEST_F(SelfExtractor, UnpacksBesideItselfWhereTheProjectSaysSo)
{
    SampleProduct product;
    product.project.InstallOptionsInternet.ExpandEXEInWinTempMap = kOff;
    const fs::path program = Program(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), 0U);
    prefix.WaitForAll();
    EXPECT_TRUE(fs::exists(Installed(prefix)));
    EXPECT_EQ(CountOf(program.parent_path()), 1U);
}

TEST_F(SelfExtractor, UnpacksIntoAFolderAndStartsNothing)
{
    SampleProduct product;
    const fs::path program = Program(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:\"C:\\Ut hit\""), 0U);
    const fs::path folder = prefix.OnHost("C:\\Ut hit");
    for (const char* name : {"SETUP.EXE", "QNSETUP.INF", "FILEDATA.DAT", "PACKAGE.SHA256"})
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    const ProgramResult summed =
        RunProgram({"/bin/sh", "-c", "cd \"$0\" && sha256sum --quiet -c PACKAGE.SHA256", folder});
    EXPECT_EQ(summed.exitCode, 0) << summed.output;
    EXPECT_FALSE(fs::exists(Installed(prefix)));
    // What is there stays as it is.
    WriteBytes(folder / "SETUP.EXE", "mine");
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract:\"C:\\Ut hit\""), 1603U);
    EXPECT_EQ(ReadBytes(folder / "SETUP.EXE"), "mine");
    EXPECT_EQ(prefix.Run(OnZ(program), "/S /extract"), kBadSwitch);
}

TEST_F(SelfExtractor, TellsItsVersionAndItsSwitches)
{
    SampleProduct product;
    product.project.Version.ProductName = "Provpaket Åäö";
    product.project.Version.ProductVersion = "3.1";
    const fs::path program = Program(product);
    const WinePrefix prefix;
    const auto answer = [&](const char* word) {
        EXPECT_EQ(prefix.RunCommandLine("cmd /c \"\"" + OnZ(program) + "\" " + word +
                                        " > C:\\svar.txt\""),
                  0U);
        return ReadBytes(prefix.DriveC() / "svar.txt");
    };
    EXPECT_EQ(answer("/version"), "Provpaket Åäö 3.1\r\n");
    EXPECT_NE(answer("/?").find("/extract:"), std::string::npos);
    EXPECT_FALSE(fs::exists(Installed(prefix)));
}

TEST_F(SelfExtractor, WritesNothingWhereItIsDamagedOrCut)
{
    SampleProduct product;
    const fs::path program = Program(product);
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
    EXPECT_FALSE(fs::exists(Installed(prefix)));
}

TEST_F(SelfExtractor, RunsTwiceAtOnce)
{
    SampleProduct product;
    const fs::path program = Program(product);
    const WinePrefix prefix;
    prefix.Run("C:\\windows\\system32\\cmd.exe", "/c exit 0");
    unsigned codes[2] = {};
    std::thread other([&] { codes[1] = prefix.Run(OnZ(program), "/S"); });
    codes[0] = prefix.Run(OnZ(program), "/S");
    other.join();
    for (const unsigned code : codes)
        EXPECT_TRUE(code == 0 || code == kOtherSetupRuns) << code;
    EXPECT_TRUE(codes[0] == 0 || codes[1] == 0);
    EXPECT_TRUE(fs::exists(Installed(prefix)));
    prefix.WaitForAll();
    EXPECT_EQ(LeftOvers(prefix), "");
}

TEST_F(SelfExtractor, ClearsUpAfterARunThatWasKilled)
{
    SampleProduct product;
    const fs::path program = Program(product);
    const WinePrefix prefix;
    prefix.Run("C:\\windows\\system32\\cmd.exe", "/c echo %TEMP%> C:\\temp.txt");
    std::string temp = ReadBytes(prefix.DriveC() / "temp.txt");
    temp.erase(temp.find_last_not_of("\r\n ") + 1);
    const fs::path base = prefix.OnHost(temp) / "QNEXPAND";
    WriteBytes(base / "QN12345.TMP" / "mapp" / "SETUP.EXE", "left");
    WriteBytes(base / "min fil.txt", "mine");
    EXPECT_EQ(prefix.Run(OnZ(program), "/S"), 0U);
    EXPECT_FALSE(fs::exists(base / "QN12345.TMP"));
    EXPECT_EQ(ReadBytes(base / "min fil.txt"), "mine");
}

} // namespace
} // namespace quillon::test
