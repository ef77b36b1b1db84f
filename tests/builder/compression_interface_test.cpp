#include "builder/compression_interface.h"

#include "builder/archive_tools.h"
#include "builder/tricky_files.h"
#include "formats/package.h"
#include "helpers/windows_path.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <random>

namespace quillon {

using namespace CompressionResult;

using test::ExpectOtherProgramsTest;
using test::OpenArchive;
using test::UnpackAll;

namespace {

constexpr std::uint64_t kFloppy = 1457664;

std::string Noise(std::size_t size)
{
    std::mt19937_64 random(7);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

/// A drive for each disk, as far as the test lays them ready.
class LaidDisks : public DiskSource {
public:
    explicit LaidDisks(FileSystem& files) : files_(files) {}

    std::optional<Text> NextDisk(int number) override
    {
        const bool isAskedAgain = !asked.empty() && asked.back() == number;
        asked.push_back(number);
        const auto place = static_cast<std::size_t>(number) - 2;
        return place < folders.size() && !isAskedAgain ? folders[place] : std::nullopt;
    }
    std::uint64_t Capacity(const Text& folder) const override { return files_.FreeSpace(folder); }

    std::vector<std::optional<Text>> folders;
    std::vector<int> asked;

private:
    FileSystem& files_;
};

class ProgressAsk : public test::ScriptedAsk {
public:
    void ShowProgress(std::uint64_t done, std::uint64_t total) override
    {
        steps.emplace_back(done, total);
    }

    std::vector<std::pair<std::uint64_t, std::uint64_t>> steps;
};

class Compression : public testing::Test {
protected:
    Compression()
    {
        files.PutFolder("C:\\Out");
        files.PutFolder("C:\\TEMP");
        files.PutFolder("C:\\WINDOWS");
        Begin();
    }

    void Begin(const Text& workPath = {}, Integer log = 0, Integer level = 5)
    {
        zip.IfcInitDynaZipStruct(workPath, log, level);
        zip.IfcResetFileList();
    }
    void Put(const Text& path, std::string bytes, const Text& row = {})
    {
        files.Put(path, std::move(bytes));
        EXPECT_NE(zip.IfcAddFileListItem(path, row), 0);
    }
    Integer Create(Integer spanning = 0, const Text& password = {})
    {
        const Integer result = zip.IfcCreateZipFile(kTarget, spanning, password);
        ExpectNoTemporaryFiles();
        return result;
    }
    Integer CreateOnDisks()
    {
        disks.asked.clear();
        const Integer result = zip.IfcCreateZipFile("A:\\FILEDATA.DAT", 1, "");
        ExpectNoTemporaryFiles();
        return result;
    }
    /// Disk 1 is in A:, the others in E: and up.
    void LayDisks(int count)
    {
        files.PutFolder("A:\\");
        files.capacities["a:\\"] = kFloppy;
        for (int i = 0; i < count; ++i) {
            const Text root = Text(1, static_cast<char>('e' + i)) + ":\\";
            files.PutFolder(root);
            files.capacities[root] = kFloppy;
            disks.folders.emplace_back(root);
        }
    }
    void ExpectNoTemporaryFiles()
    {
        for (const auto& [key, node] : files.nodes)
            EXPECT_EQ(key.find(".tmp"), Text::npos) << key;
    }
    Text PathOfFailure() const
    {
        const auto& failure = zip.LastFailure();
        return failure ? failure->Path() : "(none)";
    }
    std::string Archive() { return files.Get(kTarget); }

    static constexpr const char* kTarget = "C:\\Out\\FILEDATA.DAT";

    test::TrickyFiles files;
    test::FixedMachine machine;
    Host host{files, machine};
    ProgressAsk ask;
    LaidDisks disks{files};
    CompressionInterface zip{host, ask, disks};
};

} // namespace

TEST_F(Compression, MakesAnArchiveOfTheListedPaths)
{
    Put("C:\\Data\\a.txt", "aaaa", "F1");
    Put("C:\\Data\\Sub\\B.txt", std::string(1000, 'b'), "F2");
    EXPECT_EQ(Create(), kDone);
    zip.IfcFreeFileList();
    ExpectOtherProgramsTest(Archive());
    const auto contents = UnpackAll(Archive());
    EXPECT_EQ(contents.at("data/a.txt"), "aaaa");
    EXPECT_EQ(contents.at("data/sub/b.txt"), std::string(1000, 'b'));
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 0);
}

TEST_F(Compression, GivesTheSameArchiveForTheSameInput)
{
    Put("C:\\a.txt", Noise(3000), "F1");
    Put("C:\\b.txt", std::string(3000, 'b'), "F2");
    EXPECT_EQ(Create(0, "hemligt"), kDone);
    const std::string first = Archive();
    machine.now.year = 2005;
    EXPECT_EQ(Create(0, "hemligt"), kDone);
    EXPECT_EQ(Archive(), first);
}

TEST_F(Compression, StoresAPathOnceAndNamesAllItsRows)
{
    Put("C:\\Data\\a.txt", "aaaa", "F1");
    Put("C:\\b.txt", "b", "F2");
    Put("c:\\data\\A.TXT", "aaaa", "F7");
    EXPECT_NE(zip.IfcAddFileListItem("C:\\Data\\..\\data\\a.txt", "F8"), 0);
    EXPECT_EQ(Create(), kDone);
    const ZipReader reader = OpenArchive(Archive());
    ASSERT_EQ(reader.Entries().size(), 2U);
    EXPECT_EQ(reader.Entries()[0].comment, "F1 F7 F8");
    EXPECT_EQ(reader.Entries()[1].comment, "F2");
}

TEST_F(Compression, StoresFilesOfTheSameNameOnTwoDrives)
{
    Put("C:\\a.txt", "on C", "F1");
    Put("D:\\a.txt", "on D", "F2");
    EXPECT_EQ(Create(), kDone);
    ZipReader reader = OpenArchive(Archive());
    ASSERT_EQ(reader.Entries().size(), 2U);
    EXPECT_EQ(reader.Entries()[0].name, "a.txt");
    EXPECT_EQ(reader.Entries()[1].name, "a.txt");
    EXPECT_EQ(reader.Entries()[1].comment, "F2");
}

TEST_F(Compression, StoresTheSameBytesOnceWhateverTheirPaths)
{
    for (const char* password : {"", "hemligt"}) {
        Begin();
        Put("C:\\Data\\a.txt", Noise(5000000), "F1");
        Put("C:\\b.txt", "b", "F2");
        Put("D:\\Other\\c.dll", Noise(5000000), "F3");
        Put("C:\\empty", "", "F4");
        Put("C:\\empty2", "", "F5");
        EXPECT_EQ(Create(0, password), kDone);
        ExpectOtherProgramsTest(Archive(), password);
        const ZipReader reader = OpenArchive(Archive());
        ASSERT_EQ(reader.Entries().size(), 3U);
        EXPECT_EQ(reader.Entries()[0].name, "data/a.txt");
        EXPECT_EQ(reader.Entries()[0].comment, "F1 F3");
        EXPECT_EQ(reader.Entries()[1].comment, "F2");
        EXPECT_EQ(reader.Entries()[2].comment, "F4 F5");
        EXPECT_EQ(UnpackAll(Archive(), password).at("data/a.txt"), Noise(5000000));
    }
}

TEST_F(Compression, KeepsTheDateOfEachRowOfAnEntry)
{
    Put("C:\\a.txt", "same", "F1");
    Put("C:\\b.txt", "same", "F2");
    Put("C:\\B.TXT", "same", "F3");
    Put("C:\\c.txt", "same", "F4");
    files.SetModified("C:\\b.txt", {2005, 1, 2, 3, 4, 7}); // an archive keeps even seconds
    files.SetModified("C:\\c.txt", {2004, 2, 29, 12, 30, 1});
    EXPECT_EQ(Create(), kDone);
    const ZipReader reader = OpenArchive(Archive());
    ASSERT_EQ(reader.Entries().size(), 1U);
    EXPECT_EQ(reader.Entries()[0].comment, "F1 F2@20050102030406 F3@20050102030406 F4");
}

TEST_F(Compression, StoresEqualDesignFilesUnderTheirNames)
{
    Put("C:\\one.bmp", "logo");
    Put("C:\\two.bmp", "logo");
    EXPECT_EQ(zip.IfcCreateDesignZipFile("C:\\Out\\DESOBJ.DAT"), kDone);
    EXPECT_EQ(OpenArchive(files.Get("C:\\Out\\DESOBJ.DAT")).Entries().size(), 2U);
}

TEST_F(Compression, StoresAFileByItselfWhoseTwinChangedAfterItWasPacked)
{
    Put("C:\\a.txt", "same bytes", "F1");
    Put("C:\\b.txt", "same bytes", "F2");
    std::atomic<int> opened = 0;
    files.PutTricky("C:\\a.txt", 10, [&opened] {
        const std::string text = ++opened == 1 ? "same bytes" : "others now";
        return std::make_unique<test::MadeUpInput>(
            10, 10, [text](std::uint64_t position, std::span<std::byte> bytes) {
                for (std::size_t i = 0; i < bytes.size(); ++i)
                    bytes[i] = std::byte(text[std::size_t(position) + i]);
            });
    });
    EXPECT_EQ(Create(), kDone);
    EXPECT_EQ(OpenArchive(Archive()).Entries().size(), 2U);
    EXPECT_EQ(UnpackAll(Archive()).at("b.txt"), "same bytes");
}

// The row of the second file must not get what the first one has become meanwhile.
TEST_F(Compression, NoticesThatALargeSharedFileChangedAfterItWasCompared)
{
    static constexpr std::uint64_t kSize = 9'000'000;
    Put("C:\\a.txt", "", "F1");
    Put("C:\\b.txt", "", "F2");
    std::atomic<int> opened = 0;
    files.PutTricky("C:\\a.txt", kSize, [&opened] {
        const bool isCompared = ++opened <= 2; // its beginning, and the whole
        return std::make_unique<test::MadeUpInput>(
            kSize, kSize, isCompared ? test::FillWithZeros : test::FillWithText);
    });
    files.PutTricky("C:\\b.txt", kSize, [] {
        return std::make_unique<test::MadeUpInput>(kSize, kSize, test::FillWithZeros);
    });
    EXPECT_EQ(Create(), kSourceChanged);
    EXPECT_EQ(PathOfFailure(), "C:\\a.txt");
    EXPECT_FALSE(files.FileExists(kTarget));
}

// A comment holds 65,535 bytes; the names of more rows go to another copy of the source.
TEST_F(Compression, ServesMoreRowsThanOneCommentHolds)
{
    files.Put("C:\\a.txt", "x");
    for (int row = 1; row <= 32767; ++row) {
        Text key = "F";
        key.append(NumberText(row));
        EXPECT_NE(zip.IfcAddFileListItem("C:\\a.txt", key), 0);
    }
    EXPECT_EQ(Create(), kDone);
    const ZipReader reader = OpenArchive(Archive());
    std::vector<int> served;
    for (const ZipEntry& entry : reader.Entries())
        for (const int row : RowNumbers(entry.comment))
            served.push_back(row);
    ASSERT_EQ(served.size(), 32767U);
    EXPECT_EQ(served.back(), 32767);
    EXPECT_EQ(reader.Entries().size(), 4U);
}

TEST_F(Compression, StoresAtLevelNought)
{
    Begin({}, 0, 0);
    Put("C:\\a.txt", std::string(1000, 'a'));
    EXPECT_EQ(Create(), kDone);
    EXPECT_TRUE(OpenArchive(Archive()).Entries()[0].isStored);
}

TEST_F(Compression, EncryptsUnderAPassword)
{
    Put("C:\\a.txt", std::string(1000, 'a'));
    EXPECT_EQ(Create(0, "Räksmörgås"), kDone);
    EXPECT_EQ(UnpackAll(Archive(), "Räksmörgås").at("a.txt"), std::string(1000, 'a'));
    EXPECT_THROW(UnpackAll(Archive(), "raksmorgas"), ZipError);
}

TEST_F(Compression, KeepsFileNamesAloneInADesignContainer)
{
    Put("C:\\Pictures\\Logo.BMP", "logo");
    Put("C:\\Sounds\\ding.wav", "ding");
    Put("C:\\Pictures\\logo.bmp", "logo");
    EXPECT_EQ(zip.IfcCreateDesignZipFile("C:\\Out\\DESOBJ.DAT"), kDone);
    const auto contents = UnpackAll(files.Get("C:\\Out\\DESOBJ.DAT"));
    EXPECT_EQ(contents,
              (std::map<std::string, std::string>{{"logo.bmp", "logo"}, {"ding.wav", "ding"}}));
    ExpectNoTemporaryFiles();
}

TEST_F(Compression, KeepsDesignFilesOfOneNameFromTwoFolders)
{
    Put("C:\\One\\logo.bmp", "one");
    Put("C:\\Two\\logo.bmp", "two");
    EXPECT_EQ(zip.IfcCreateDesignZipFile("C:\\Out\\DESOBJ.DAT"), kDone);
    const ZipReader reader = OpenArchive(files.Get("C:\\Out\\DESOBJ.DAT"));
    EXPECT_EQ(reader.Entries().size(), 2U);
}

TEST_F(Compression, LeavesNoFileForAnEmptyList)
{
    EXPECT_EQ(Create(), kNothingToDo);
    EXPECT_EQ(zip.IfcCreateDesignZipFile("C:\\Out\\DESOBJ.DAT"), kNothingToDo);
    EXPECT_EQ(zip.IfcCreateZipFile("A:\\FILEDATA.DAT", 1, ""), kNothingToDo);
    EXPECT_FALSE(files.FileExists(kTarget));
    EXPECT_FALSE(files.FileExists("C:\\Out\\DESOBJ.DAT"));
    EXPECT_EQ(zip.IfcAddFileListItem(""), 0);
    EXPECT_EQ(zip.IfcAddFileListItem("C:\\"), 0);
}

TEST_F(Compression, ReplacesAnOlderTarget)
{
    files.Put(kTarget, std::string(100000, 'x'));
    Put("C:\\a.txt", "a");
    EXPECT_EQ(Create(), kDone);
    EXPECT_EQ(UnpackAll(Archive()).size(), 1U);
}

TEST_F(Compression, LeavesNothingBehindWhenASourceFails)
{
    Put("C:\\a.txt", "a");
    Put("C:\\b.txt", "b");
    files.RemoveFile("C:\\b.txt");
    EXPECT_EQ(Create(), kSourceMissing);
    EXPECT_EQ(PathOfFailure(), "C:\\b.txt");
    files.Put("C:\\b.txt", "b");
    files.At("C:\\b.txt").unreadable = true;
    EXPECT_EQ(Create(), kNoReadAccess);
    files.PutTricky("C:\\b.txt", 10,
                    [] { return std::make_unique<test::MadeUpInput>(9, 10, test::FillWithText); });
    EXPECT_EQ(Create(), kSourceChanged);
    files.PutTricky("C:\\b.txt", 10,
                    [] { return std::make_unique<test::MadeUpInput>(11, 10, test::FillWithText); });
    EXPECT_EQ(Create(), kSourceChanged);
    EXPECT_FALSE(files.FileExists(kTarget));
}

TEST_F(Compression, LeavesNothingBehindWhenTheTargetFails)
{
    Put("E:\\a.txt", Noise(10000));
    files.capacities["c:\\"] = 5000;
    EXPECT_EQ(Create(), kDiskFull);
    files.capacities.clear();
    files.FailFromWrite(1, ErrorNumber::kPathFileAccess);
    EXPECT_EQ(Create(), kCannotWrite);
    files.FailFromWrite(std::numeric_limits<int>::max(), 0);
    EXPECT_EQ(zip.IfcCreateZipFile("C:\\Nowhere\\FILEDATA.DAT", 0, ""), kCannotWrite);
    EXPECT_FALSE(files.FileExists(kTarget));
}

TEST_F(Compression, BuildsTheArchiveInTheWorkPath)
{
    files.PutFolder("D:\\Work");
    files.capacities["d:\\"] = 100;
    Begin("D:\\Work\\");
    Put("E:\\a.txt", Noise(10000));
    EXPECT_EQ(Create(), kDiskFull) << "the disk of the work path is the one that fills";
    EXPECT_THAT(PathOfFailure(), testing::StartsWith("D:\\Work\\QN"));
    files.capacities.clear();
    EXPECT_EQ(Create(), kDone);
    EXPECT_FALSE(zip.LastFailure());
    EXPECT_EQ(UnpackAll(Archive()).size(), 1U);
    Begin("D:\\Missing");
    Put("E:\\a.txt", "a");
    EXPECT_EQ(Create(), kCannotWrite);
}

namespace {

/// Disks between which a file can't be renamed.
class TwoDisks : public test::TrickyFiles {
public:
    void Rename(const Text& from, const Text& to) override
    {
        if (from[0] != to[0])
            throw RunError(ErrorNumber::kPathFileAccess, to);
        TrickyFiles::Rename(from, to);
    }
};

} // namespace

TEST(CompressionOnTwoDisks, CopiesTheFinishedArchiveFromTheWorkPath)
{
    TwoDisks files;
    test::FixedMachine machine;
    Host host{files, machine};
    test::ScriptedAsk ask;
    LaidDisks disks(files);
    CompressionInterface zip(host, ask, disks);
    files.PutFolder("C:\\Out");
    files.PutFolder("D:\\Work");
    files.Put("C:\\a.txt", "aaaa");
    zip.IfcInitDynaZipStruct("D:\\Work", 0, 5);
    zip.IfcAddFileListItem("C:\\a.txt");
    EXPECT_EQ(zip.IfcCreateZipFile("C:\\Out\\FILEDATA.DAT", 0, ""), kDone);
    EXPECT_EQ(UnpackAll(files.Get("C:\\Out\\FILEDATA.DAT")).at("a.txt"), "aaaa");
    EXPECT_TRUE(files.List("D:\\Work").empty());

    files.capacities["c:\\"] = 20;
    EXPECT_EQ(zip.IfcCreateZipFile("C:\\Out\\FILEDATA.DAT", 0, ""), kDiskFull);
    EXPECT_TRUE(files.List("D:\\Work").empty());
    EXPECT_FALSE(files.FileExists("C:\\Out\\FILEDATA.DAT"));
}

TEST_F(Compression, LogsEachFileAndTheResult)
{
    Begin({}, 1);
    Put("C:\\Data\\å.txt", "innehåll");
    EXPECT_EQ(Create(), kDone);
    const std::string first = "[C:\\Out\\FILEDATA.DAT 2004-03-01 14:25:36]\r\n"
                              "C:\\Data\\\xE5.txt; 9; 9; 0\r\n"
                              "Resultat: 0\r\n";
    EXPECT_EQ(files.Get("C:\\WINDOWS\\DYNAZIP.LOG"), first);
    files.At("C:\\Data\\å.txt").unreadable = true;
    EXPECT_EQ(Create(), kNoReadAccess);
    EXPECT_EQ(files.Get("C:\\WINDOWS\\DYNAZIP.LOG"),
              first + "[C:\\Out\\FILEDATA.DAT 2004-03-01 14:25:36]\r\n"
                      "C:\\Data\\\xE5.txt; 0; 0; 18\r\n"
                      "Resultat: 18\r\n");
}

TEST_F(Compression, LogsOnlyWhenItIsAskedTo)
{
    Put("C:\\a.txt", "a");
    EXPECT_EQ(Create(), kDone);
    EXPECT_FALSE(files.FileExists("C:\\WINDOWS\\DYNAZIP.LOG"));
    Begin({}, 1);
    Put("C:\\a.txt", "a");
    files.RefuseOutput("C:\\WINDOWS\\DYNAZIP.LOG", ErrorNumber::kPermissionDenied);
    EXPECT_EQ(Create(), kDone) << "an archive does not fail for its log";
}

TEST_F(Compression, ShowsProgressAndEndsIt)
{
    Put("C:\\a.txt", Noise(1000));
    Put("C:\\b.txt", Noise(9000000));
    EXPECT_EQ(Create(), kDone);
    ASSERT_GE(ask.steps.size(), 3U);
    EXPECT_EQ(ask.steps.back(), std::pair(std::uint64_t(0), std::uint64_t(0)));
    EXPECT_EQ(ask.steps[ask.steps.size() - 2],
              std::pair(std::uint64_t(9001000), std::uint64_t(9001000)));
}

TEST_F(Compression, CutsTheArchiveOntoDisksThatJoinAgain)
{
    LayDisks(5);
    const std::string content = Noise(3 * kFloppy);
    Put("C:\\noise.bin", content, "F1");
    EXPECT_EQ(Create(), kDone);
    EXPECT_EQ(CreateOnDisks(), kDone);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 4);
    EXPECT_EQ(disks.asked, (std::vector<int>{2, 3, 4}));
    const std::string joined = files.Get("A:\\FILEDATA.DAT") + files.Get("E:\\FILEDATA.DAT") +
                               files.Get("F:\\FILEDATA.DAT") + files.Get("G:\\FILEDATA.DAT");
    EXPECT_TRUE(joined == Archive());
    EXPECT_EQ(files.Get("A:\\FILEDATA.DAT").size(), kFloppy);
    EXPECT_TRUE(UnpackAll(joined).at("noise.bin") == content);
    EXPECT_FALSE(files.FileExists("H:\\FILEDATA.DAT"));
    zip.IfcFreeFileList();
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 4);
}

