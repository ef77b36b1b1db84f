#include "platform/posix/posix_files.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "support/temp_folder.h"

#include <csignal>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {
namespace {

using std::filesystem::create_symlink;

class PosixFilesTest : public testing::Test {
protected:
    test::TempFolder disk;
    DriveMap drives{{{'Z', "/"}, {'S', disk.Path()}, {'A', disk.Path()}}};
    PosixFiles files{drives};

    template <class Work>
    static int Failure(Work work)
    {
        return RunErrorNumber(work);
    }
};

TEST_F(PosixFilesTest, TellsFilesFromFolders)
{
    disk.Put("Data/a.txt", "abc");
    EXPECT_TRUE(files.FileExists("S:\\data\\A.TXT"));
    EXPECT_FALSE(files.DirExists("S:\\data\\A.TXT"));
    EXPECT_TRUE(files.DirExists("S:\\data"));
    EXPECT_TRUE(files.DirExists("S:\\data\\"));
    EXPECT_FALSE(files.FileExists("S:\\data"));
    EXPECT_FALSE(files.FileExists("S:\\b.txt"));
    EXPECT_FALSE(files.DirExists("Q:\\"));
}

TEST_F(PosixFilesTest, TellsSizeTimeAndProtection)
{
    disk.Put("a.txt", "abc");
    files.SetModified("S:\\a.txt", {2004, 2, 29, 23, 59, 58});
    files.SetReadOnly("S:\\a.txt", true);
    const FileStatus status = files.Status("S:\\A.txt");
    EXPECT_EQ(status.size, 3U);
    EXPECT_EQ(status.modified, (LocalTime{2004, 2, 29, 23, 59, 58}));
    EXPECT_TRUE(status.isReadOnly);
    EXPECT_FALSE(status.isFolder);
    files.SetReadOnly("S:\\a.txt", false);
    EXPECT_FALSE(files.Status("S:\\a.txt").isReadOnly);
}

TEST_F(PosixFilesTest, SetsTimesOfSummerAndOfWinterAsTheClockShowsThem)
{
    disk.Put("a.txt", "");
    for (const LocalTime& time :
         {LocalTime{2004, 1, 31, 0, 0, 1}, LocalTime{2004, 7, 1, 12, 0, 0}}) {
        files.SetModified("S:\\a.txt", time);
        EXPECT_EQ(files.Status("S:\\a.txt").modified, time);
    }
}

TEST_F(PosixFilesTest, TellsAMissingFileFromAMissingFolder)
{
    EXPECT_EQ(Failure([&] { files.Status("S:\\a.txt"); }), 53);
    EXPECT_EQ(Failure([&] { files.Status("S:\\b\\a.txt"); }), 76);
    EXPECT_EQ(Failure([&] { files.Status("Q:\\a.txt"); }), 76);
    EXPECT_EQ(Failure([&] { files.Status("Z:\\no such name"); }), 53) << "the root is a folder too";
    EXPECT_EQ(Failure([&] { files.OpenInput("S:\\a.txt"); }), 53);
    EXPECT_EQ(Failure([&] { files.OpenInput("S:\\b\\a.txt"); }), 76);
    EXPECT_EQ(Failure([&] { files.OpenOutput("S:\\b\\a.txt"); }), 76);
    EXPECT_EQ(Failure([&] { files.List("S:\\b"); }), 76);
    EXPECT_EQ(Failure([&] { files.RemoveFile("S:\\a.txt"); }), 53);
    EXPECT_EQ(Failure([&] { files.RemoveFolder("S:\\a"); }), 76);
    EXPECT_EQ(Failure([&] { files.FreeSpace("S:\\a"); }), 76);
}

TEST_F(PosixFilesTest, NamesThePathInAFailure)
{
    try {
        files.OpenInput("S:\\a.txt");
        FAIL() << "nothing was thrown";
    } catch (const RunError& error) {
        EXPECT_EQ(error.Path(), "S:\\a.txt");
    }
}

TEST_F(PosixFilesTest, RefusesAFolderWhereAFileIsWanted)
{
    disk.PutFolder("folder");
    disk.Put("file", "");
    EXPECT_EQ(Failure([&] { files.OpenInput("S:\\folder"); }), 75);
    EXPECT_EQ(Failure([&] { files.OpenOutput("S:\\folder"); }), 75);
    EXPECT_EQ(Failure([&] { files.RemoveFile("S:\\folder"); }), 75);
    EXPECT_EQ(Failure([&] { files.OpenOutput("S:\\file\\a.txt"); }), 75);
    EXPECT_EQ(Failure([&] { files.OpenInput("S:\\file\\a.txt"); }), 76);
}

TEST_F(PosixFilesTest, RefusesNamesThatCannotBe)
{
    const Text tooLong = "S:\\" + Text(300, 'x');
    EXPECT_EQ(Failure([&] { files.OpenOutput(tooLong); }), 52);
    EXPECT_EQ(Failure([&] { files.OpenOutput(Text("S:\\a\0b", 6)); }), 52);
}

TEST_F(PosixFilesTest, GoesDownPathsOfMoreThanThreeHundredCharacters)
{
    Text folder = "S:";
    for (int i = 0; i < 6; ++i)
        folder += "\\" + Text(60, static_cast<char>('a' + i));
    ASSERT_TRUE(files.DirCreate(folder));
    WriteWholeFile(files, folder + "\\Fil.txt", "abc");
    EXPECT_EQ(ReadWholeFile(files, UpperCase(folder) + "\\FIL.TXT"), "abc");
}

TEST_F(PosixFilesTest, RefusesToWriteOverAReadOnlyFileEvenForAnAdministrator)
{
    disk.Put("a.txt", "abc");
    files.SetReadOnly("S:\\a.txt", true);
    EXPECT_EQ(Failure([&] { files.OpenOutput("S:\\a.txt"); }), 75);
    EXPECT_EQ(Failure([&] { files.RemoveFile("S:\\a.txt"); }), 75);
    EXPECT_EQ(disk.Get("a.txt"), "abc");
}

/// While it exists, this thread accesses the disk as a user without rights, even in an
/// administrator's process.
class PlainUser {
public:
    PlainUser() : before_(setfsuid(kNobody)) {}
    ~PlainUser() { setfsuid(static_cast<uid_t>(before_)); }

private:
    static constexpr uid_t kNobody = 65534;
    int before_;
};

TEST_F(PosixFilesTest, TellsThatPermissionIsMissing)
{
    disk.Put("locked/a.txt", "abc");
    chmod(disk.Path("locked/a.txt").c_str(), 0200);
    chmod(disk.Path("locked").c_str(), 0555);
    chmod(disk.Path().c_str(), 0755);
    const PlainUser user;
    EXPECT_EQ(Failure([&] { files.OpenInput("S:\\locked\\a.txt"); }), 70);
    EXPECT_EQ(Failure([&] { files.OpenOutput("S:\\locked\\b.txt"); }), 70);
    EXPECT_EQ(Failure([&] { files.RemoveFile("S:\\locked\\a.txt"); }), 70);
    EXPECT_FALSE(files.DirCreate("S:\\locked\\sub"));
}

TEST_F(PosixFilesTest, TellsThatTheDiskIsFull)
{
    // /dev/full, a device that is always full.
    const auto full = files.OpenOutput("Z:\\dev\\full");
    EXPECT_EQ(Failure([&] { full->Write(std::as_bytes(std::span("abc"))); }), 61);
}

TEST_F(PosixFilesTest, DoesNotWaitForAPipeThatNobodyWritesTo)
{
    ASSERT_EQ(mkfifo(disk.Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(Failure([&] { files.OpenInput("S:\\pipe"); }), 75);
    EXPECT_EQ(Failure([&] { files.OpenOutput("S:\\pipe"); }), 75);
    EXPECT_FALSE(files.FileExists("S:\\pipe"));
    EXPECT_EQ(Failure([&] { files.Status("S:\\pipe"); }), 75);
    EXPECT_FALSE(files.FileExists("Z:\\dev\\null"));
    for (const FolderEntry& entry : files.List("S:\\"))
        EXPECT_NE(entry.name, "pipe");
}

TEST_F(PosixFilesTest, ListsAFolderInByteOrder)
{
    disk.Put("b.txt", "12");
    disk.Put("a.txt", "1");
    disk.Put("B.txt", "");
    disk.PutFolder("ö");
    disk.Put(".hidden", "");
    std::vector<Text> names;
    for (const FolderEntry& entry : files.List("S:\\"))
        names.push_back(entry.name);
    EXPECT_EQ(names, (std::vector<Text>{".hidden", "B.txt", "a.txt", "b.txt", "ö"}));
    EXPECT_EQ(files.List("S:\\")[3].status.size, 2U);
    EXPECT_TRUE(files.List("S:\\")[4].status.isFolder);
    EXPECT_FALSE(files.List("S:\\")[0].status.isHidden);
}

TEST_F(PosixFilesTest, ListsALinkThatLeadsNowhereSoThatItsLossShows)
{
    create_symlink(disk.Path("gone"), disk.Path("link"));
    ASSERT_EQ(files.List("S:\\").size(), 1U);
    EXPECT_EQ(files.List("S:\\")[0].name, "link");
    EXPECT_EQ(Failure([&] { files.OpenInput("S:\\link"); }), 53);
}

TEST_F(PosixFilesTest, TellsThatALinkLeadsToTheSameFolderOrFile)
{
    disk.Put("data/sub/a.txt", "abc");
    create_symlink(disk.Path("data"), disk.Path("data/sub/back"));
    const auto identity = files.Status("S:\\data").identity;
    EXPECT_NE(identity, 0U);
    EXPECT_EQ(files.Status("S:\\data\\sub\\back").identity, identity);
    EXPECT_NE(files.Status("S:\\data\\sub").identity, identity);
    disk.Put("data/A.TXT", "another");
    create_symlink(disk.Path("data/sub/a.txt"), disk.Path("data/link.txt"));
    const auto file = files.Status("S:\\data\\sub\\a.txt").identity;
    EXPECT_NE(file, 0U);
    EXPECT_EQ(files.Status("S:\\data\\link.txt").identity, file);
    EXPECT_NE(files.Status("S:\\data\\A.TXT").identity, file);
}

TEST_F(PosixFilesTest, ReadsFromAnyPositionAndStopsAtTheEnd)
{
    disk.Put("a.txt", "0123456789");
    const auto file = files.OpenInput("S:\\a.txt");
    EXPECT_EQ(file->Size(), 10U);
    std::array<std::byte, 4> piece{};
    file->Seek(8);
    EXPECT_EQ(file->Read(piece), 2U);
    EXPECT_EQ(piece[0], std::byte('8'));
    EXPECT_EQ(file->Read(piece), 0U);
    file->Seek(20);
    EXPECT_EQ(file->Read(piece), 0U);
}

TEST_F(PosixFilesTest, KnowsFilesOfMoreThanFourGigabytes)
{
    disk.Put("big.bin", "");
    constexpr std::uint64_t kFiveGigabytes = 5ULL << 30U;
    ASSERT_EQ(truncate(disk.Path("big.bin").c_str(), static_cast<off_t>(kFiveGigabytes)), 0);
    EXPECT_EQ(files.Status("S:\\big.bin").size, kFiveGigabytes);
    const auto file = files.OpenInput("S:\\big.bin");
    file->Seek(kFiveGigabytes - 1);
    std::array<std::byte, 4> piece{};
    EXPECT_EQ(file->Read(piece), 1U);
}

TEST_F(PosixFilesTest, WritesOverWhatItWroteBefore)
{
    const auto file = files.OpenOutput("S:\\a.txt");
    file->Write(std::as_bytes(std::span(std::string_view("0123456789"))));
    file->WriteAt(2, std::as_bytes(std::span(std::string_view("ab"))));
    EXPECT_EQ(file->Position(), 10U);
    file->Write(std::as_bytes(std::span(std::string_view("!"))));
    file->Close();
    EXPECT_EQ(disk.Get("a.txt"), "01ab456789!");
}

TEST_F(PosixFilesTest, WritesIntoTheFileThatDiffersInCaseAlone)
{
    disk.Put("SETUP.INF", "a longer text than the new one");
    WriteWholeFile(files, "S:\\Setup.inf", "new");
    EXPECT_EQ(disk.Get("SETUP.INF"), "new");
    EXPECT_EQ(files.List("S:\\").size(), 1U);
}

TEST_F(PosixFilesTest, FindsWhatItHasJustWrittenUnderAnyCase)
{
    disk.PutFolder("Ut");
    for (int i = 0; i < 50; ++i)
        WriteWholeFile(files, "S:\\UT\\Fil" + std::to_string(i) + ".TXT", std::to_string(i));
    for (int i = 0; i < 50; ++i)
        WriteWholeFile(files, "S:\\ut\\FIL" + std::to_string(i) + ".txt", "again");
    EXPECT_EQ(files.List("S:\\ut").size(), 50U);
    EXPECT_EQ(disk.Get("Ut/Fil7.TXT"), "again");
    files.RemoveFile("S:\\ut\\fil7.txt");
    WriteWholeFile(files, "S:\\ut\\FIL7.txt", "new");
    EXPECT_EQ(disk.Get("Ut/FIL7.txt"), "new");
}

TEST_F(PosixFilesTest, CreatesAFolderWithAllItsParents)
{
    disk.PutFolder("Data");
    EXPECT_TRUE(files.DirCreate("S:\\DATA\\ett\\Två"));
    EXPECT_TRUE(disk.Has("Data/ett/Två"));
    EXPECT_TRUE(files.DirCreate("S:\\data\\ETT"));
    EXPECT_TRUE(files.DirCreate("S:\\"));
    disk.Put("Data/file", "");
    EXPECT_FALSE(files.DirCreate("S:\\data\\file"));
    EXPECT_FALSE(files.DirCreate("S:\\data\\file\\sub"));
    EXPECT_FALSE(files.DirCreate("Q:\\data"));
}

TEST_F(PosixFilesTest, CopiesContentAndDateAndReplacesTheTarget)
{
    std::string content(700000, 'x');
    content.back() = '!';
    disk.Put("from.bin", content);
    disk.Put("to.bin", std::string(900000, 'y'));
    files.SetModified("S:\\from.bin", {2003, 5, 6, 7, 8, 9});
    files.CopyContent("S:\\from.bin", "S:\\TO.BIN");
    EXPECT_EQ(disk.Get("to.bin"), content);
    EXPECT_EQ(files.Status("S:\\to.bin").modified, (LocalTime{2003, 5, 6, 7, 8, 9}));
}

/// While it exists, no file may grow beyond this size; a write that would fails.
class SizeLimit {
public:
    explicit SizeLimit(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }

private:
    void (*signal_)(int);
    rlimit before_{};
};

TEST_F(PosixFilesTest, LeavesNoHalfCopyBehind)
{
    disk.Put("from.bin", std::string(700000, 'x'));
    disk.Put("to.bin", "the file before");
    {
        const SizeLimit limit(300000);
        EXPECT_EQ(Failure([&] { files.CopyContent("S:\\from.bin", "S:\\to.bin"); }), 57);
    }
    EXPECT_FALSE(disk.Has("to.bin"));
    EXPECT_TRUE(disk.Has("from.bin"));
}

TEST_F(PosixFilesTest, RemovesNoDeviceThoughACopyToItFails)
{
    disk.Put("from.bin", "abc");
    create_symlink("/dev/full", disk.Path("full"));
    EXPECT_EQ(Failure([&] { files.CopyContent("S:\\from.bin", "S:\\full"); }), 61);
    EXPECT_TRUE(disk.Has("full"));
}

TEST_F(PosixFilesTest, RefusesToCopyAFileOntoItself)
{
    disk.Put("a.txt", "abc");
    EXPECT_EQ(Failure([&] { files.CopyContent("S:\\a.txt", "A:\\A.TXT"); }), 70);
    EXPECT_EQ(disk.Get("a.txt"), "abc");
}

TEST_F(PosixFilesTest, RemovesEmptyFoldersOnly)
{
    disk.Put("Data/a.txt", "");
    EXPECT_EQ(Failure([&] { files.RemoveFolder("S:\\data"); }), 75);
    EXPECT_EQ(Failure([&] { files.RemoveFolder("S:\\data\\a.txt"); }), 75);
    files.RemoveFile("S:\\data\\A.TXT");
    files.RemoveFolder("S:\\DATA");
    EXPECT_FALSE(disk.Has("Data"));
}

TEST_F(PosixFilesTest, RenamesAndChangesTheCaseOfAName)
{
    disk.Put("a.txt", "abc");
    files.Rename("S:\\A.TXT", "S:\\b.txt");
    EXPECT_EQ(disk.Get("b.txt"), "abc");
    files.Rename("S:\\b.txt", "S:\\B.TXT");
    EXPECT_EQ(files.List("S:\\")[0].name, "B.TXT");
    EXPECT_EQ(Failure([&] { files.Rename("S:\\c.txt", "S:\\d.txt"); }), 53);
}

TEST_F(PosixFilesTest, RenamesAcrossDisksWithDateAndContent)
{
    const std::string memoryDisk = "/dev/shm";
    struct stat here {};
    struct stat there {};
    if (stat(memoryDisk.c_str(), &there) != 0 || access(memoryDisk.c_str(), W_OK) != 0 ||
        stat(disk.Path().c_str(), &here) != 0 || here.st_dev == there.st_dev)
        GTEST_SKIP() << "this machine has no second disk at " << memoryDisk;

    disk.Put("a.txt", "abc");
    files.SetModified("S:\\a.txt", {2003, 5, 6, 7, 8, 9});
    const Text target = "Z:\\dev\\shm\\" + ExtractFilename(*drives.ToWindows(disk.Path())) + ".txt";
    files.Rename("S:\\a.txt", target);
    EXPECT_FALSE(disk.Has("a.txt"));
    EXPECT_EQ(ReadWholeFile(files, target), "abc");
    EXPECT_EQ(files.Status(target).modified, (LocalTime{2003, 5, 6, 7, 8, 9}));
    files.RemoveFile(target);
}

TEST_F(PosixFilesTest, PutsAFileInThePlaceOfAnotherThatKeepsItsRightsAndLinks)
{
    disk.Put("old.txt", "old");
    disk.Put("new.txt", "new");
    chmod(disk.Path("old.txt").c_str(), 0640);
    disk.PutFolder("links");
    std::filesystem::create_symlink("../old.txt", disk.Path("links/link.txt"));
    files.Replace("S:\\new.txt", "S:\\links\\LINK.TXT");
    EXPECT_FALSE(disk.Has("new.txt"));
    EXPECT_EQ(disk.Get("old.txt"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(disk.Path("links/link.txt")));
    struct stat status {};
    stat(disk.Path("old.txt").c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(PosixFilesTest, PutsAFileWhereNoneIs)
{
    disk.Put("new.txt", "new");
    files.Replace("S:\\new.txt", "S:\\name.txt");
    EXPECT_EQ(disk.Get("name.txt"), "new");
    EXPECT_EQ(Failure([&] { files.Replace("S:\\gone.txt", "S:\\name.txt"); }), 53);
    EXPECT_EQ(disk.Get("name.txt"), "new");
}

TEST_F(PosixFilesTest, ReplacesNoFileThatMayNotBeWritten)
{
    disk.Put("old.txt", "old");
    disk.Put("new.txt", "new");
    chmod(disk.Path("old.txt").c_str(), 0444);
    EXPECT_EQ(Failure([&] { files.Replace("S:\\new.txt", "S:\\old.txt"); }), 75);
    EXPECT_EQ(disk.Get("old.txt"), "old");
    EXPECT_EQ(disk.Get("new.txt"), "new");
}

TEST_F(PosixFilesTest, KnowsRoomAndKindOfADrive)
{
    EXPECT_GT(files.FreeSpace("S:\\"), 0U);
    EXPECT_EQ(files.DriveType("A:\\"), DriveKind::Removable);
    EXPECT_EQ(files.DriveType("Q:\\"), DriveKind::NoRoot);
    EXPECT_NE(files.DriveType("S:\\"), DriveKind::NoRoot);
    EXPECT_NE(files.DriveType("S:\\"), DriveKind::Cd);
}

TEST_F(PosixFilesTest, HasNoShortNames)
{
    EXPECT_EQ(files.ShortPath("S:\\A long name.text"), "S:\\A long name.text");
}

} // namespace
} // namespace quillon
