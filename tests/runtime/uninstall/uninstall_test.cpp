#include "runtime/support/setup_fixture.h"

#include "platform/run_error.h"
#include "runtime/ini_files/ini_changes.h"
#include "runtime/journal/restart_moves.h"
#include "runtime/shared_files.h"
#include "runtime/uninstall/uninstall.h"
#include "runtime/uninstall_entry_key.h"

namespace quillon {

using test::MachineState;
using testing::HasSubstr;

using test::kMain;
const RegistryKey kFirma{RegistryRoot::LocalMachine, "SOFTWARE\\Firma"};

class UninstallTest : public test::SetupFixture {
protected:
    UninstallTest() { AddFile("prog.exe", "%DESTDIR\\Bin", "program"); }
};

TEST_F(UninstallTest, LeavesWhatTheUserHasAdded)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kMain + "\\Bin\\egen.txt", "min");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\Bin\\prog.exe"));
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\QNXUNIN.EXE"));
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\QNXUNIN.LOG"));
    EXPECT_EQ(memory.files.Get(kMain + "\\Bin\\egen.txt"), "min");
    EXPECT_THAT(Log(), HasSubstr(kMain + ": mappen är inte tom"));
}

TEST_F(UninstallTest, GoesThroughAllInstallationsOfAProduct)
{
    const MachineState before = State();
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Version=\"1\"";
    project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nx=1";
    AddFile("delad.dll", "%SYSDIR", "v1", "S");
    ASSERT_EQ(Install(), ExitCode::Done);
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Version=\"2\"";
    project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nx=2\r\ny=3";
    AddFile("ny.txt", "%DESTDIR\\Ny", "ny");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.TextAt(kFirma, "Version"), "2");
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(State().files, before.files) << Log();
    EXPECT_EQ(State(), before);
}

TEST_F(UninstallTest, LeavesTheUninstallerToAnotherProductInTheSameFolder)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    project.ProjectName.ProjectName = "Annat";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\QNXUNIN2.LOG"));
    const Text uninstaller = kMain + "\\qnxunin.exe";
    EXPECT_FALSE(IsUninstallerRemovedWith(files, kMain + "\\QNXUNIN.LOG", uninstaller));
    EXPECT_FALSE(IsUninstallerRemovedWith(files, kMain + "\\qnxunin2.log", uninstaller));
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_TRUE(IsUninstallerRemovedWith(files, kMain + "\\QNXUNIN2.LOG", uninstaller));
    EXPECT_FALSE(IsUninstallerRemovedWith(files, "D:\\Kopia\\QNXUNIN2.LOG", uninstaller))
        << "another folder's";
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\QNXUNIN.EXE"));
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\QNXUNIN.LOG"));
}

TEST_F(UninstallTest, TakesTheFolderThatProductsShareAlongWithTheLast)
{
    const MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done);
    project.ProjectName.ProjectName = "Annat";
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_TRUE(memory.files.DirExists(kMain));
    ASSERT_EQ(UninstallProduct(kMain + "\\QNXUNIN2.LOG"), ExitCode::Done);
    EXPECT_EQ(State().files, before.files) << Log();
}

TEST_F(UninstallTest, LeavesAFileThatWasInWindowsBefore)
{
    memory.files.Put("C:\\WINDOWS\\gammal.dll", "gammal", {2003, 1, 1, 0, 0, 0});
    AddFile("gammal.dll", "%WINDIR", "ny", "DR");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("C:\\WINDOWS\\gammal.dll"), "ny");
    EXPECT_EQ(target.registered.count("C:\\WINDOWS\\gammal.dll"), 1U);
    EXPECT_THAT(Log(), HasSubstr("filen fanns i Windows redan före installationen"));
}

TEST_F(UninstallTest, LeavesTheRegistrationOfAFileThatStays)
{
    const Text foreign = "C:\\WINDOWS\\SYSTEM32\\annan.ocx";
    memory.files.Put(foreign, "annans");
    project.Lists.RegisterFileList = foreign + "\r\n%DESTDIR\\Bin\\prog.exe";
    AddFile("kvar.dll", "%SYSDIR", "kvar", "R*");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.registered.size(), 3U);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(target.registered, (std::set<Text>{foreign, "C:\\WINDOWS\\SYSTEM32\\kvar.dll"}));
}

