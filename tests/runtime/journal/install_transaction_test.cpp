// Each change that a transaction can make, by itself: it is noted before it is made, it can be
// taken back, and after a kill a second time, and it stays once it is committed.
#include "runtime/journal/install_transaction.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/journal/rollback.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;
using NewFile = InstallTransaction::NewFile;

const Text kFormerFile = "C:\\Program\\Exempel\\gammal.txt";
const Text kNewFile = "C:\\Program\\Exempel\\ny.txt";
const Text kJournalPath = "C:\\Program\\Exempel\\~qnsetup.tmp";
const RegistryKey kCompany{RegistryRoot::CurrentUser, "SOFTWARE\\Firma"};

NewFile Staged(InstallTransaction& changes, FileSystem& files, const Text& path)
{
    const Text staged = changes.StagingPath(path);
    WriteWholeFile(files, staged, "ny");
    return {.staged = staged, .path = path, .replaces = files.FileExists(path)};
}

struct Change {
    const char* name;
    void (*make)(InstallTransaction& changes, FileSystem& files);
    Text note; // what the journal has before the first bit of it is done
};

class InstallTransactionTest : public SetupFixture {
protected:
    InstallTransactionTest()
    {
        memory.files.Put(kFormerFile, "gammal");
        target.keys[{RegistryRoot::CurrentUser, "software"}] = {"SOFTWARE", {}};
        target.keys[{RegistryRoot::CurrentUser, "software\\firma"}] = {
            "SOFTWARE\\Firma", {{"antal", {"Antal", NumberData(1)}}}};
        target.keys[{RegistryRoot::CurrentUser, "software\\firma\\djup"}] = {
            "SOFTWARE\\Firma\\Djup", {{"namn", {"Namn", TextData("x")}}}};
    }

    /// Without the files that are the transaction's own.
    MachineState StateOfProduct() const
    {
        MachineState state = State();
        std::erase_if(state.files,
                      [](const auto& file) { return file.first.find("~qn") != Text::npos; });
        return state;
    }
    void OnEachChange(const std::function<void()>& hook)
    {
        files.beforeChange = target.beforeChange = hook;
    }
    EarlierRun Finish() { return FinishInterrupted({host, target, log}, kMain); }

    InstallJournal installJournal;
    ActionLog log;
};

class ChangeOfATransaction : public InstallTransactionTest,
                             public testing::WithParamInterface<Change> {
protected:
    void Make(InstallTransaction& changes)
    {
        changes.Begin(kMain, "Exempel");
        GetParam().make(changes, files);
    }
};

TEST_P(ChangeOfATransaction, IsNotedBeforeItIsMade)
{
    const MachineState before = StateOfProduct();
    const auto isNoted = [&] {
        return memory.files.FileExists(kJournalPath) &&
               memory.files.Get(kJournalPath).find(GetParam().note) != Text::npos;
    };
    InstallTransaction changes(host, target, installJournal, log);
    OnEachChange([&] {
        if (!isNoted())
            EXPECT_EQ(StateOfProduct(), before);
    });
    Make(changes);
    EXPECT_TRUE(isNoted()) << memory.files.Get(kJournalPath);
    EXPECT_NE(StateOfProduct(), before);
}

TEST_P(ChangeOfATransaction, IsUndone)
{
    const MachineState before = State();
    InstallTransaction changes(host, target, installJournal, log);
    Make(changes);
    EXPECT_TRUE(changes.Undo());
    EXPECT_EQ(State(), before);
}

TEST_P(ChangeOfATransaction, IsUndoneTwiceWithoutHarm)
{
    const MachineState before = State();
    {
        InstallTransaction killed(host, target, installJournal, log);
        Make(killed);
    }
    const Text journal = memory.files.Get(kJournalPath);
    EXPECT_EQ(Finish(), EarlierRun::Finished);
    EXPECT_EQ(State(), before);
    // The rollback was killed just before it removed the journal.
    memory.files.Put(kJournalPath, journal);
    EXPECT_EQ(Finish(), EarlierRun::Finished);
    EXPECT_EQ(State(), before);
}