TEST_F(Compression, UsesWhatIsFreeOnTheFirstDisk)
{
    LayDisks(2);
    files.Put("A:\\SETUP.EXE", std::string(1000000, 's'));
    Put("C:\\noise.bin", Noise(1000000));
    EXPECT_EQ(CreateOnDisks(), kDone);
    EXPECT_EQ(files.Get("A:\\FILEDATA.DAT").size(), kFloppy - 1000000);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 2);
}

TEST_F(Compression, NeedsNoFurtherDiskForASmallArchive)
{
    LayDisks(0);
    Put("C:\\a.txt", "a");
    EXPECT_EQ(CreateOnDisks(), kDone);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 1);
    EXPECT_TRUE(disks.asked.empty());
}

TEST_F(Compression, FillsADiskToItsLastByte)
{
    LayDisks(1);
    Put("C:\\noise.bin", Noise(500000));
    EXPECT_EQ(Create(), kDone);
    files.capacities["a:\\"] = Archive().size();
    EXPECT_EQ(CreateOnDisks(), kDone);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 1);
    files.RemoveFile("A:\\FILEDATA.DAT");
    files.capacities["a:\\"] = Archive().size() - 1;
    EXPECT_EQ(CreateOnDisks(), kDone);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 2);
    EXPECT_EQ(files.Get("E:\\FILEDATA.DAT").size(), 1U);
}