TEST_F(UninstallTest, LeavesASharedFileThatWasKeptWhereItsCountIsLost)
{
    const Text shared = "C:\\WINDOWS\\SYSTEM32\\delad.dll";
    memory.files.Put(shared, "annans", {2005, 1, 1, 0, 0, 0});
    AddFile("delad.dll", "%SYSDIR", "vår", "DS");
    ASSERT_EQ(Install(), ExitCode::Done);
    target.RemoveValue(SharedFilesKey(), shared);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(shared), "annans");
}

TEST_F(UninstallTest, GoesOnCountingFromTheFourBytesOfAnOlderSetup)
{
    const Text shared = "C:\\WINDOWS\\SYSTEM32\\delad.dll";
    memory.files.Put(shared, "annans", {2003, 1, 1, 0, 0, 0});
    target.MakeKey(SharedFilesKey());
    target.WriteValue(SharedFilesKey(), shared, BytesData(std::string("\3\0\0\0", 4)));
    AddFile("delad.dll", "%SYSDIR", "vår", "DS");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.ReadValue(SharedFilesKey(), shared), NumberData(4));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(target.ReadValue(SharedFilesKey(), shared), NumberData(3));
    EXPECT_TRUE(memory.files.FileExists(shared));
}

TEST_F(UninstallTest, KeepsAValueThatChangedSinceButTakesItsOwnAway)
{
    target.MakeKey(kFirma);
    target.WriteValue(kFirma, "Gammalt", TextData("före"));
    target.WriteValue(kFirma, "Orört", TextData("före"));
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Gammalt=\"vårt\"\r\n"
                             "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Orört=\"vårt\"\r\n"
                             "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Nytt=\"vårt\"";
    ASSERT_EQ(Install(), ExitCode::Done);
    target.WriteValue(kFirma, "Gammalt", TextData("ändrat"));
    target.WriteValue(kFirma, "Nytt", TextData("ändrat"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(target.TextAt(kFirma, "Gammalt"), "ändrat");
    EXPECT_EQ(target.TextAt(kFirma, "Orört"), "före");
    EXPECT_EQ(target.TextAt(kFirma, "Nytt"), "<none>");
}

TEST_F(UninstallTest, DoesWhatTheRegistryListAsksForAtBothEnds)
{
    target.MakeKey({RegistryRoot::LocalMachine, "SOFTWARE\\Firma\\Bort\\Djup"});
    target.WriteValue(kFirma, "Bort", TextData("x"));
    project.Lists.Registry = "DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Bort\r\n"
                             "DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Bort\r\n"
                             "DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE\\Finns\\Inte\r\n"
                             "UNINSTALL=HKEY_CURRENT_USER\\Firma\\Prog\r\n"
                             "UNINSTALL=HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Kvar";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_FALSE(target.KeyExists({RegistryRoot::LocalMachine, "SOFTWARE\\Firma\\Bort"}));
    EXPECT_EQ(target.TextAt(kFirma, "Bort"), "<none>");
    // The program itself writes these while it is used.
    target.MakeKey({RegistryRoot::CurrentUser, "Firma\\Prog\\Inställningar"});
    target.WriteValue(kFirma, "Kvar", TextData("x"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(target.KeyExists({RegistryRoot::CurrentUser, "Firma\\Prog"}));
    EXPECT_TRUE(target.KeyExists({RegistryRoot::CurrentUser, "Firma"}));
    EXPECT_EQ(target.TextAt(kFirma, "Kvar"), "<none>");
}

TEST_F(UninstallTest, ExpandsVariablesInKeysOnlyWhereTheProjectSaysSo)
{
    project.ProjectName.ProjectName = "Exempel";
    project.Lists.Registry = "HKEY_CURRENT_USER\\%PROJECTNAME :: %PROJECTNAME=\"%PROJECTNAME\"";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.TextAt({RegistryRoot::CurrentUser, "Exempel"}, "Exempel"), "Exempel");
    project.InstallOptions.ExpandVariablesInRegistryKeys = "0";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.TextAt({RegistryRoot::CurrentUser, "%PROJECTNAME"}, "%PROJECTNAME"),
              "Exempel");
}

TEST_F(UninstallTest, GoesOnWhenOneFileCanNotBeRemovedAndLeavesItToTheNextStart)
{
    AddFile("b.txt", "%DESTDIR\\Bin", "b");
    ASSERT_EQ(Install(), ExitCode::Done);
    files.inUse.insert(kMain + "\\Bin\\prog.exe");
    EXPECT_EQ(UninstallProduct(), ExitCode::RestartNeeded);
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\Bin\\b.txt"));
    ASSERT_FALSE(target.movesAtRestart.empty());
    EXPECT_EQ(target.movesAtRestart[0], std::pair(kMain + "\\Bin\\prog.exe", Text()));
}

// A file that was there before, in the place of one of the product's that a program holds.
class HeldFileWithBackup : public UninstallTest {
protected:
    HeldFileWithBackup()
    {
        memory.files.Put(kHeld, "the user's", {2003, 1, 1, 0, 0, 0});
        AddFile("delad.ini", "C:\\Gemensamt", "ours", "DB");
        target.MakeKey(RestartMovesKey());
        target.listsMovesAtRestart = true;
    }

    // The moves as the system keeps them; an empty second name removes the first.
    std::vector<std::pair<Text, Text>> Waiting() const
    {
        std::vector<std::pair<Text, Text>> moves;
        const auto list = target.ReadValue(RestartMovesKey(), kRestartMoves);
        std::vector<Text> names{{}};
        for (std::size_t at = 0; list && at + 1 < list->bytes.size(); at += 2)
            if (list->bytes[at] != 0)
                names.back() += list->bytes[at];
            else
                names.emplace_back();
        const auto plain = [](const Text& name) { return name.substr(name.find('C') % 100); };
        for (std::size_t at = 0; at + 1 < names.size() && !names[at].empty(); at += 2)
            moves.emplace_back(plain(names[at]),
                               names[at + 1].empty() ? Text() : plain(names[at + 1]));
        return moves;
    }

    void StartMachine()
    {
        files.inUse.clear();
        for (const auto& [from, to] : Waiting())
            if (to.empty() && files.FileExists(from))
                memory.files.RemoveFile(from);
            else if (!to.empty() && files.FileExists(from))
                memory.files.Rename(from, to);
        target.RemoveValue(RestartMovesKey(), kRestartMoves);
    }

    const Text kHeld = "C:\\Gemensamt\\delad.ini";
};

TEST_F(HeldFileWithBackup, ComesBackAtTheNextStart)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(memory.files.Get(kHeld), "ours");
    files.inUse = {kHeld};
    EXPECT_EQ(UninstallProduct(), ExitCode::RestartNeeded) << Log();
    EXPECT_THAT(Log(), HasSubstr("Lägger tillbaka " + kHeld + " när datorn startas om"));
    const auto told = std::find_if(left.begin(), left.end(), [&](const LeftBehind& one) {
        return one.what == kHeld + ".bak";
    });
    ASSERT_NE(told, left.end());
    EXPECT_EQ(told->why, "läggs tillbaka som '" + kHeld + "' när datorn startas om");
    StartMachine();
    EXPECT_EQ(memory.files.Get(kHeld), "the user's");
    EXPECT_FALSE(memory.files.FileExists(kHeld + ".bak"));
}

// Each installation has kept what it found.
TEST_F(HeldFileWithBackup, ComesBackBehindTheProductsOwnVersions)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    sources.back().bytes = "new!";
    sources.back().modified.year = 2005;
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(memory.files.Get(kHeld + ".bak2"), "ours");
    files.inUse = {kHeld};
    EXPECT_EQ(UninstallProduct(), ExitCode::RestartNeeded);
    StartMachine();
    EXPECT_EQ(memory.files.Get(kHeld), "the user's");
    EXPECT_FALSE(memory.files.FileExists(kHeld + ".bak"));
    EXPECT_FALSE(memory.files.FileExists(kHeld + ".bak2"));
}

