// A setup that is killed, at each single change that it makes: the next run of the setup or of the
// uninstaller puts the machine right.
#include "runtime/support/full_product.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/journal/restart_moves.h"
#include "runtime/journal/rollback.h"
#include "runtime/journal/started_setups.h"
#include "runtime/journal/transaction_journal.h"
#include "runtime/shared_files.h"
#include "runtime/uninstall_entry_key.h"

namespace quillon {

using test::MachineState;
using testing::HasSubstr;

using test::kMain;

namespace {

// Ends everything at once, without the setup's own clean-up.
struct Killed {};

} // namespace

class KilledSetup : public test::FullProduct {
protected:
    struct Machine {
        std::map<Text, test::MemoryFiles::Node> files;
        decltype(test::MemoryTarget::keys) keys;
        std::set<Text> registered;
        std::set<Text> fonts;
    };

    Machine Keep() const
    {
        return {memory.files.nodes, target.keys, target.registered, target.fonts};
    }

    void Restore(const Machine& machine)
    {
        memory.files.nodes = machine.files;
        target.keys = machine.keys;
        target.registered = machine.registered;
        target.fonts = machine.fonts;
    }

    // Does the work up to its n-th change; false where it made fewer and came to its end.
    template <class Work>
    bool KillAt(int n, Work work)
    {
        int changes = 0;
        wasCommitted = false;
        files.beforeChange = target.beforeChange = [&] {
            wasCommitted = wasCommitted || Journal().ends_with("\r\nCOMMITTED\r\n");
            if (++changes >= n)
                throw Killed{};
        };
        bool killed = false;
        try {
            work();
        } catch (const Killed&) {
            killed = true;
        }
        files.beforeChange = target.beforeChange = [] {};
        return killed;
    }

    // A first installation, killed when its uninstaller had come to its place, which then runs.
    void KillWhereTheUninstallerRuns()
    {
        AddFile("prog.exe", "%DESTDIR\\Bin", "program");
        const Machine start = Keep();
        for (int n = 1; !memory.files.FileExists(kUninstaller); ++n) {
            Restore(start);
            ASSERT_TRUE(KillAt(n, [&] { Install(); }));
        }
        ASSERT_FALSE(wasCommitted);
        files.running.insert(kUninstaller);
    }

    const Text kUninstaller = kMain + "\\QNXUNIN.EXE";
    // The last run was killed after its commit, so its journal may have been removed since.
    bool wasCommitted = false;

    bool Finish()
    {
        ActionLog log;
        if (FinishInterrupted({host, target, log}, kMain) == EarlierRun::Incomplete)
            return false;
        // A setup that was killed before it made its journal, or after it removed it, has left
        // nothing but its note.
        ForgetStartedSetups(target, "Exempel");
        return true;
    }

    Text Journal() const
    {
        for (const Text& path : JournalPaths(kMain))
            if (memory.files.FileExists(path))
                return memory.files.Get(path);
        return {};
    }

    void ExpectState(const MachineState& right) const
    {
        const MachineState state = State();
        for (const auto& [path, file] : right.files)
            if (state.files.count(path) == 0 || state.files.at(path) != file)
                ADD_FAILURE() << "lost or changed: " << path;
        for (const auto& [path, file] : state.files)
            if (right.files.count(path) == 0)
                ADD_FAILURE() << "left over: " << path;
        EXPECT_TRUE(state.registry == right.registry);
        EXPECT_EQ(state.registered, right.registered);
        EXPECT_EQ(state.fonts, right.fonts);
    }

    // What it starts is beside it, of the same version, and is what it was when its digest was
    // taken.
    void ExpectUninstallerThatCanStart() const
    {
        const Text program = kMain + "\\QNS32X.BIN";
        if (!memory.files.FileExists(kMain + "\\QNXUNIN.EXE"))
            return;
        ASSERT_TRUE(memory.files.FileExists(program));
        const std::string starter = memory.files.Get(kMain + "\\QNXUNIN.EXE");
        EXPECT_EQ(memory.files.Get(program), ReplaceAll(starter, "uninstaller", "setup"));
        EXPECT_EQ(memory.files.Get(kMain + "\\QNXUNIN.SHA256"),
                  DigestText(DigestOfFile(memory.files, program)) + "  QNS32X.BIN\n");
    }