TEST_F(Compression, OverwritesThePieceOfAnEarlierRun)
{
    LayDisks(2);
    files.Put("A:\\FILEDATA.DAT", std::string(kFloppy, 'x'));
    files.Put("E:\\FILEDATA.DAT", std::string(kFloppy, 'x'));
    Put("C:\\noise.bin", Noise(2 * kFloppy - 10000));
    EXPECT_EQ(CreateOnDisks(), kDone);
    EXPECT_EQ(UnpackAll(files.Get("A:\\FILEDATA.DAT") + files.Get("E:\\FILEDATA.DAT")).size(), 1U);
}

TEST_F(Compression, TellsADiskThatDoesNotCome)
{
    LayDisks(1);
    disks.folders.emplace_back(std::nullopt);
    Put("C:\\noise.bin", Noise(3 * kFloppy));
    EXPECT_EQ(CreateOnDisks(), kCancelled);
    EXPECT_EQ(PathOfFailure(), "");
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 2) << "the disks used count also after a failure";
    EXPECT_EQ(files.Get("E:\\FILEDATA.DAT").size(), kFloppy) << "what is on the disks stays";
}

TEST_F(Compression, TellsADiskThatIsFullMissingOrReadOnly)
{
    LayDisks(1);
    Put("C:\\noise.bin", Noise(2 * kFloppy - 10000));
    files.Put("E:\\full.bin", std::string(kFloppy, 'x'));
    EXPECT_EQ(CreateOnDisks(), kDiskFull);
    EXPECT_EQ(PathOfFailure(), "e:\\FILEDATA.DAT");
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 1);
    files.RemoveFile("E:\\full.bin");
    files.RefuseOutput("E:\\FILEDATA.DAT", ErrorNumber::kPathFileAccess);
    EXPECT_EQ(CreateOnDisks(), kCannotWrite);
    EXPECT_EQ(PathOfFailure(), "e:\\FILEDATA.DAT");
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 1);
    disks.folders[0] = "E:\\missing";
    EXPECT_EQ(CreateOnDisks(), kCannotWrite);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 1);
    files.Put("A:\\full.bin", std::string(kFloppy, 'x'));
    files.RemoveFile("A:\\FILEDATA.DAT");
    EXPECT_EQ(CreateOnDisks(), kDiskFull);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 0);
}