// What could not be removed is tried again, and the moves that wait from the first time neither
// remove the file that came back nor bring it twice.
TEST_F(HeldFileWithBackup, ComesBackOnceWhereItTakesTwoRuns)
{
    for (const bool isHeldTwice : {true, false}) {
        memory.files.Put(kHeld, "the user's", {2003, 1, 1, 0, 0, 0});
        ASSERT_EQ(Install(), ExitCode::Done) << Log();
        files.inUse = {kHeld, kMain + "\\Bin\\prog.exe"};
        target.beforeChange = [this] {
            if (target.movesAtRestart.size() == 2)
                throw RunError(ErrorNumber::kPermissionDenied, "list");
        };
        EXPECT_EQ(UninstallProduct(), ExitCode::Failed);
        EXPECT_EQ(Waiting().size(), 2U);
        target.beforeChange = [] {};
        files.inUse.clear();
        if (isHeldTwice)
            files.inUse = {kHeld};
        target.movesAtRestart.clear();
        EXPECT_EQ(UninstallProduct(), isHeldTwice ? ExitCode::RestartNeeded : ExitCode::Done);
        if (isHeldTwice)
            StartMachine();
        else
            EXPECT_TRUE(Waiting().empty());
        target.movesAtRestart.clear();
        EXPECT_EQ(memory.files.Get(kHeld), "the user's");
        EXPECT_FALSE(memory.files.FileExists(kHeld + ".bak"));
    }
}

