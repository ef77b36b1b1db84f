// Saving on real disks: full ones, files of other users, killed programs, links.
#include "platform/posix/posix_files.h"
#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"
#include "support/small_disk.h"

#include <csignal>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPath = "S:\\a.qnp";
constexpr const char* kNoAdministrator = "only an administrator can set this up";

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

struct stat StatusOf(const std::string& path)
{
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
}

class PosixSaving : public testing::Test {
protected:
    PosixSaving() { disk.Put("a.qnp", "old"); }

    std::vector<std::string> Names() const { return NamesIn(disk.Path()); }

    test::TempFolder disk;
    DriveMap drives{{{'Z', "/"}, {'S', disk.Path()}}};
    PosixFiles files{drives};
};

using Listed = std::vector<std::string>;

TEST_F(PosixSaving, MakesAndReplacesFiles)
{
    SaveWholeFile(files, "S:\\b.qnp", "first");
    SaveWholeFile(files, "S:\\B.QNP", "second");
    EXPECT_EQ(disk.Get("b.qnp"), "second");
    EXPECT_EQ(Names(), (Listed{"a.qnp", "b.qnp"}));
}

TEST_F(PosixSaving, SavesBehindALinkOnAnotherDisk)
{
    const test::SmallDisk other("1m");
    if (!other.IsMounted())
        GTEST_SKIP() << kNoAdministrator;
    other.Folder().Put("a.qnp", "old");
    fs::create_symlink(other.Folder().Path("a.qnp"), disk.Path("link.qnp"));
    SaveWholeFile(files, "S:\\link.qnp", "new");
    EXPECT_TRUE(fs::is_symlink(disk.Path("link.qnp")));
    EXPECT_EQ(other.Folder().Get("a.qnp"), "new");
    EXPECT_EQ(NamesIn(other.Folder().Path()), Listed{"a.qnp"});
}

TEST_F(PosixSaving, LeavesTheOldFileOnAFullDisk)
{
    const test::SmallDisk full("64k");
    if (!full.IsMounted())
        GTEST_SKIP() << kNoAdministrator;
    full.Folder().Put("a.qnp", std::string(40000, 'x'));
    DriveMap there({{'S', full.Folder().Path()}});
    PosixFiles small(there);
    try {
        SaveWholeFile(small, kPath, std::string(40000, 'y'));
        ADD_FAILURE() << "there is no room for a second file";
    } catch (const RunError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::kDiskFull);
        EXPECT_EQ(error.Path(), kPath);
    }
    EXPECT_EQ(full.Folder().Get("a.qnp"), std::string(40000, 'x'));
    EXPECT_EQ(NamesIn(full.Folder().Path()), Listed{"a.qnp"});
}

/// While this object lives, the process has the rights of this user; needs an administrator to
/// begin with.
class DiskUser {
public:
    explicit DiskUser(uid_t user)
    {
        setfsgid(user);
        setfsuid(user);
    }
    ~DiskUser()
    {
        setfsuid(geteuid());
        setfsgid(getegid());
    }
};

constexpr uid_t kOwner = 4711;
constexpr uid_t kOther = 4712;

class SavingAsAnother : public PosixSaving {
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << kNoAdministrator;
    }

    // Whose file it is, and what may be done in its folder.
    void Arrange(uid_t owner, gid_t group, mode_t mode, mode_t folderMode)
    {
        ASSERT_EQ(chown(disk.Path("a.qnp").c_str(), owner, group), 0);
        ASSERT_EQ(chmod(disk.Path("a.qnp").c_str(), mode), 0);
        ASSERT_EQ(chmod(disk.Path().c_str(), folderMode), 0);
    }

    int SaveAs(uid_t user)
    {
        const DiskUser as(user);
        return RunErrorNumber([&] { SaveWholeFile(files, kPath, "new"); });
    }
};

TEST_F(SavingAsAnother, TheAdministratorGivesTheFileBackToItsOwner)
{
    Arrange(kOwner, kOwner, 0640, 0755);
    SaveWholeFile(files, kPath, "new");
    EXPECT_EQ(disk.Get("a.qnp"), "new");
    EXPECT_EQ(StatusOf(disk.Path("a.qnp")).st_uid, kOwner);
    EXPECT_EQ(StatusOf(disk.Path("a.qnp")).st_mode & 07777U, 0640U);
}

