// What waits for the machine's next start, when a later setup has done it already.
#include "runtime/journal/restart_moves.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/journal/install_journal.h"
#include "runtime/journal/rollback.h"
#include "runtime/support/setup_fixture.h"

namespace quillon::test {
namespace {

const Text kFile = kMain + "\\levande.dll";
const std::string kEmpty("\0\0", 2);
constexpr std::uint32_t kListOfTexts = 7;

/// A system that writes down what it is to move, as Windows does.
class RestartMoves : public SetupFixture, public testing::WithParamInterface<const char*> {
protected:
    RestartMoves()
    {
        target.restartMark = GetParam();
        AddFile("levande.dll", "%DESTDIR", "version 1", "A");
        target.MakeKey(RestartMovesKey());
    }

    std::string Move(const Text& from, const Text& to) const
    {
        return target.RestartEntry(from, to);
    }
    void WriteMoves(const std::string& moves)
    {
        target.WriteValue(RestartMovesKey(), kRestartMoves, {kListOfTexts, moves + kEmpty});
    }
    std::string Moves() const
    {
        const auto present = target.ReadValue(RestartMovesKey(), kRestartMoves);
        return present ? present->bytes : "";
    }
    /// What the setup has asked the system for so far stands in its list.
    void TakeDown()
    {
        std::string moves;
        for (const auto& [from, to] : target.movesAtRestart)
            moves += Move(from, to);
        WriteMoves(moves);
    }
    void InstallWhileItIsHeld(const std::string& bytes)
    {
        sources[0].bytes = bytes;
        package.rows[0].size = bytes.size();
        files.inUse = {kFile};
        ASSERT_EQ(Install(), ExitCode::RestartNeeded) << Log();
        files.inUse.clear();
    }
    void InstallVersion(const std::string& bytes)
    {
        sources[0].bytes = bytes;
        package.rows[0].size = bytes.size();
        ASSERT_EQ(Install(), ExitCode::Done) << Log();
    }
    /// The temporary folders beside the file.
    int TempFolders() const
    {
        int count = 0;
        for (const FolderEntry& entry : memory.files.List(kMain))
            count += entry.name.starts_with("~qn");
        return count;
    }
};

// Otherwise the machine's next start would bring the older file back.
TEST_P(RestartMoves, AreForgottenWhenALaterVersionIsInItsPlace)
{
    InstallVersion("version 1");
    InstallWhileItIsHeld("version 2");
    TakeDown();
    const Text waiting = target.movesAtRestart.at(0).first;
    ASSERT_EQ(memory.files.Get(waiting), "version 2");
    InstallVersion("version 3");
    EXPECT_EQ(Moves(), "");
    EXPECT_FALSE(memory.files.FileExists(waiting));
    EXPECT_EQ(TempFolders(), 0);
    EXPECT_EQ(memory.files.Get(kFile), "version 3");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.DirExists(kMain)) << Log();
}

TEST_P(RestartMoves, OfOthersStay)
{
    InstallVersion("version 1");
    const Text others = "C:\\Temp\\annan.tmp";
    memory.files.Put(others, "of another setup");
    memory.files.Put(kMain + "\\~qn5.tmp\\1", "for another place");
    const std::string moves = Move("C:\\bort.txt", "") + Move(others, kFile) +
                              Move(kMain + "\\~qn5.tmp\\1", kMain + "\\annan.dll");
    WriteMoves(moves);
    InstallVersion("version 2");
    EXPECT_EQ(Moves(), moves + kEmpty);
    EXPECT_TRUE(memory.files.FileExists(others));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\~qn5.tmp\\1"));
}

TEST_P(RestartMoves, OfWhatHasGoneAreForgottenToo)
{
    InstallVersion("version 1");
    WriteMoves(Move(kMain + "\\~qn6.tmp\\1", "c:\\PROGRAM\\exempel\\Levande.dll"));
    InstallVersion("version 2");
    EXPECT_EQ(Moves(), "");
}

// An uninstaller has found the file in use, and the product comes back before the next start.
TEST_P(RestartMoves, RemoveNoFileThatIsInstalledAgain)
{
    const std::string others = Move("C:\\bort.txt", "");
    WriteMoves(others + Move("c:\\PROGRAM\\exempel\\Levande.dll", ""));
    memory.files.Put(kFile, "version 1");
    InstallVersion("version 2");
    EXPECT_EQ(Moves(), others + kEmpty);
    EXPECT_EQ(memory.files.Get(kFile), "version 2");
}

TEST_P(RestartMoves, RemoveNoFileThatASetupKeeps)
{
    package.rows[0].copyOptions = "D";
    memory.files.Put(kFile, "a newer one", {2030, 1, 1, 0, 0, 0});
    WriteMoves(Move(kFile, ""));
    InstallVersion("version 1");
    ASSERT_EQ(memory.files.Get(kFile), "a newer one") << Log();
    EXPECT_EQ(Moves(), "");
}

TEST_P(RestartMoves, RemoveWhatASetupThatFailsHasLeftAsItWas)
{
    const std::string before = Move(kFile, "");
    WriteMoves(before);
    memory.files.Put(kFile, "version 1");
    AddFile("annan.dll", "%DESTDIR", "annan");
    memory.files.Put(kMain + "\\annan.dll", "held", {2003, 1, 1, 0, 0, 0});
    files.inUse = {kMain + "\\annan.dll"};
    EXPECT_EQ(Install(), ExitCode::FileInUse) << Log();
    EXPECT_EQ(Moves(), before + kEmpty);
}

TEST_P(RestartMoves, OfTheSetupItselfStay)
{
    InstallVersion("version 1");
    InstallWhileItIsHeld("version 2");
    TakeDown();
    const std::string first = Moves();
    InstallWhileItIsHeld("version 3");
    // The later one comes last, so that it is what is there in the end.
    EXPECT_EQ(Moves(), first);
    EXPECT_EQ(memory.files.Get(target.movesAtRestart.at(0).first), "version 2");
}

// One that fails has put nothing in the place of what waits.
TEST_P(RestartMoves, StayWhereTheLaterSetupFails)
{
    InstallVersion("version 1");
    InstallWhileItIsHeld("version 2");
    TakeDown();
    const std::string before = Moves();
    AddFile("annan.dll", "%DESTDIR", "annan");
    memory.files.Put(kMain + "\\annan.dll", "held", {2003, 1, 1, 0, 0, 0});
    files.inUse = {kMain + "\\annan.dll"};
    EXPECT_EQ(Install(), ExitCode::FileInUse) << Log();
    EXPECT_EQ(Moves(), before);
    EXPECT_EQ(memory.files.Get(target.movesAtRestart.at(0).first), "version 2");
}

// The next run clears that away, and that is part of it.
TEST_P(RestartMoves, AreForgottenBehindASetupThatWasKilledAfterItsCommit)
{
    InstallVersion("version 1");
    InstallWhileItIsHeld("version 2");
    TakeDown();
    struct Killed {};
    target.beforeChange = [&] {
        if (memory.files.FileExists(kMain + "\\~qnsetup.tmp") &&
            memory.files.Get(kMain + "\\~qnsetup.tmp").find("\r\nCOMMITTED") != Text::npos)
            throw Killed{};
    };
    EXPECT_THROW(InstallVersion("version 3"), Killed);
    target.beforeChange = [] {};
    EXPECT_NE(Moves(), "");
    ActionLog log;
    EXPECT_EQ(FinishInterrupted({host, target, log}, kMain), EarlierRun::Finished);
    EXPECT_EQ(Moves(), "");
    EXPECT_EQ(memory.files.Get(kFile), "version 3");
}

/// A setup that ends when it asks the system for its second move.
class RestartMovesOfAFailedSetup : public RestartMoves {
protected:
    RestartMovesOfAFailedSetup()
    {
        AddFile("b.dll", "%DESTDIR", "version 1", "A");
        EXPECT_EQ(Install(), ExitCode::Done) << Log();
        before = State();
        target.listsMovesAtRestart = true;
        WriteMoves(others);
        files.inUse = {kFile, kMain + "\\b.dll"};
    }
    /// Once.
    template <class Failure>
    void FailAtSecondMove(const Failure& failure)
    {
        target.beforeChange = [this, failure] {
            if (target.movesAtRestart.size() != 1 || wasListed)
                return;
            wasListed = Moves() != others + kEmpty;
            throw failure;
        };
    }
    void ExpectNothingLeft()
    {
        EXPECT_EQ(Moves(), others + kEmpty);
        EXPECT_EQ(TempFolders(), 0);
        target.keys.at({RegistryRoot::LocalMachine, LowerCase(RestartMovesKey().subKey)})
            .values.clear();
        EXPECT_EQ(State(), before);
    }

    const std::string others = Move("C:\\bort.txt", "");
    MachineState before;
    bool wasListed = false; // the first move
};

TEST_P(RestartMovesOfAFailedSetup, AreForgottenWhenItIsUndone)
{
    FailAtSecondMove(RunError(ErrorNumber::kDeviceIo, "disken"));
    EXPECT_EQ(Install(), ExitCode::Failed) << Log();
    EXPECT_TRUE(wasListed);
    ExpectNothingLeft();
}

TEST_P(RestartMovesOfAFailedSetup, AreForgottenByTheNextRunWhereItWasKilled)
{
    struct Killed {};
    FailAtSecondMove(Killed{});
    EXPECT_THROW(Install(), Killed);
    EXPECT_TRUE(wasListed);
    ActionLog log;
    EXPECT_EQ(FinishInterrupted({host, target, log}, kMain), EarlierRun::Finished);
    ExpectNothingLeft();
}

// What stands before a path depends on the system.
INSTANTIATE_TEST_SUITE_P(Marked, RestartMoves, testing::Values("", "*1", "*12"));
INSTANTIATE_TEST_SUITE_P(Marked, RestartMovesOfAFailedSetup, testing::Values("", "*1"));

} // namespace
} // namespace quillon::test