    // Kills the installation at each of its changes. Returns how many there are. Once it is
    // committed its state is the new one, and the next run installs over that.
    int KillEverywhere()
    {
        const Machine start = Keep();
        const MachineState before = State();
        EXPECT_EQ(Install(), ExitCode::Done) << Log();
        const MachineState after = State();
        EXPECT_EQ(Install(), ExitCode::Done) << Log();
        const MachineState afterTwo = State();
        int n = 0;
        for (bool killed = true; killed && !HasFailure();) {
            Restore(start);
            killed = KillAt(++n, [&] { Install(); });
            SCOPED_TRACE("killed at change " + NumberText(n));
            const Machine wreck = Keep();
            ExpectUninstallerThatCanStart();
            const bool committed = wasCommitted || !killed;

            EXPECT_TRUE(Finish());
            ExpectState(committed ? after : before);

            // The run that puts it right is killed as well, each time at another place.
            Restore(wreck);
            KillAt(n % 97 + 1, [&] { Finish(); });
            ExpectUninstallerThatCanStart();
            KillAt(n % 61 + 1, [&] { Finish(); });
            ExpectUninstallerThatCanStart();
            EXPECT_TRUE(Finish());
            ExpectState(committed ? after : before);

            Restore(wreck);
            EXPECT_EQ(Install(), ExitCode::Done) << Log();
            ExpectState(committed ? afterTwo : after);
        }
        return n;
    }
};

TEST_F(KilledSetup, IsPutRightWhereTheProductIsNew)
{
    FillMachine();
    FillPackage();
    EXPECT_GT(KillEverywhere(), 100);
}

TEST_F(KilledSetup, IsPutRightWhereTheProductIsUpgraded)
{
    FillMachine();
    FillPackage();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    memory.files.Put("C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\Annans.lnk",
                     "C:\\Program\\Annan\\a.exe||||");
    ChangePackage();
    memory.files.Put("D:\\Paket\\QNS32X.BIN", "newer setup");
    memory.files.Put("D:\\Paket\\QNXUNIN.BIN", "newer uninstaller");
    EXPECT_GT(KillEverywhere(), 150);
}

// Just before the commit, the rollback has the most to undo.
TEST_F(KilledSetup, IsPutRightWhereverTheWayBackOfAnUpgradeIsKilled)
{
    FillMachine();
    FillPackage();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    ChangePackage();
    const Machine start = Keep();
    const MachineState before = State();
    std::optional<Machine> wreck;
    for (int n = 1;; ++n) {
        Restore(start);
        const bool killed = KillAt(n, [&] { Install(); });
        if (!killed || wasCommitted)
            break;
        wreck.emplace(Keep());
    }
    ASSERT_TRUE(wreck);
    int steps = 0;
    for (bool killed = true; killed && !HasFailure();) {
        Restore(*wreck);
        killed = KillAt(++steps, [&] { Finish(); });
        SCOPED_TRACE("killed at change " + NumberText(steps));
        EXPECT_TRUE(Finish());
        ExpectState(before);
    }
    EXPECT_GT(steps, 50);
}

// If the rollback is interrupted at any of its steps, the program that the user starts is never
// beside another version of what it starts.
TEST_F(KilledSetup, LeavesNoUninstallerOfAnotherVersionAtAnyStepOfTheWayBack)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    memory.files.Put("D:\\Paket\\QNS32X.BIN", "newer setup");
    memory.files.Put("D:\\Paket\\QNXUNIN.BIN", "newer uninstaller");
    const MachineState before = State();
    const Text starter = kMain + "\\QNXUNIN.EXE";
    const auto hasNewStarter = [&] {
        return memory.files.FileExists(starter) && memory.files.Get(starter) == "newer uninstaller";
    };
    // As far as the newer starter has come to its place.
    const Machine newer = Keep();
    for (int n = 1; !hasNewStarter(); ++n) {
        Restore(newer);
        ASSERT_TRUE(KillAt(n, [&] { Install(); }));
    }
    const Machine wreck = Keep();
    ASSERT_EQ(Journal().find("\r\nCOMMITTED"), Text::npos);
    bool wasWithout = false;
    bool killed = true;
    for (int n = 1; killed; ++n) {
        Restore(wreck);
        killed = KillAt(n, [&] { EXPECT_TRUE(Finish()); });
        SCOPED_TRACE("way back ended at change " + NumberText(n));
        ExpectUninstallerThatCanStart();
        wasWithout = wasWithout || !memory.files.FileExists(starter);
        EXPECT_TRUE(Finish());
        EXPECT_EQ(State(), before);
    }
    EXPECT_TRUE(wasWithout);
}