TEST_F(Compression, TellsADiskThatFillsUpWhileItIsWritten)
{
    LayDisks(1);
    Put("C:\\noise.bin", Noise(1000000));
    files.capacities["c:\\"] = std::uint64_t(1) << 40U;
    // After the writes that make the archive itself.
    files.FailFromWrite(10, ErrorNumber::kDiskFull);
    EXPECT_EQ(CreateOnDisks(), kDiskFull);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 1);
}

// One drive for all disks: the user answered, but the disk inside is still the last one.
TEST_F(Compression, DoesNotOverwriteThePieceBeforeOnADiskThatNobodyChanged)
{
    LayDisks(0);
    disks.folders = {"A:\\"};
    Put("C:\\noise.bin", Noise(2 * kFloppy - 10000));
    EXPECT_EQ(CreateOnDisks(), kCancelled);
    EXPECT_EQ(disks.asked, (std::vector<int>{2, 2})) << "it asks once more";
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 1);
    EXPECT_EQ(files.Get("A:\\FILEDATA.DAT").size(), kFloppy);
}

TEST_F(Compression, CountsNoDisksWhenTheArchiveItselfFails)
{
    LayDisks(1);
    Put("C:\\a.txt", "a");
    files.RemoveFile("C:\\a.txt");
    EXPECT_EQ(CreateOnDisks(), kSourceMissing);
    EXPECT_EQ(zip.IfcGetNrFloppiesUsed(), 0);
    EXPECT_FALSE(files.FileExists("A:\\FILEDATA.DAT"));
}

} // namespace quillon
