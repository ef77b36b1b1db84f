// A setup that is killed in a folder that its user has chosen, which nothing names but its own
// note.
#include "runtime/journal/started_setups.h"

#include "platform/run_error.h"
#include "runtime/journal/transaction_journal.h"
#include "runtime/support/setup_fixture.h"
#include "runtime/uninstall/uninstall_program.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const Text kChosen = "E:\\Vald\\Mapp";
const Text kJournal = "E:\\~qnsetup-Vald.tmp";
const RegistryKey kMachineKey{RegistryRoot::LocalMachine, "SOFTWARE\\Quillon\\Exempel"};
const RegistryKey kUserKey{RegistryRoot::CurrentUser, "SOFTWARE\\Quillon\\Exempel"};

// Ends everything at once.
struct Killed {};

class StartedSetups : public SetupFixture {
protected:
    StartedSetups()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        AddFile("läs mig.txt", "%DESTDIR\\Data", "text");
        project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Mapp=\"%DESTDIR\"";
        memory.files.PutFolder("E:\\");
        target.keys[{RegistryRoot::CurrentUser, "software"}] = {"SOFTWARE", {}};
    }
    /// False where the setup made fewer changes than that.
    bool KillAt(int n, const Text& switches)
    {
        int changes = 0;
        files.beforeChange = target.beforeChange = [&, n] {
            if (++changes >= n)
                throw Killed{};
        };
        bool killed = false;
        try {
            Install(switches);
        } catch (const Killed&) {
            killed = true;
        }
        files.beforeChange = target.beforeChange = [] {};
        return killed;
    }
    /// In the middle, with files in their places.
    void KillInChosenFolder()
    {
        int n = 1;
        while (!memory.files.FileExists(kChosen + "\\Data\\läs mig.txt"))
            ASSERT_TRUE(KillAt(n++, "/S /D=" + kChosen));
        ASSERT_TRUE(memory.files.FileExists(kJournal));
    }
    bool IsCommitted() const
    {
        for (const Text& path : JournalPaths(kChosen))
            if (memory.files.FileExists(path))
                return memory.files.Get(path).find("\r\nCOMMITTED") != Text::npos;
        return memory.files.FileExists(kChosen + "\\QNXUNIN.LOG");
    }
    void PutNote(const RegistryKey& key, const RegistryData& data)
    {
        target.MakeKey(key);
        target.WriteValue(key, "MainFolder", data);
    }
    std::vector<Text> Noted() const
    {
        return FoldersOfStartedSetups(memory.files, target, "Exempel");
    }
    void PrepareUninstaller()
    {
        UninstallerCommand line = ReadUninstallerCommand("");
        line.journalPath = kMain + "\\QNXUNIN.LOG";
        UninstallProgram({host, target, line, kMain + "\\QNXUNIN.EXE"}).Prepare();
    }
};

TEST_F(StartedSetups, ArePutRightByTheNextRunOfTheSetupWhereverTheyWereKilled)
{
    const auto startFiles = memory.files.nodes;
    const auto startKeys = target.keys;
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    const MachineState after = State();
    int n = 0;
    for (bool killed = true; killed && !HasFailure();) {
        memory.files.nodes = startFiles;
        target.keys = startKeys;
        killed = KillAt(++n, "/S /D=" + kChosen);
        SCOPED_TRACE("killed at change " + NumberText(n));
        const bool committed = IsCommitted();
        ASSERT_EQ(Install(), ExitCode::Done) << Log();
        if (!committed)
            ASSERT_EQ(State(), after);
        ASSERT_FALSE(target.KeyExists({RegistryRoot::LocalMachine, "SOFTWARE\\Quillon"}));
        for (const auto& [path, node] : memory.files.nodes)
            ASSERT_EQ(path.find("~qn"), Text::npos) << path;
    }
    EXPECT_GT(n, 40);
}

TEST_F(StartedSetups, ArePutRightByTheUninstallerOfTheEarlierVersionToo)
{
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    const MachineState before = State();
    KillInChosenFolder();
    EXPECT_NE(State(), before);
    PrepareUninstaller();
    EXPECT_EQ(State(), before);
}