TEST_F(KilledSetup, IsPutRightWithItsScriptsStartupLinesAndOldFiles)
{
    target.system = SystemKind::Win98;
    AddFile("prog.exe", "%DESTDIR", "program");
    AddFile("gammal.txt", "%DESTDIR\\Data", "old text");
    memory.files.Put("C:\\CONFIG.SYS", "DEVICE=A");
    memory.files.Put("E:\\a.txt", "a");
    memory.files.Put("E:\\b.txt", "b");
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    project.Lists.AutoexecBat = "SET MAPP=%DESTDIR";
    project.Lists.ConfigSys = "FILES=40";
    project.Lists.RunScriptBefore =
        "IF FILE E:\\b.txt\r\nDELETE E:\\a.txt\r\nRENAME E:\\b.txt E:\\a.txt\r\nEND\r\n"
        "INI E:\\ny.ini A b c\r\nREGISTRY HKCU\\Software\\Firma\\Ny :: a=1";
    project.Lists.RunScriptAfter = "COPY %DESTDIR\\prog.exe E:\\a.txt";
    package.rows.resize(1);
    EXPECT_GT(KillEverywhere(), 60);
}

TEST_F(KilledSetup, IsPutRightInTheRootOfADrive)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    memory.files.PutFolder("E:\\");
    const MachineState before = State();
    ASSERT_TRUE(KillAt(20, [&] { Install("/S /D=E:\\"); }));
    EXPECT_TRUE(memory.files.FileExists("E:\\~qnsetup.tmp"));
    ActionLog log;
    EXPECT_EQ(FinishInterrupted({host, target, log}, "E:\\"), EarlierRun::Finished);
    EXPECT_EQ(FinishInterrupted({host, target, log}, "E:\\"), EarlierRun::None);
    EXPECT_EQ(State(), before);
}

// Until the next start the old program runs on, and the file that replaces it waits.
TEST_F(KilledSetup, LeavesWhatWaitsForTheNextStart)
{
    AddFile("a.dll", "%DESTDIR", "old", "D");
    ASSERT_EQ(Install(), ExitCode::Done);
    const Machine start = Keep();
    package.rows[0].copyOptions = "A";
    files.inUse.insert(kMain + "\\a.dll");
    for (int n = 1;; ++n) {
        Restore(start);
        target.movesAtRestart.clear();
        if (!KillAt(n, [&] { EXPECT_EQ(Install(), ExitCode::RestartNeeded) << Log(); }))
            break;
        const bool committed = wasCommitted;
        ASSERT_TRUE(Finish()) << n;
        EXPECT_EQ(memory.files.Get(kMain + "\\a.dll"), "old");
        for (const auto& [from, to] : target.movesAtRestart)
            if (!to.empty())
                EXPECT_EQ(memory.files.FileExists(from), committed) << n << " " << from;
    }
    ASSERT_FALSE(target.movesAtRestart.empty());
    EXPECT_EQ(target.movesAtRestart[0].second, kMain + "\\a.dll");
    EXPECT_EQ(memory.files.Get(target.movesAtRestart[0].first), "old");
    // The folder that it waited in goes after it.
    EXPECT_EQ(target.movesAtRestart.back(),
              std::pair(Text(ExtractDirectory(target.movesAtRestart[0].first)), Text()));
}