TEST_F(SavingAsAnother, RefusesWhereTheOwnerWouldBeLost)
{
    Arrange(kOwner, kOwner, 0666, 0777);
    EXPECT_EQ(SaveAs(kOther), ErrorNumber::kPermissionDenied);
    EXPECT_EQ(disk.Get("a.qnp"), "old");
    EXPECT_EQ(StatusOf(disk.Path("a.qnp")).st_uid, kOwner);
    EXPECT_EQ(Names(), Listed{"a.qnp"});
}

TEST_F(SavingAsAnother, TakesAFileThatAGroupSharesAlike)
{
    Arrange(kOwner, kOther, 0664, 0777);
    EXPECT_EQ(SaveAs(kOther), ErrorNumber::kNone);
    EXPECT_EQ(disk.Get("a.qnp"), "new");
    EXPECT_EQ(StatusOf(disk.Path("a.qnp")).st_gid, kOther);
    EXPECT_EQ(StatusOf(disk.Path("a.qnp")).st_mode & 07777U, 0664U);
}

TEST_F(SavingAsAnother, RefusesWhereTheNameCannotBeTaken)
{
    Arrange(kOwner, kOther, 0664, 01777);
    EXPECT_EQ(SaveAs(kOther), ErrorNumber::kPermissionDenied);
    EXPECT_EQ(disk.Get("a.qnp"), "old");
    EXPECT_EQ(Names(), Listed{"a.qnp"});
}

TEST_F(SavingAsAnother, RefusesInAFolderThatTakesNoFile)
{
    Arrange(kOther, kOther, 0644, 0755);
    EXPECT_EQ(SaveAs(kOther), ErrorNumber::kPermissionDenied);
    EXPECT_EQ(disk.Get("a.qnp"), "old");
}

TEST_F(PosixSaving, NeverReplacesADeviceOrAReadOnlyFile)
{
    fs::create_symlink("/dev/null", disk.Path("null"));
    EXPECT_EQ(RunErrorNumber([&] { SaveWholeFile(files, "S:\\null", "new"); }),
              ErrorNumber::kPathFileAccess);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    fs::remove(disk.Path("null"));
    chmod(disk.Path("a.qnp").c_str(), 0444);
    EXPECT_EQ(RunErrorNumber([&] { SaveWholeFile(files, kPath, "new"); }),
              ErrorNumber::kPathFileAccess);
    EXPECT_EQ(Names(), Listed{"a.qnp"});
}

/// Files whose program is killed before its n-th step on the disk.
class KillingFiles : public PosixFiles {
public:
    KillingFiles(const DriveMap& drives, int steps) : PosixFiles(drives), left_(steps) {}

    std::unique_ptr<OutputFile> OpenNew(const Text& path) override
    {
        Step();
        return std::make_unique<Output>(*this, PosixFiles::OpenNew(path));
    }
    void Replace(const Text& from, const Text& to) override
    {
        Step();
        PosixFiles::Replace(from, to);
        Step();
    }
    void LinkOrCopy(const Text& path, const Text& second) override
    {
        Step();
        PosixFiles::LinkOrCopy(path, second);
    }
    void Step()
    {
        if (--left_ == 0)
            raise(SIGKILL);
    }

private:
    class Output : public OutputFile {
    public:
        Output(KillingFiles& files, std::unique_ptr<OutputFile> file)
            : files_(files), file_(std::move(file))
        {
        }
        void Write(std::span<const std::byte> bytes) override
        {
            files_.Step();
            file_->Write(bytes.first(bytes.size() / 2));
            files_.Step();
            file_->Write(bytes.subspan(bytes.size() / 2));
        }
        void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override
        {
            file_->WriteAt(position, bytes);
        }
        std::uint64_t Position() const override { return file_->Position(); }
        void Flush() override
        {
            files_.Step();
            file_->Flush();
        }
        void Close() override
        {
            files_.Step();
            file_->Close();
        }