// A product's upgrade writes a second record for a file, after the one that counts its users.
TEST_F(UninstallTest, LeavesAFileThatAnotherProductSharesAfterAnUpgrade)
{
    const Text shared = "C:\\Gemensamt\\delad.dll";
    AddFile("delad.dll", "C:\\Gemensamt", "v1", "S");
    ASSERT_EQ(Install(), ExitCode::Done);
    target.WriteValue(SharedFilesKey(), shared, NumberData(2)); // another product
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(shared), "v1");
    EXPECT_EQ(target.ReadValue(SharedFilesKey(), shared), NumberData(1));
    EXPECT_THAT(Log(), HasSubstr(shared + ": filen används av andra program"));
}

TEST_F(UninstallTest, LeavesAFileThatAnotherProductHasCountedAndThisOneHasNot)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    target.MakeKey(SharedFilesKey());
    target.WriteValue(SharedFilesKey(), kMain + "\\Bin\\prog.exe", NumberData(1));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\Bin\\prog.exe"));
    EXPECT_THAT(Log(), HasSubstr("filen används av andra program"));
}

// An uninstallation that is interrupted, or that fails at one change, for every change in turn. A
// second run then leaves the same as a single complete one.
class UninstallAgainTest : public UninstallTest {
protected:
    UninstallAgainTest()
    {
        memory.files.Put("C:\\Gemensamt\\ersatt.txt", "användarens", {2003, 1, 1, 0, 0, 0});
        AddFile("delad.dll", "C:\\Gemensamt", "delad", "S");
        AddFile("ensam.dll", "C:\\Gemensamt", "ensam", "S");
        AddFile("ersatt.txt", "C:\\Gemensamt", "vår", "DB");
        project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: A=\"1\"";
        project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nx=1";
    }

    void InstallWithAnotherUser()
    {
        ASSERT_EQ(Install(), ExitCode::Done);
        target.WriteValue(SharedFilesKey(), kShared, NumberData(2));
        installedFiles_ = Copy(memory.files);
        installedTarget_ = target;
    }

    static test::MemoryFiles Copy(test::MemoryFiles from)
    {
        for (auto& [path, node] : from.nodes)
            if (node.bytes)
                node.bytes = std::make_shared<std::string>(*node.bytes);
        return from;
    }

    /// False where there is no change of that number.
    template <class Failure>
    bool UninstallEndedAt(int number, Failure failure)
    {
        memory.files = Copy(installedFiles_);
        target = installedTarget_;
        int changes = 0;
        files.beforeChange = target.beforeChange = [&] {
            if (++changes == number)
                throw failure;
        };
        try {
            const ExitCode code = UninstallProduct();
            // A file that can't be removed goes when the machine starts.
            const ExitCode ended =
                target.movesAtRestart.empty() ? ExitCode::Failed : ExitCode::RestartNeeded;
            EXPECT_EQ(code, changes < number ? ExitCode::Done : ended) << number;
            EXPECT_TRUE(code == ExitCode::Done || !left.empty()) << number;
        } catch (const Killed&) {
        }
        files.beforeChange = target.beforeChange = [] {};
        return changes >= number;
    }

    /// A count may stay one too high, which keeps a file; it is never too low.
    void ForgiveTheCount()
    {
        if (target.ReadValue(SharedFilesKey(), kShared) == NumberData(2))
            target.WriteValue(SharedFilesKey(), kShared, NumberData(1));
    }

    bool HasEntry() const
    {
        return target.TextAt({RegistryRoot::LocalMachine,
                              "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Exempel"},
                             "UninstallString") != "<none>";
    }
    bool HasProgram() { return files.FileExists(kMain + "\\QNXUNIN.EXE"); }
    bool HasLog() { return files.FileExists(kMain + "\\QNXUNIN.LOG"); }

    struct Killed {};
    const Text kShared = "C:\\Gemensamt\\delad.dll";

private:
    test::MemoryFiles installedFiles_;
    test::MemoryTarget installedTarget_;
};