TEST_F(KilledSetup, IsFoundFromAnotherMainFolder)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    const MachineState before = State();
    ASSERT_TRUE(KillAt(12, [&] { Install(); }));
    ASSERT_NE(State(), before);
    ASSERT_EQ(Install("/S /D=E:\\Annan"), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.DirExists(kMain));
    EXPECT_THAT(Log(), HasSubstr("En tidigare installation avbröts. Dess ändringar ångras: "
                                 "C:\\Program\\~qnsetup-Exempel.tmp"));

    // And where the product was installed, when the setup goes to its usual folder again.
    package.rows[0].copyOptions = "*";
    ASSERT_TRUE(KillAt(12, [&] { Install("/S /D=E:\\Annan"); }));
    ASSERT_TRUE(memory.files.FileExists("E:\\Annan\\~qnsetup.tmp"));
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.FileExists("E:\\Annan\\~qnsetup.tmp"));
}

// The main folder that the list of programs names may be anything.
TEST_F(KilledSetup, IsLookedForInNoFolderThatIsNone)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    memory.files.Put("~qnsetup.tmp", "Quillon installationsjournal 1\r\nFILE\tC:\\victim.txt\r\n");
    memory.files.Put("x\\~qnsetup.tmp", "skräp");
    memory.files.Put("C:\\victim.txt", "important");
    const RegistryKey entry = UninstallEntryKey(project.ProjectName.ProjectName);
    for (const RegistryData& data : {NumberData(7), TextData(""), TextData("x")}) {
        target.MakeKey(entry);
        target.WriteValue(entry, "InstallLocation", data);
        EXPECT_EQ(Install(), ExitCode::Done) << Log();
        EXPECT_EQ(memory.files.Get("C:\\victim.txt"), "important");
        EXPECT_TRUE(memory.files.FileExists("~qnsetup.tmp"));
    }
}

TEST_F(KilledSetup, LeavesItsJournalToTheNextRunWhereAFileIsHeldOpen)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    ASSERT_EQ(Install(), ExitCode::Done);
    const MachineState before = State();
    sources[0].bytes = "newer";
    package.rows[0].size = 5;
    package.rows[0].copyOptions = "";
    int n = 1;
    // Up to the moment where the new file is in its place, and somebody starts it.
    const Machine start = Keep();
    for (; n < 100; ++n) {
        Restore(start);
        ASSERT_TRUE(KillAt(n, [&] { Install(); }));
        if (memory.files.FileExists(kMain + "\\prog.exe") &&
            memory.files.Get(kMain + "\\prog.exe") == "newer")
            break;
    }
    files.inUse.insert(kMain + "\\prog.exe");
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_THAT(Log(), HasSubstr("En tidigare installation till " + kMain +
                                 " avbröts, och alla dess ändringar kunde inte ångras. Starta om "
                                 "datorn och försök igen."));
    EXPECT_EQ(State().files.count("c:\\program\\exempel\\~qnsetup.tmp"), 1U);
    files.inUse.clear();
    EXPECT_TRUE(Finish());
    EXPECT_EQ(State(), before);
}

TEST_F(KilledSetup, LeavesNothingWhereItsUninstallerTakesItBack)
{
    class Running : public RunningProgram {
    public:
        explicit Running(FileSystem& files) : files_(files) {}
        void MoveAway(const Text& path) override
        {
            if (path == kMain + "\\QNXUNIN.EXE")
                files_.Rename(path, "T:\\QNXUNIN.TMP");
        }

    private:
        FileSystem& files_;
    };
    memory.files.PutFolder("T:\\");
    const MachineState before = State();
    KillWhereTheUninstallerRuns();
    Running running(files);
    ActionLog log;
    EXPECT_EQ(FinishInterrupted({host, target, log, &running}, kMain), EarlierRun::Finished);
    EXPECT_TRUE(memory.files.FileExists("T:\\QNXUNIN.TMP"));
    memory.files.RemoveFile("T:\\QNXUNIN.TMP");
    ForgetStartedSetups(target, "Exempel");
    EXPECT_EQ(State(), before);
    EXPECT_TRUE(target.movesAtRestart.empty());
}

