#include "platform/saved_file.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "support/memory_host.h"

namespace quillon {
namespace {

constexpr const char* kPath = "C:\\P\\a.qnp";

class SavedFileTest : public testing::Test {
protected:
    SavedFileTest() { files.Put(kPath, "old"); }

    std::vector<Text> Names() const
    {
        std::vector<Text> names;
        for (const FolderEntry& entry : files.List("C:\\P"))
            names.push_back(entry.name);
        return names;
    }

    static std::span<const std::byte> Bytes(std::string_view text)
    {
        return std::as_bytes(std::span(text.data(), text.size()));
    }

    test::MemoryFiles files;
};

TEST_F(SavedFileTest, TakesThePlaceOfTheOldFileAtItsEndOnly)
{
    SavedFile file(files, kPath);
    EXPECT_EQ(file.TemporaryPath(), "C:\\P\\a.qnp.tmp1");
    file.Write(Bytes("nXw"));
    file.WriteAt(1, Bytes("e"));
    EXPECT_EQ(file.Position(), 3U);
    file.Close();
    EXPECT_EQ(files.Get(kPath), "old");
    EXPECT_EQ(files.Get(file.TemporaryPath()), "new");
    file.Commit();
    EXPECT_EQ(files.Get(kPath), "new");
    EXPECT_EQ(Names(), (std::vector<Text>{"a.qnp"}));
}

TEST_F(SavedFileTest, MakesAFileWhereNoneIs)
{
    SaveWholeFile(files, "C:\\P\\b.qnp", "new");
    EXPECT_EQ(files.Get("C:\\P\\b.qnp"), "new");
}

// A write, the way to the disk, the new name: each can fail.
TEST_F(SavedFileTest, LeavesTheOldFileWhateverFails)
{
    int failures = 0;
    for (int n = 1; files.Get(kPath) == "old"; ++n, ++failures) {
        ASSERT_LT(n, 10);
        files.FailFromWrite(n, ErrorNumber::kDiskFull);
        try {
            SaveWholeFile(files, kPath, "new");
        } catch (const RunError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::kDiskFull);
            EXPECT_EQ(error.Path(), kPath) << "the user knows no temporary file";
            EXPECT_EQ(files.Get(kPath), "old");
        }
        EXPECT_EQ(Names(), (std::vector<Text>{"a.qnp"}));
    }
    EXPECT_EQ(failures, 4) << "three failures, then the success";
    EXPECT_EQ(files.Get(kPath), "new");
}

TEST_F(SavedFileTest, TellsAtOnceWhatCanNeverBeSaved)
{
    const auto failure = [&](const Text& path) {
        return RunErrorNumber([&] { SavedFile(files, path); });
    };
    EXPECT_EQ(failure("C:\\P"), ErrorNumber::kPathFileAccess);
    EXPECT_EQ(failure("C:\\Borta\\a.qnp"), ErrorNumber::kPathNotFound);
    EXPECT_EQ(Names(), (std::vector<Text>{"a.qnp"}));
}

TEST_F(SavedFileTest, ClearsWhatKilledProgramsLeftAndNothingElse)
{
    for (const char* name : {"A.QNP.tmp1", "a.qnp.tmp12", "a.qnp.tmp", "a.qnp.tmpx", "a.qnp.tmp1x",
                             "b.qnp.tmp1", "a.qnp.bak"})
        files.Put(Text("C:\\P\\") + name, "[Origin]");
    files.PutFolder("C:\\P\\a.qnp.tmp3");
    SaveWholeFile(files, kPath, "new");
    EXPECT_EQ(Names(), (std::vector<Text>{"a.qnp", "a.qnp.bak", "a.qnp.tmp", "a.qnp.tmp1x",
                                          "a.qnp.tmp3", "a.qnp.tmpx", "b.qnp.tmp1"}));
}

TEST_F(SavedFileTest, LeavesTheTemporaryFileOfAProgramThatIsStillWriting)
{
    SavedFile running(files, kPath);
    running.Write(Bytes("running"));
    SaveWholeFile(files, kPath, "new");
    running.Close();
    EXPECT_EQ(files.Get(running.TemporaryPath()), "running");
    running.Commit();
    EXPECT_EQ(files.Get(kPath), "running");
}

TEST_F(SavedFileTest, IsLockedByOneProgramAtATime)
{
    auto lock = LockSavedFile(files, kPath, LockWait::None);
    EXPECT_NE(lock, nullptr);
    EXPECT_EQ(Names(), (std::vector<Text>{"a.qnp", "a.qnp.lock"}));
    EXPECT_EQ(LockSavedFile(files, kPath, LockWait::None), nullptr);
    lock.reset();
    EXPECT_EQ(Names(), (std::vector<Text>{"a.qnp"}));
    EXPECT_NE(LockSavedFile(files, kPath, LockWait::UntilFree), nullptr);
    try {
        LockSavedFile(files, "C:\\Borta\\a.qnp", LockWait::None);
        ADD_FAILURE() << "a folder that is not there holds no lock";
    } catch (const RunError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::kPathNotFound);
        EXPECT_EQ(error.Path(), "C:\\Borta\\a.qnp");
    }
}

TEST_F(SavedFileTest, IsKeptBesideUnderAFreeName)
{
    EXPECT_EQ(KeepBeside(files, kPath), "C:\\P\\a.qnp.bak");
    EXPECT_EQ(KeepBeside(files, kPath), "C:\\P\\a.qnp.bak2");
    EXPECT_EQ(KeepBeside(files, kPath), "C:\\P\\a.qnp.bak3");
    EXPECT_EQ(files.Get("C:\\P\\a.qnp.bak"), "old");
    EXPECT_EQ(files.Get(kPath), "old");
}

} // namespace
} // namespace quillon