TEST_F(UninstallAgainTest, FinishesWhatWasEndedFromOutside)
{
    InstallWithAnotherUser();
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    const MachineState expected = State();
    EXPECT_EQ(memory.files.Get("C:\\Gemensamt\\ersatt.txt"), "användarens");
    EXPECT_FALSE(memory.files.FileExists("C:\\Gemensamt\\ensam.dll"));
    int number = 1;
    for (; UninstallEndedAt(number, Killed()); ++number) {
        // While anything else is left there is a way to begin again.
        const bool isAlmostThrough = !memory.files.FileExists(kMain + "\\Bin\\prog.exe") &&
                                     target.TextAt(kFirma, "A") == "<none>";
        EXPECT_TRUE(isAlmostThrough || (HasEntry() && HasProgram() && HasLog())) << number;
        EXPECT_TRUE(HasLog() || !HasProgram()) << number;
        if (!HasLog()) { // without it the product's folders are not known
            EXPECT_FALSE(memory.files.DirExists(kMain + "\\Bin")) << number;
            continue;
        }
        UninstallProduct();
        ForgiveTheCount();
        EXPECT_EQ(State().files, expected.files) << number;
        EXPECT_EQ(State(), expected) << number;
    }
    EXPECT_GT(number, 15);
}

TEST_F(UninstallAgainTest, FinishesWhatFailedAtOneChange)
{
    InstallWithAnotherUser();
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    const MachineState expected = State();
    int number = 1;
    for (; UninstallEndedAt(number, RunError(ErrorNumber::kDiskFull, "full")); ++number) {
        if (!HasLog() || !target.movesAtRestart.empty())
            continue;
        EXPECT_TRUE(HasProgram()) << number;
        EXPECT_EQ(UninstallProduct(), ExitCode::Done) << number << Log();
        ForgiveTheCount();
        EXPECT_EQ(State(), expected) << number;
    }
    EXPECT_GT(number, 15);
}

TEST_F(UninstallTest, TakesBackAReplacementThatWaitsForTheNextStart)
{
    const Text path = "C:\\Gemensamt\\levande.dll";
    memory.files.Put(path, "gammal", {2003, 1, 1, 0, 0, 0});
    files.inUse.insert(path);
    AddFile("levande.dll", "C:\\Gemensamt", "ny", "DA");
    ASSERT_EQ(Install(), ExitCode::RestartNeeded);
    ASSERT_FALSE(target.movesAtRestart.empty());
    const std::size_t moves = target.movesAtRestart.size();
    const Text staged = target.movesAtRestart[0].first;
    EXPECT_EQ(target.movesAtRestart[0].second, path);
    const RegistryData others = TextData("\\??\\C:\\annan.tmp");
    target.MakeKey(RestartMovesKey());
    const std::string empty("\0\0", 2);
    target.WriteValue(RestartMovesKey(), kRestartMoves,
                      {7, others.bytes + empty + TextData("\\??\\" + staged).bytes +
                              TextData("!\\??\\" + path).bytes + empty});
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(path), "gammal");
    EXPECT_FALSE(memory.files.FileExists(staged));
    EXPECT_EQ(target.ReadValue(RestartMovesKey(), kRestartMoves),
              (RegistryData{7, others.bytes + empty + empty}));
    EXPECT_EQ(target.movesAtRestart.size(), moves) << "the file that is in use stays";
    EXPECT_THAT(Log(), HasSubstr("Filen " + path + " ersätts inte längre när datorn startas om"));
}

TEST_F(UninstallTest, LeavesAReplacementThatIsToStay)
{
    const Text path = "C:\\Gemensamt\\levande.dll";
    memory.files.Put(path, "gammal", {2003, 1, 1, 0, 0, 0});
    files.inUse.insert(path);
    AddFile("levande.dll", "C:\\Gemensamt", "ny", "DA*");
    ASSERT_EQ(Install(), ExitCode::RestartNeeded);
    ASSERT_FALSE(target.movesAtRestart.empty());
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(target.movesAtRestart[0].first), "ny");
    EXPECT_EQ(memory.files.Get(path), "gammal");
}

TEST_F(UninstallTest, LeavesNoFolderBehindForAFileThatGoesAtTheNextStart)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    files.inUse.insert(kMain + "\\Bin\\prog.exe");
    EXPECT_EQ(UninstallProduct(), ExitCode::RestartNeeded);
    std::vector<Text> moved;
    for (const auto& [from, to] : target.movesAtRestart)
        moved.push_back(from);
    EXPECT_EQ(moved, (std::vector<Text>{kMain + "\\Bin\\prog.exe", kMain + "\\Bin", kMain}));
}