TEST_F(KilledSetup, LeavesAProgramThatCanNotLeaveItsFolderToTheNextStartWithThatFolder)
{
    target.MakeKey(RestartMovesKey());
    target.listsMovesAtRestart = true;
    KillWhereTheUninstallerRuns();
    EXPECT_TRUE(Finish());
    ASSERT_EQ(target.movesAtRestart.size(), 2U);
    EXPECT_THAT(target.movesAtRestart[0].first, testing::MatchesRegex(".*~qn[0-9]+away[.]tmp"));
    EXPECT_TRUE(memory.files.FileExists(target.movesAtRestart[0].first));
    EXPECT_EQ(target.movesAtRestart[1], std::pair(kMain, Text()));
    EXPECT_FALSE(memory.files.DirExists(kMain + "\\Bin"));
}

TEST_F(KilledSetup, IsNotTakenForOneThatIsStillAtWork)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    ASSERT_TRUE(KillAt(12, [&] { Install(); }));
    const MachineState wreck = State();
    files.locked.insert("C:\\Program\\~qnsetup-Exempel.tmp.lock");
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(State(), wreck);
    EXPECT_THAT(Log(), HasSubstr("C:\\Program\\~qnsetup-Exempel.tmp"));
}

TEST_F(KilledSetup, StopsBeforeAnythingIsWrittenWhereAnotherOneBegins)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    const MachineState before = State();
    files.locked.insert("C:\\Program\\~qnsetup-Exempel.tmp.lock");
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(State(), before);
}

// A user who may write beside the product could otherwise have any file moved by an administrator.
TEST_F(KilledSetup, BelievesNoJournalOfSomebodyElse)
{
    const Text journal = "C:\\Program\\~qnsetup-Exempel.tmp";
    AddFile("prog.exe", "%DESTDIR", "program");
    memory.files.Put("C:\\victim.txt", "important");
    memory.files.Put(journal, "Quillon installationsjournal 1\r\nFILE\tC:\\victim.txt\r\n");
    target.ofOthers.insert(journal);
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(memory.files.Get("C:\\victim.txt"), "important");
    EXPECT_THAT(Log(), HasSubstr(journal));
}

// A user who may write to a folder above the product's can put the lock there too. It has no
// effect, since a journal counts only if it belongs to a trusted user.
TEST_F(KilledSetup, BelievesNoJournalOfSomebodyElseBesideTheirLock)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    memory.files.Put("C:\\victim.txt", "important");
    for (const Text& journal : JournalPaths(kMain)) {
        memory.files.Put(journal, "Quillon installationsjournal 1\r\nFILE\tC:\\victim.txt\r\n");
        target.ofOthers = {journal, LockPathOf(journal)};
        EXPECT_EQ(Install(), ExitCode::Failed) << journal;
        EXPECT_EQ(memory.files.Get("C:\\victim.txt"), "important") << journal;
        EXPECT_THAT(Log(), HasSubstr(journal));
        memory.files.RemoveFile(journal);
    }
}

// The list of programs and the note of a started setup lead to folders that nothing else confirms.
// One trusted journal says nothing of the others on the way to the same folder.
TEST_F(KilledSetup, BelievesNoJournalOfSomebodyElseWhereAnEarlierRunLeads)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    memory.files.Put("C:\\victim.txt", "important");
    const Text own = "C:\\Annan\\Mapp\\~qnsetup.tmp";
    const Text planted = "C:\\Annan\\~qnsetup-Mapp.tmp";
    memory.files.Put(own, "Quillon installationsjournal 1\r\n");
    memory.files.Put(planted, "Quillon installationsjournal 1\r\nFILE\tC:\\victim.txt\r\n");
    target.ofOthers = {planted, LockPathOf(planted)};
    NoteStartedSetup(target, "Exempel", InstallScope::CurrentUser, "C:\\Annan\\Mapp");
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(memory.files.Get("C:\\victim.txt"), "important");
    EXPECT_THAT(Log(), HasSubstr(planted));
}

TEST_F(KilledSetup, TakesNoLockOfSomebodyElse)
{
    const Text lock = LockPathOf("C:\\Program\\~qnsetup-Exempel.tmp");
    AddFile("prog.exe", "%DESTDIR", "program");
    target.ofOthers = {lock};
    const MachineState before = State();
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(Log(), HasSubstr(lock));
    const Text journal = "C:\\Program\\~qnsetup-Exempel.tmp";
    memory.files.Put(journal, "Quillon installationsjournal 1\r\n");
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_TRUE(memory.files.FileExists(journal));
}

