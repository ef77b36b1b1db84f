#include "formats/package_manifest.h"

#include "formats/manifest_line.h"
#include "platform/run_error.h"
#include "support/memory_host.h"

#include <gmock/gmock.h>

namespace quillon {

using State = PackageManifest::State;
using testing::ElementsAre;

namespace {

const Text kFolder = "D:\\Paket";
const std::string kAbc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
const std::string kEmpty = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";

ManifestLine LineOf(const Text& name, const std::string& digits)
{
    return {name, DigestOfDigits(digits)};
}

} // namespace

TEST(WritePackageManifest, WritesLinesAsSha256sumDoesInTheOrderOfTheNames)
{
    test::MemoryFiles files;
    files.Put(kFolder + "\\PACKAGE.SHA256", "");
    WritePackageManifest(files, kFolder,
                         {LineOf("SetupFiles\\åäö.txt_", kAbc), LineOf("A.DAT", kEmpty)});
    EXPECT_EQ(files.Get(kFolder + "\\PACKAGE.SHA256"),
              kEmpty + "  A.DAT\n" + kAbc + "  SetupFiles/åäö.txt_\n");
    EXPECT_FALSE(files.FileExists(kFolder + "\\PACKAGE.TMP"));
}

TEST(WritePackageManifest, LeavesTheEmptyOneWhereTheDiskIsFull)
{
    test::MemoryFiles files;
    files.PutFolder(kFolder);
    WriteUnfinishedManifest(files, kFolder);
    files.FailFromWrite(1, ErrorNumber::kDiskFull);
    EXPECT_EQ(RunErrorNumber([&] { WritePackageManifest(files, kFolder, {LineOf("a", kAbc)}); }),
              ErrorNumber::kDiskFull);
    EXPECT_EQ(ReadPackageManifest(files, kFolder).state, State::Unfinished);
}

TEST(ReadManifest, TakesWhatSha256sumWritesOnAnySystem)
{
    std::string capitals = kAbc;
    for (char& digit : capitals)
        digit = digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    const PackageManifest manifest =
        ReadManifest(kAbc + "  a.txt\n" + capitals + " *Mapp/b.txt\r\n" + kEmpty + "   c\n");
    EXPECT_EQ(manifest.state, State::Whole);
    EXPECT_THAT(manifest.lines, ElementsAre(LineOf("a.txt", kAbc), LineOf("Mapp\\b.txt", kAbc),
                                            LineOf(" c", kEmpty)));
    EXPECT_TRUE(manifest.Names("MAPP\\B.TXT"));
    EXPECT_FALSE(manifest.Names("B.TXT"));
}

TEST(ReadManifest, TellsAnEmptyOneFromADamagedOne)
{
    EXPECT_EQ(ReadManifest("").state, State::Unfinished);
    for (const std::string& bytes :
         {std::string("\n"), kAbc, kAbc + "  a.txt", kAbc + "  \n", kAbc + " a.txt\n",
          kAbc + "\ta.txt\n", kAbc + "a.txt\n", "x" + kAbc.substr(1) + "  a.txt\n",
          kAbc.substr(1) + "  a.txt\n", "\\" + kAbc + "  a\\nb\n",
          kAbc + "  a.txt\n" + kAbc + "  A.TXT\n", kAbc + "  a.txt\n\n",
          "# a comment\n" + kAbc + "  a.txt\n"})
        EXPECT_EQ(ReadManifest(bytes).state, State::Damaged) << bytes;
}

TEST(ReadManifest, LetsNoNameLeadOutOfThePackage)
{
    for (const Text name : {"..", "../a", "a/../../b", "/a", "a//b", "a/", ".", "./a", "C:a",
                            "C:/a", "a\\..\\b", "aux", "a/NUL.txt", "a./b", "\\\\server\\a", "a:b"})
        EXPECT_EQ(ReadManifest(kAbc + "  " + name + "\n").state, State::Damaged) << name;
    EXPECT_EQ(ReadManifest(kAbc + "  a" + std::string(1, '\0') + "b\n").state, State::Damaged);
    EXPECT_EQ(ReadManifest(kAbc + "  \xFF\n").state, State::Damaged);
    EXPECT_EQ(ReadManifest(kAbc + "  ..a/b.c\n").state, State::Whole);
}

TEST(ReadPackageManifest, TellsOneThatIsMissingOrUnreadable)
{
    test::MemoryFiles files;
    files.PutFolder(kFolder);
    EXPECT_EQ(ReadPackageManifest(files, kFolder).state, State::Missing);
    files.Put(kFolder + "\\PACKAGE.SHA256", kAbc + "  a.txt\n");
    EXPECT_EQ(ReadPackageManifest(files, kFolder).state, State::Whole);
    files.At(kFolder + "\\PACKAGE.SHA256").unreadable = true;
    EXPECT_EQ(ReadPackageManifest(files, kFolder).state, State::Damaged);
}

TEST(CompareFile, TellsEachKindOfFault)
{
    test::MemoryFiles files;
    const ManifestLine line = LineOf("Mapp\\a.txt", kAbc);
    EXPECT_EQ(CompareFile(files, kFolder, line), FileFault::Missing);
    files.Put(kFolder + "\\mapp\\A.TXT", "abc");
    std::size_t read = 0;
    EXPECT_EQ(CompareFile(files, kFolder, line, [&](std::size_t count) { read += count; }),
              FileFault::None);
    EXPECT_EQ(read, 3U);
    files.Put(kFolder + "\\mapp\\A.TXT", "abd");
    EXPECT_EQ(CompareFile(files, kFolder, line), FileFault::Different);
    files.At(kFolder + "\\mapp\\A.TXT").unreadable = true;
    EXPECT_EQ(CompareFile(files, kFolder, line), FileFault::Unreadable);
}

} // namespace quillon