TEST_F(UninstallTest, LeavesNoFolderBehindForWhatAnUndoneSetupHasLeftToTheNextStart)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const Text away = kMain + "\\~qn1away.tmp";
    memory.files.Put(away, "a program that runs");
    target.MakeKey(RestartMovesKey());
    target.listsMovesAtRestart = true;
    target.MoveAtRestart(away, "");
    EXPECT_EQ(UninstallProduct(), ExitCode::RestartNeeded);
    std::vector<Text> moved;
    for (const auto& [from, to] : target.movesAtRestart)
        moved.push_back(from);
    EXPECT_EQ(moved, (std::vector<Text>{away, kMain}));
}

TEST_F(UninstallTest, TouchesNothingOutsideTheFoldersOfTheProduct)
{
    memory.files.Put("C:\\offer.txt", "offer");
    memory.files.Put("C:\\A.INI", "[S]\r\nx=1\r\n");
    memory.files.Put("C:\\Annan\\offer.dll", "offer");
    target.registered.insert("C:\\Annan\\offer.dll");
    memory.files.Put(kMain + "\\egen.txt", "egen");
    memory.files.Put(kMain + "\\QNXUNIN.LOG",
                     "Quillon installationslogg 2\r\nPRODUCT\tExempel\r\nPLACE\tC:\\Känd\r\n"
                     "FILE\tC:\\offer.txt\r\nREPLACED\tC:\\Annan\\offer.dll\r\n"
                     "REGISTERED\tC:\\Annan\\offer.dll\r\nINIFILE\tC:\\A.INI\r\n"
                     "FILE\tC:\\Känd\\..\\offer.txt\r\nBACKUP\t" +
                         kMain + "\\ny.txt\tC:\\offer.txt\r\nFILE\t" + kMain + "\\egen.txt\r\n");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("C:\\offer.txt"), "offer");
    EXPECT_EQ(memory.files.Get("C:\\A.INI"), "[S]\r\nx=1\r\n");
    EXPECT_EQ(memory.files.Get("C:\\Annan\\offer.dll"), "offer");
    EXPECT_EQ(target.registered.count("C:\\Annan\\offer.dll"), 1U);
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\egen.txt"));
    EXPECT_THAT(Log(), HasSubstr("C:\\offer.txt: den ligger utanför programmets mappar"));
}

TEST_F(UninstallTest, FollowsNoLinkThatWasPutInThePlaceOfItsFolder)
{
    AddFile("djup.txt", "%DESTDIR\\Bin\\Djup", "djup");
    ASSERT_EQ(Install(), ExitCode::Done);
    target.links.insert(LowerCase(kMain + "\\Bin"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\Bin\\prog.exe"));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\Bin\\Djup\\djup.txt"));
    EXPECT_THAT(Log(), HasSubstr(kMain + "\\Bin\\prog.exe: en länk leder till en annan mapp"));
    EXPECT_THAT(Log(), HasSubstr(kMain + "\\Bin: en länk leder till en annan mapp"));
}

TEST_F(UninstallTest, FollowsALinkThatWasThereBefore)
{
    memory.files.PutFolder("C:\\Program");
    target.links.insert("c:\\program");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.DirExists(kMain));
}

TEST_F(UninstallTest, BelievesOnlyALogBesideTheProgram)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const Text program = kMain + "\\QNXUNIN.EXE";
    memory.files.Put("C:\\Annan\\QNXUNIN.LOG", memory.files.Get(kMain + "\\QNXUNIN.LOG"));
    memory.files.Put(kMain + "\\annat.txt", memory.files.Get(kMain + "\\QNXUNIN.LOG"));
    EXPECT_TRUE(IsInSameFolder(files, kMain + "\\QNXUNIN.LOG", program));
    EXPECT_TRUE(IsInSameFolder(files, "c:\\program\\exempel\\qnxunin.log", program));
    EXPECT_FALSE(IsInSameFolder(files, "C:\\Annan\\QNXUNIN.LOG", program));
    EXPECT_FALSE(IsInSameFolder(files, kMain + "\\annat.txt", program));
    EXPECT_FALSE(IsInSameFolder(files, "", program));
    EXPECT_FALSE(IsTrusted(files, target, "C:\\Annan\\QNXUNIN.LOG", program));
}

// A disk from which a lesser user has removed the product's log, to lay one of their own there.
TEST_F(UninstallTest, BelievesNoLogOfSomebodyElse)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const Text log = kMain + "\\QNXUNIN.LOG";
    const Text program = kMain + "\\QNXUNIN.EXE";
    EXPECT_TRUE(IsTrusted(files, target, log, program));
    target.ofOthers.insert(log);
    EXPECT_FALSE(IsTrusted(files, target, log, program));
    // The user who made the program too is the one who installed the product.
    target.ofOthers.insert(program);
    EXPECT_TRUE(IsTrusted(files, target, log, program));
}