// A server may have users that this machine does not know. The owner of a new file there is ours,
// and so is a journal with the same owner.
TEST_F(KilledSetup, BelievesOnAServerWhoMakesTheFilesThere)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    memory.files.PutFolder("N:\\Delat");
    memory.files.driveKinds["n:\\"] = DriveKind::Remote;
    const Text journal = "N:\\Delat\\~qnsetup-Exempel.tmp";
    const Text started = "Quillon installationsjournal 1\r\nFILE\tN:\\Delat\\halv.txt\r\n";
    memory.files.Put(journal, started);
    memory.files.Put("N:\\Delat\\halv.txt", "half");
    target.ofOthers = {journal, LockPathOf(journal)};
    EXPECT_EQ(Install("/S /D=N:\\Delat\\Exempel"), ExitCode::Failed);
    EXPECT_TRUE(memory.files.FileExists("N:\\Delat\\halv.txt"));
    target.ofOthers = {journal, LockPathOf(journal), journal + ".own",
                       LockPathOf(journal) + ".own"};
    EXPECT_EQ(Install("/S /D=N:\\Delat\\Exempel"), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists("N:\\Delat\\halv.txt"));
}

TEST_F(KilledSetup, ClosesItsJournalToOthers)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.closedToOthers.count("C:\\Program\\~qnsetup-Exempel.tmp"), 1U);
}

// Another product has come before the machine was put right.
TEST_F(KilledSetup, TakesOnlyItsOwnUserOffASharedFile)
{
    const Text shared = "C:\\Gemensamt\\delad.dll";
    AddFile("delad.dll", "C:\\Gemensamt", "v1", "S");
    const Machine start = Keep();
    for (const std::uint32_t users : {1U, 2U}) {
        Restore(start);
        const auto isCounted = [&] {
            return CountOfUsers(target, shared).value_or(0) == (users == 1 ? 1U : users + 1);
        };
        if (users > 1) {
            memory.files.Put(shared, "v1");
            target.MakeKey(SharedFilesKey());
            target.WriteValue(SharedFilesKey(), shared, NumberData(users));
        }
        const Machine before = Keep();
        for (int n = 1; !isCounted(); ++n) {
            Restore(before);
            ASSERT_TRUE(KillAt(n, [&] { Install(); }));
        }
        const std::uint32_t counted = *CountOfUsers(target, shared);
        target.WriteValue(SharedFilesKey(), shared, NumberData(counted + 1));
        ASSERT_TRUE(Finish());
        EXPECT_EQ(CountOfUsers(target, shared), counted);
        EXPECT_EQ(memory.files.Get(shared), "v1") << "the other product needs it";
        // No record is left that could lower the count once more.
        ASSERT_TRUE(Finish());
        EXPECT_EQ(CountOfUsers(target, shared), counted);
    }
}

// Even if it is killed several times while it repairs the machine.
TEST_F(KilledSetup, TakesNoUserOffASharedFileTwice)
{
    const Text shared = "C:\\Gemensamt\\delad.dll";
    AddFile("delad.dll", "C:\\Gemensamt", "v1", "S");
    const Machine start = Keep();
    for (int n = 1; !CountOfUsers(target, shared); ++n) {
        Restore(start);
        ASSERT_TRUE(KillAt(n, [&] { Install(); }));
    }
    target.WriteValue(SharedFilesKey(), shared, NumberData(2));
    const Machine killed = Keep();
    for (int n = 1;; ++n) {
        Restore(killed);
        const bool wasKilled = KillAt(n, [&] { Finish(); });
        ASSERT_TRUE(Finish());
        const auto users = CountOfUsers(target, shared);
        EXPECT_TRUE(users == 1U || (users == 2U && wasKilled)) << n;
        EXPECT_EQ(memory.files.Get(shared), "v1");
        if (!wasKilled) {
            EXPECT_EQ(users, 1U);
            break;
        }
    }
}