TEST_P(ChangeOfATransaction, StaysWhenItIsCommitted)
{
    InstallTransaction changes(host, target, installJournal, log);
    Make(changes);
    const MachineState made = StateOfProduct();
    changes.Commit();
    changes.CleanUp();
    EXPECT_EQ(State(), made);
    EXPECT_EQ(Finish(), EarlierRun::None);
    EXPECT_EQ(State(), made);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(, ChangeOfATransaction, testing::Values(
    Change{"MakesAFolder", [](InstallTransaction& changes, FileSystem&) { changes.MakeFolder(kMain + "\\Data\\Djup"); },
           "FOLDER\tC:\\Program\\Exempel\\Data\r\n"},
    Change{"PutsANewFile", [](InstallTransaction& changes, FileSystem& files) { changes.PutFile(Staged(changes, files, kNewFile)); },
           "FILE\tC:\\Program\\Exempel\\ny.txt\r\n"},
    Change{"ReplacesAFile", [](InstallTransaction& changes, FileSystem& files) { changes.PutFile(Staged(changes, files, kFormerFile)); },
           "ASIDE\tC:\\Program\\Exempel\\gammal.txt\t"},
    Change{"KeepsABackup", [](InstallTransaction& changes, FileSystem&) { changes.KeepBackup(kFormerFile); },
           "FILE\tC:\\Program\\Exempel\\gammal.txt.bak\r\n"},
    Change{"RemovesAFile", [](InstallTransaction& changes, FileSystem&) { changes.RemoveFile(kFormerFile); },
           "ASIDE\tC:\\Program\\Exempel\\gammal.txt\t"},
    Change{"MakesAKey", [](InstallTransaction& changes, FileSystem&) { changes.MakeKey({RegistryRoot::CurrentUser, "SOFTWARE\\Firma\\Ny\\Nyckel"}); },
           "KEY\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\\Ny\r\n"},
    Change{"WritesANewValue", [](InstallTransaction& changes, FileSystem&) { changes.WriteValue(kCompany, "Ny", NumberData(2)); },
           "FORMERVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tNy\t\t\r\n"},
    Change{"WritesOverAValue", [](InstallTransaction& changes, FileSystem&) { changes.WriteValue(kCompany, "Antal", NumberData(2)); },
           "FORMERVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tAntal\t4\t01000000\r\n"},
    Change{"RemovesAValue", [](InstallTransaction& changes, FileSystem&) { changes.RemoveValue(kCompany, "Antal"); },
           "FORMERVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tAntal\t4\t01000000\r\n"},
    Change{"RemovesAKey", [](InstallTransaction& changes, FileSystem&) { changes.RemoveKeyWithAllBelow(kCompany); },
           "FORMERVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\\Djup\tNamn\t"},
    Change{"MakesAShortcut", [](InstallTransaction& changes, FileSystem&) { changes.MakeShortcut(kMain + "\\Ny.lnk", {.program = kFormerFile}); },
           "FILE\tC:\\Program\\Exempel\\Ny.lnk\r\n"},
    Change{"RegistersAServer", [](InstallTransaction& changes, FileSystem&) { changes.RegisterServer(kFormerFile); },
           "REGISTERED\tC:\\Program\\Exempel\\gammal.txt\r\n"},
    Change{"AnnouncesAFont", [](InstallTransaction& changes, FileSystem&) { changes.AnnounceFont(kFormerFile); },
           "FONT\tC:\\Program\\Exempel\\gammal.txt\r\n"}),
    [](const auto& test) { return test.param.name; });
// clang-format on

TEST_F(InstallTransactionTest, MovesAFileAtRestartOnlyOnceItIsCommitted)
{
    const MachineState before = State();
    InstallTransaction changes(host, target, installJournal, log);
    changes.Begin(kMain, "Exempel");
    const NewFile file = Staged(changes, files, kFormerFile);
    changes.PutFileAtRestart(file);
    EXPECT_TRUE(changes.NeedsRestart());
    EXPECT_THAT(memory.files.Get(kJournalPath), HasSubstr("ATRESTART\t" + file.staged));
    EXPECT_TRUE(target.movesAtRestart.empty());
    EXPECT_EQ(StateOfProduct(), before);

    changes.Commit();
    ASSERT_EQ(target.movesAtRestart.size(), 1U);
    EXPECT_EQ(target.movesAtRestart[0], std::pair(file.staged, kFormerFile));
    changes.CleanUp();
    EXPECT_EQ(memory.files.Get(file.staged), "ny") << "it has to be there until then";
}

TEST_F(InstallTransactionTest, ForgetsAFileForTheRestartWhenItIsUndone)
{
    const MachineState before = State();
    InstallTransaction changes(host, target, installJournal, log);
    changes.Begin(kMain, "Exempel");
    changes.PutFileAtRestart(Staged(changes, files, kFormerFile));
    EXPECT_TRUE(changes.Undo());
    EXPECT_TRUE(target.movesAtRestart.empty());
    EXPECT_EQ(State(), before);
}

// A commit forces to the disk what it has, writes its line, and forces that too.
TEST_F(InstallTransactionTest, IsCommittedFromItsLineOn)
{
    for (const int failingWrite : {1, 2, 3}) {
        memory.files.Put(kFormerFile, "gammal");
        const MachineState before = State();
        InstallTransaction changes(host, target, installJournal, log);
        changes.Begin(kMain, "Exempel");
        changes.PutFile(Staged(changes, files, kFormerFile));
        memory.files.FailFromWrite(failingWrite, ErrorNumber::kDeviceIo);
        const int failure = RunErrorNumber([&] { changes.Commit(); });
        memory.files.FailFromWrite(std::numeric_limits<int>::max(), ErrorNumber::kNone);

        const bool isCommitted = failingWrite == 3;
        EXPECT_EQ(failure, isCommitted ? ErrorNumber::kNone : ErrorNumber::kDeviceIo);
        EXPECT_EQ(memory.files.Get(kJournalPath).find("COMMITTED") != Text::npos, isCommitted);
        if (isCommitted)
            changes.CleanUp();
        else
            EXPECT_TRUE(changes.Undo());
        EXPECT_EQ(memory.files.Get(kFormerFile), isCommitted ? "ny" : "gammal");
        EXPECT_EQ(State().files.size(), before.files.size());
    }
}

TEST_F(InstallTransactionTest, RemovesAnEmptyFolderAtItsEndAlone)
{
    memory.files.PutFolder(kMain + "\\Tom");
    InstallTransaction changes(host, target, installJournal, log);
    changes.Begin(kMain, "Exempel");
    changes.RemoveFolderAtEnd(kMain + "\\Tom");
    changes.RemoveFolderAtEnd(kMain);
    changes.Commit();
    EXPECT_TRUE(memory.files.DirExists(kMain + "\\Tom"));
    changes.CleanUp();
    EXPECT_FALSE(memory.files.DirExists(kMain + "\\Tom"));
    EXPECT_TRUE(memory.files.DirExists(kMain)) << "a file is in it";
}

TEST_F(InstallTransactionTest, GoesOnTakingBackWhateverOneStepThrows)
{
    InstallTransaction changes(host, target, installJournal, log);
    changes.Begin("C:\\Ny", "Exempel");
    changes.MakeFolder("C:\\Ny");
    changes.MakeKey({RegistryRoot::LocalMachine, "SOFTWARE\\Ny"});
    target.beforeChange = [] { throw std::bad_alloc(); };
    EXPECT_FALSE(changes.Undo());
    EXPECT_FALSE(memory.files.DirExists("C:\\Ny"));
}

} // namespace
} // namespace quillon::test