TEST_F(UninstallTest, GoesOnBehindNoLogOfSomebodyElse)
{
    const Text log = kMain + "\\QNXUNIN.LOG";
    memory.files.Put("C:\\Annan\\offer.txt", "offer");
    memory.files.Put(log, "Quillon installationslogg 2\r\nPRODUCT\tExempel\r\n"
                          "FOLDER\tC:\\Annan\r\nFILE\tC:\\Annan\\offer.txt\r\n");
    target.ofOthers.insert(log);
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_THAT(memory.files.Get(log), testing::Not(HasSubstr("offer.txt")));
    target.ofOthers.clear();
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("C:\\Annan\\offer.txt"), "offer");
}

// Otherwise the uninstaller could be made to remove any file as the one that waits.
TEST_F(UninstallTest, TakesBackNoReplacementWhosePathLeadsElsewhere)
{
    const Text place = kMain + "\\ny.dll";
    const Text throughParents = kMain + "\\..\\..\\offer.txt";
    const Text elsewhere = "C:\\Annan\\offer.txt";
    const Text beside = kMain + "\\~qn1.tmp\\1";
    Text log = "Quillon installationslogg 2\r\nPRODUCT\tExempel\r\n";
    for (const Text& from : {throughParents, elsewhere, beside}) {
        memory.files.Put(from, "offer");
        log += "ATRESTART\t" + from + "\t" + place + "\r\n";
    }
    memory.files.Put(kMain + "\\QNXUNIN.LOG", log);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_TRUE(files.FileExists(throughParents));
    EXPECT_TRUE(files.FileExists(elsewhere));
    EXPECT_FALSE(files.FileExists(beside));
}

TEST_F(UninstallTest, LeavesAFolderBehindALink)
{
    AddFolder("%DESTDIR\\Bin\\Tom");
    ASSERT_EQ(Install(), ExitCode::Done);
    target.links.insert(LowerCase(kMain + "\\Bin"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_TRUE(memory.files.DirExists(kMain + "\\Bin\\Tom"));
    EXPECT_THAT(Log(), HasSubstr(kMain + "\\Bin\\Tom: en länk leder till en annan mapp"));
}

// What a crash looks like from here: the process that unregisters ends with a code of its own.
TEST_F(UninstallTest, GoesOnWhereAFileCanNotTakeItsRegistrationBack)
{
    AddFile("server.dll", "%DESTDIR", "server", "R");
    ASSERT_EQ(Install(), ExitCode::Done);
    target.registrationAnswers[kMain + "\\server.dll"] = Registration::Failed;
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.DirExists(kMain));
}

TEST_F(UninstallTest, LosesNoLineOfAnIniFileOnAFullDisk)
{
    const Text path = "C:\\WINDOWS\\A.INI";
    memory.files.Put(path, "[S]\r\nannat=1\r\n");
    project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nx=1";
    ASSERT_EQ(Install(), ExitCode::Done);
    const record::IniValue record{path, "S", "x", "1", std::nullopt};
    int change = 0;
    for (const int failAt : {1, 2, 3, 4}) {
        change = 0;
        files.beforeChange = [&] {
            if (++change == failAt)
                throw RunError(ErrorNumber::kDiskFull, "full");
        };
        EXPECT_THROW(UndoIniChange({files, target}, record), RunError) << failAt;
        EXPECT_EQ(memory.files.Get(path), "[S]\r\nannat=1\r\nx=1\r\n") << failAt;
        EXPECT_FALSE(memory.files.FileExists("C:\\WINDOWS\\~qn-A.INI.tmp")) << failAt;
    }
    files.beforeChange = [] {};
    UndoIniChange({files, target}, record);
    EXPECT_EQ(memory.files.Get(path), "[S]\r\nannat=1\r\n");
}

class IniFileOfOthers : public UninstallTest, public testing::WithParamInterface<const char*> {};

TEST_P(IniFileOfOthers, ComesBackByteForByte)
{
    const Text path = "C:\\WINDOWS\\A.INI";
    memory.files.Put(path, GetParam());
    const Text list = "-- A.INI --\r\n[S]\r\nx=2\r\nny=3\r\n[T]\r\nz=4";
    for (const int installations : {1, 2}) {
        for (int i = 0; i < installations; ++i) {
            project.Lists.INIFiles = ReplaceAll(list, "x=2", "x=" + NumberText(i + 2));
            ASSERT_EQ(Install(), ExitCode::Done);
        }
        EXPECT_NE(memory.files.Get(path), GetParam());
        EXPECT_EQ(UninstallProduct(), ExitCode::Done);
        EXPECT_EQ(memory.files.Get(path), GetParam()) << installations;
    }
}

INSTANTIATE_TEST_SUITE_P(, IniFileOfOthers,
                         testing::Values("[S]\r\n x = 1 \r\n", "[S]\r\n x = 1 ", "[S]", "x",
                                         "[S]\n\tX\t=\t\n; slut", "[T]\r\nz=0\r\n\r\n[S]\r\nx=1",
                                         "[S]\r\nx=\xE5\xE4 \x81\r\n[U]\r\n\r\n"));

TEST_F(UninstallTest, LeavesTheEndOfAnIniFileThatOthersHaveWrittenTo)
{
    const Text path = "C:\\WINDOWS\\A.INI";
    memory.files.Put(path, "[S]\r\ny=1");
    project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nx=2";
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(path, memory.files.Get(path) + "annans=1\r\n");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(path), "[S]\r\ny=1\r\nannans=1\r\n");
}