TEST_F(StartedSetups, AreNotedForAsLongAsTheyAreAtWork)
{
    bool wasNoted = false;
    files.beforeChange = [&] {
        wasNoted = wasNoted || target.TextAt(kMachineKey, "MainFolder") == kChosen;
    };
    const MachineState before = State();
    files.inUse = {kChosen + "\\prog.exe"};
    memory.files.Put(kChosen + "\\prog.exe", "held", {2003, 1, 1, 0, 0, 0});
    EXPECT_EQ(Install("/S /D=" + kChosen), ExitCode::FileInUse) << Log();
    EXPECT_TRUE(wasNoted);
    EXPECT_EQ(State().registry, before.registry);
    files.inUse.clear();
    EXPECT_EQ(Install("/S /D=" + kChosen), ExitCode::Done) << Log();
    EXPECT_FALSE(target.KeyExists({RegistryRoot::LocalMachine, "SOFTWARE\\Quillon"}));
}

TEST_F(StartedSetups, StayNotedUntilEverythingIsTakenBack)
{
    KillInChosenFolder();
    files.inUse = {kChosen + "\\prog.exe"};
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_THAT(Log(), HasSubstr("En tidigare installation till " + kChosen + " avbröts"));
    EXPECT_THAT(Noted(), ElementsAre(kChosen));
    files.inUse.clear();
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.DirExists("E:\\Vald"));
    EXPECT_THAT(Noted(), IsEmpty());
}

TEST_F(StartedSetups, AreNotedForTheUserWhereTheProductIsHis)
{
    memory.files.PutFolder("C:\\Data\\Local");
    project.Lists.Registry.clear();
    const MachineState before = State();
    ASSERT_TRUE(KillAt(12, "/S /CURRENTUSER /D=" + kChosen));
    EXPECT_EQ(target.TextAt(kUserKey, "MainFolder"), kChosen);
    EXPECT_FALSE(target.KeyExists(kMachineKey));
    EXPECT_EQ(Install("/S /CURRENTUSER"), ExitCode::Done) << Log();
    EXPECT_EQ(UninstallProduct("C:\\Data\\Local\\Programs\\Exempel\\QNXUNIN.LOG"), ExitCode::Done);
    EXPECT_EQ(State(), before);
}

TEST_F(StartedSetups, AreNotedForTheUserWhereTheMachineMayNotBeWrittenTo)
{
    target.beforeChange = [&] {
        target.beforeChange = [] {};
        throw RunError(ErrorNumber::kPermissionDenied, KeyText(kMachineKey));
    };
    NoteStartedSetup(target, "Exempel", InstallScope::Project, kChosen);
    EXPECT_EQ(target.TextAt(kUserKey, "MainFolder"), kChosen);
    EXPECT_FALSE(target.KeyExists(kMachineKey));
    target.beforeChange = [] { throw RunError(ErrorNumber::kDeviceIo, "disken"); };
    EXPECT_THROW(NoteStartedSetup(target, "Exempel", InstallScope::Project, kChosen), RunError);
}

// A user who can write to the user's registry could otherwise lead the setup to any folder.
TEST_F(StartedSetups, CountOnlyWhereAJournalIsThatNoOtherUserHasMade)
{
    for (const RegistryData& data :
         {NumberData(7), TextData(""), TextData("Vald"), TextData(kChosen)}) {
        PutNote(kUserKey, data);
        EXPECT_THAT(Noted(), IsEmpty());
    }
    memory.files.Put("C:\\victim.txt", "important");
    memory.files.Put(kJournal, "Quillon installationsjournal 1\r\nFILE\tC:\\victim.txt\r\n");
    EXPECT_THAT(Noted(), ElementsAre(kChosen));
    target.ofOthers.insert(kJournal);
    EXPECT_THAT(Noted(), IsEmpty());
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("C:\\victim.txt"), "important");
    EXPECT_FALSE(target.KeyExists(kUserKey));
}

// The note of a product is not that of another one.
TEST_F(StartedSetups, OfOtherProductsAreLeftToThem)
{
    PutNote({RegistryRoot::LocalMachine, "SOFTWARE\\Quillon\\Annan"}, TextData("E:\\Annan"));
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(target.TextAt({RegistryRoot::LocalMachine, "SOFTWARE\\Quillon\\Annan"}, "MainFolder"),
              "E:\\Annan");
}

} // namespace
} // namespace quillon::test