TEST_F(KilledSetup, LeavesAValueThatSomebodyElseHasWrittenSince)
{
    const RegistryKey key{RegistryRoot::LocalMachine, "SOFTWARE\\Firma"};
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Antal=\"2\"\r\n"
                             "DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Bort";
    AddFile("prog.exe", "%DESTDIR", "program");
    target.MakeKey(key);
    target.WriteValue(key, "Antal", TextData("1"));
    target.WriteValue(key, "Bort", TextData("former"));
    const Machine start = Keep();
    const auto killBehindBoth = [&] {
        for (int n = 1; target.TextAt(key, "Antal") != "2" || target.ReadValue(key, "Bort"); ++n) {
            Restore(start);
            ASSERT_TRUE(KillAt(n, [&] { Install(); }));
        }
    };
    killBehindBoth();
    ASSERT_TRUE(Finish());
    EXPECT_EQ(target.TextAt(key, "Antal"), "1");
    EXPECT_EQ(target.TextAt(key, "Bort"), "former");
    killBehindBoth();
    target.WriteValue(key, "Antal", TextData("3"));
    target.WriteValue(key, "Bort", TextData("anew"));
    EXPECT_EQ(Install("/S /PASSWORD=fel"), ExitCode::Done) << Log();
    EXPECT_THAT(Log(), HasSubstr("SOFTWARE\\Firma :: Antal: värdet har ändrats efter"));
    EXPECT_THAT(Log(), HasSubstr("SOFTWARE\\Firma :: Bort: värdet har ändrats efter"));
    // A value that was removed is restored, since nothing is overwritten by that.
    Restore(start);
    killBehindBoth();
    target.RemoveValue(key, "Antal");
    ASSERT_TRUE(Finish());
    EXPECT_EQ(target.TextAt(key, "Antal"), "1");
}

// One of an older setup does not say what was written.
TEST_F(KilledSetup, TakesBackAJournalOfAnOlderSetup)
{
    const Text journal = "C:\\Program\\~qnsetup-Exempel.tmp";
    const RegistryKey key{RegistryRoot::CurrentUser, "SOFTWARE\\Firma"};
    target.MakeKey(key);
    target.WriteValue(key, "Antal", TextData("2"));
    memory.files.Put(journal,
                     "Quillon installationsjournal 1\r\nPRODUCT\tExempel\r\n"
                     "FORMERVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tAntal\t1\t31000000\r\n"
                     "FORMERVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tNy\t\t\r\n");
    target.WriteValue(key, "Ny", TextData("x"));
    ASSERT_TRUE(Finish());
    EXPECT_EQ(target.TextAt(key, "Antal"), "1");
    EXPECT_FALSE(target.ReadValue(key, "Ny"));
    EXPECT_FALSE(memory.files.FileExists(journal));
}

TEST_F(KilledSetup, TellsAJournalThatCanNotBeRead)
{
    const Text journal = "C:\\Program\\~qnsetup-Exempel.tmp";
    AddFile("prog.exe", "%DESTDIR", "program");
    memory.files.Put(journal, "Quillon installationsjournal 1\r\nskräp\r\n");
    const MachineState before = State();
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(Log(), HasSubstr(journal));
    // One that was cut before its first step says that nothing was done yet.
    for (const char* begun : {"", "Quillon inst", "Quillon installationsjournal 1\r\n"}) {
        memory.files.Put(journal, begun);
        EXPECT_TRUE(Finish());
        EXPECT_FALSE(memory.files.FileExists(journal));
    }
}

// The old library is back, and so is what the system knew of it.
TEST_F(KilledSetup, RegistersAFileAgainThatAnEarlierVersionHadRegistered)
{
    AddFile("prog.dll", "%DESTDIR", "old", "R");
    ASSERT_EQ(Install(), ExitCode::Done);
    const MachineState before = State();
    ASSERT_EQ(before.registered.size(), 1U);
    sources[0].bytes = "new";
    AddFile("b.dll", "%DESTDIR", "b", "R");
    files.beforeChange = [&] {
        if (target.registered.size() == 2)
            throw RunError(ErrorNumber::kDeviceIo, "disken");
    };
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(State().registered, before.registered);
    EXPECT_EQ(State(), before);
}

} // namespace quillon