    private:
        KillingFiles& files_;
        std::unique_ptr<OutputFile> file_;
    };

    int left_;
};

/// Whether a program that does this with files of its own was killed.
template <class Work>
bool IsKilled(const DriveMap& drives, int steps, Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        KillingFiles files(drives, steps);
        work(files);
        _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

TEST_F(PosixSaving, ANewFileOrTheOldOneIsThereWheneverTheProgramIsKilled)
{
    int kills = 0;
    const auto save = [](FileSystem& own) {
        const auto lock = LockSavedFile(own, kPath, LockWait::UntilFree);
        SavedFile file(own, kPath);
        file.Write(std::as_bytes(std::span("new", 3)));
        file.Close();
        KeepBeside(own, kPath);
        file.Commit();
    };
    for (int steps = 1; IsKilled(drives, steps, save); ++steps, ++kills) {
        const std::string content = disk.Get("a.qnp");
        EXPECT_TRUE(content == "old" || content == "new") << content;
        if (content == "new")
            EXPECT_EQ(disk.Get("a.qnp.bak"), "old");
        // The next program is not kept out, and removes what is left.
        EXPECT_NE(LockSavedFile(files, kPath, LockWait::None), nullptr);
        SaveWholeFile(files, kPath, "old");
        fs::remove(disk.Path("a.qnp.bak"));
        EXPECT_EQ(Names(), Listed{"a.qnp"}) << "killed before step " << steps;
    }
    EXPECT_EQ(kills, 8);
    EXPECT_EQ(disk.Get("a.qnp"), "new");
}

TEST_F(PosixSaving, ATemporaryFileInUseIsNobodyElsesToClear)
{
    SavedFile running(files, kPath);
    running.Write(std::as_bytes(std::span("running", 7)));
    running.Close();
    DriveMap sameDrives({{'S', disk.Path()}});
    PosixFiles others(sameDrives);
    SaveWholeFile(others, kPath, "new");
    others.RemoveAbandoned(running.TemporaryPath());
    EXPECT_EQ(Names(), (Listed{"a.qnp", "a.qnp.tmp1"}));
    running.Commit();
    EXPECT_EQ(disk.Get("a.qnp"), "running");
    EXPECT_EQ(Names(), Listed{"a.qnp"});
}

TEST_F(PosixSaving, OneProgramAtATimeHasTheLockByWhateverNameOfTheFile)
{
    fs::create_symlink("a.qnp", disk.Path("link.qnp"));
    auto lock = LockSavedFile(files, kPath, LockWait::None);
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(LockSavedFile(files, "S:\\LINK.qnp", LockWait::None), nullptr);
    EXPECT_TRUE(disk.Has("a.qnp.lock"));
    lock.reset();
    EXPECT_FALSE(disk.Has("a.qnp.lock"));
    disk.Put("a.qnp.lock", "left by a program that was killed");
    EXPECT_NE(LockSavedFile(files, "S:\\link.qnp", LockWait::None), nullptr);
}

TEST_F(PosixSaving, WaitingForTheLockEndsWithEachOfItsHolders)
{
    constexpr int kRounds = 500;
    int counter = 0; // guarded by the lock alone
    const auto count = [&] {
        for (int i = 0; i < kRounds; ++i) {
            const auto lock = LockSavedFile(files, kPath, LockWait::UntilFree);
            counter = counter + 1;
        }
    };
    std::thread other(count);
    count();
    other.join();
    EXPECT_EQ(counter, 2 * kRounds);
    EXPECT_EQ(Names(), Listed{"a.qnp"});
}

TEST_F(PosixSaving, KeepsTheOldFileWithItsRights)
{
    chmod(disk.Path("a.qnp").c_str(), 0600);
    EXPECT_EQ(KeepBeside(files, kPath), "S:\\a.qnp.bak");
    SaveWholeFile(files, kPath, "new");
    EXPECT_EQ(disk.Get("a.qnp.bak"), "old");
    EXPECT_EQ(StatusOf(disk.Path("a.qnp.bak")).st_mode & 07777U, 0600U);
    EXPECT_EQ(disk.Get("a.qnp"), "new");
}

} // namespace
} // namespace quillon