TEST_F(UninstallTest, ShowsTheTextsOfTheInstallation)
{
    package.texts.Set(Message::UninstallQuestion, "Fjern %1?");
    ASSERT_EQ(Install(), ExitCode::Done);
    const auto product = ReadInstalledProduct(files, kMain + "\\QNXUNIN.LOG");
    ASSERT_TRUE(product);
    EXPECT_EQ(product->name, "Exempel");
    EXPECT_EQ(product->texts(Message::UninstallQuestion, "X"), "Fjern X?");
    EXPECT_FALSE(ReadInstalledProduct(files, "C:\\finns inte"));
}

TEST_F(UninstallTest, IsNotOfferedWithoutUninstallSupport)
{
    project.InstallOptions.UninstallSupport = kOff;
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\QNXUNIN.EXE"));
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\QNXUNIN.LOG"));
    EXPECT_FALSE(
        target.KeyExists({RegistryRoot::LocalMachine,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Exempel"}));
}

// The entry in the system's list is the one of the copy that was installed last.
TEST_F(UninstallTest, LeavesTheEntryOfACopyInAnotherFolder)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(Install("/S /D=C:\\Annan\\Exempel"), ExitCode::Done) << Log();
    const RegistryKey entry = UninstallEntryKey("Exempel");
    const Text command = target.TextAt(entry, kUninstallString);
    ASSERT_THAT(command, HasSubstr("C:\\Annan\\Exempel"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.DirExists(kMain));
    EXPECT_EQ(target.TextAt(entry, kUninstallString), command);
    EXPECT_EQ(target.TextAt(entry, "DisplayName"), "Exempel");
    EXPECT_EQ(UninstallProduct("C:\\Annan\\Exempel\\QNXUNIN.LOG"), ExitCode::Done) << Log();
    EXPECT_FALSE(target.KeyExists(entry));
}

TEST_F(UninstallTest, HoldsAShutdownOffAsTheInstallationDoes)
{
    int holds = 0;
    target.beforeChange = [&] {
        // What says that a setup runs is written before it, and removed after it.
        holds = std::max(holds, target.shutdownHolds);
    };
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: A=\"1\"";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(std::exchange(holds, 0), 1);
    EXPECT_EQ(target.shutdownHolds, 0);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(holds, 1);
    EXPECT_EQ(target.shutdownHolds, 0);
    EXPECT_EQ(target.shutdownReasons,
              (std::vector<Text>{package.texts[Message::Copying],
                                 package.texts[Message::UninstallRunning]}));
}

// A machine that loses its power right afterwards has them whole.
TEST_F(UninstallTest, ForcesOutWhatTakesThePlaceOfFormerFiles)
{
    const Text ini = "C:\\Windows\\A.INI";
    memory.files.Put(ini, "[Egen]\r\ny=2\r\n");
    project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nx=1";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_THAT(memory.files.Get(ini), HasSubstr("x=1"));
    EXPECT_TRUE(memory.files.At(ini).isFlushed);
    EXPECT_TRUE(memory.files.At(kMain + "\\QNXUNIN.LOG").isFlushed);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(ini), "[Egen]\r\ny=2\r\n");
    EXPECT_TRUE(memory.files.At(ini).isFlushed);
}

} // namespace quillon
