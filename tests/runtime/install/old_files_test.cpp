// What an update does with the files of the earlier version that it lacks.
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/journal/install_journal.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;
using testing::Not;

const Text kOld = kMain + "\\Data\\gammal.txt";

class OldFilesTest : public SetupFixture {
protected:
    OldFilesTest()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        AddFile("gammal.txt", "%DESTDIR\\Data", "old text");
    }
    /// The next version has its first row alone.
    void Update(const Text& switches = "/S")
    {
        package.rows.resize(1);
        sources[0].bytes = "program 2";
        package.rows[0].size = sources[0].bytes.size();
        EXPECT_EQ(Install(switches), ExitCode::Done) << Log();
        EXPECT_EQ(memory.files.Get(kMain + "\\prog.exe"), "program 2");
    }
    std::size_t Count(const Text& path) const
    {
        const auto records = ReadInstallJournal(memory.files.Get(kMain + "\\QNXUNIN.LOG"));
        std::size_t count = 0;
        for (const JournalRecord& record : records.value_or(std::vector<JournalRecord>{}))
            count += std::holds_alternative<record::Content>(record) &&
                     EqualIgnoreCase(SubjectOf(record), path);
        return count;
    }
};

TEST_F(OldFilesTest, GoWhereNobodyHasChangedThem)
{
    const MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done);
    Update();
    EXPECT_FALSE(memory.files.FileExists(kOld));
    EXPECT_THAT(Log(), HasSubstr("Tar bort " + kOld + ", som inte ingår i den nya versionen"));
    EXPECT_FALSE(memory.files.DirExists(ExtractDirectory(kOld)));
    EXPECT_THAT(Log(), HasSubstr("Tar bort mappen " + ExtractDirectory(kOld)));
    // A file that another user puts there now stays.
    memory.files.Put(kOld, "användarens");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kOld), "användarens");
    memory.files.RemoveFile(kOld);
    EXPECT_EQ(State().registry, before.registry);
}

// With the folders that they were in, as far as the product made them and no other file is in them.
TEST_F(OldFilesTest, TakeTheirFoldersAlong)
{
    memory.files.PutFolder(kMain + "\\Fanns");
    AddFile("a.txt", "%DESTDIR\\Data\\Inre\\Innerst", "a");
    AddFile("b.txt", "%DESTDIR\\Fanns", "b");
    AddFile("c.txt", "%DESTDIR\\Anteckningar", "c");
    AddFile("d.txt", "%DESTDIR\\Tom", "d");
    AddFile("e.txt", "%DESTDIR\\Länk", "e");
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kMain + "\\Anteckningar\\min.txt", "the user's own");
    memory.files.RemoveFile(kMain + "\\Länk\\e.txt");
    target.links = {LowerCase(kMain + "\\Länk")};
    package.rows.resize(1);
    sources.resize(1);
    AddFolder("%DESTDIR\\Tom");
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.DirExists(kMain + "\\Data"));
    EXPECT_TRUE(memory.files.DirExists(kMain + "\\Fanns"));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\Anteckningar\\min.txt"));
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\Anteckningar\\c.txt"));
    EXPECT_THAT(Log(), HasSubstr(kMain + "\\Anteckningar: mappen är inte tom"));
    EXPECT_TRUE(memory.files.DirExists(kMain + "\\Tom")) << "the new version has it too";
    EXPECT_TRUE(memory.files.DirExists(kMain + "\\Länk"));
    EXPECT_THAT(Log(), Not(HasSubstr("Tar bort mappen " + kMain + "\r\n")));
}

TEST_F(OldFilesTest, LeaveTheirFolderToTheFilesThatStayInIt)
{
    AddFile("kvar.txt", "%DESTDIR\\Data", "kept");
    std::swap(package.rows[1], package.rows[2]);
    std::swap(sources[1], sources[2]);
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    package.rows.resize(2);
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.FileExists(kOld));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\Data\\kvar.txt"));
    EXPECT_THAT(Log(), Not(HasSubstr("mappen är inte tom")));
}

TEST_F(OldFilesTest, StayWhereSomebodyHasChangedThem)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    for (const std::string changed : {"OLD TEXT", "old text and more", ""}) {
        memory.files.Put(kOld, changed);
        Update();
        EXPECT_EQ(memory.files.Get(kOld), changed);
        EXPECT_THAT(Log(),
                    HasSubstr("Hoppar över " + kOld + ": filen har ändrats efter den förra"));
    }
    // A file that was not changed is removed with the next update.
    memory.files.Put(kOld, "old text");
    Update();
    EXPECT_FALSE(memory.files.FileExists(kOld));
}

TEST_F(OldFilesTest, StayWhereTheRecordDoesNotTellWhatTheyHeld)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    ForgetRecordedContents();
    Update();
    EXPECT_TRUE(memory.files.FileExists(kOld));
    EXPECT_THAT(Log(), HasSubstr(kOld + ": det är okänt om filen har ändrats"));
}

TEST_F(OldFilesTest, StayInAComponentThatIsNotChosenThisTime)
{
    package.setup.UseComponents = kOn;
    project.FileComponents[0] = {.Comp = 1, .CompDefault = 1};
    package.rows[1].component = "1";
    ASSERT_EQ(Install(), ExitCode::Done);
    project.FileComponents[0].CompDefault = 0;
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kOld), "old text");
    // Its content is still recorded.
    EXPECT_EQ(Count(kOld), 1U);
    Update();
    EXPECT_FALSE(memory.files.FileExists(kOld));
}

TEST_F(OldFilesTest, StayWhereTheyWereNotOursOrAreOthersToo)
{
    memory.files.Put(kOld, "the user's own");
    AddFile("delad.dll", "%SYSDIR", "shared", "S");
    AddFile("server.dll", "%DESTDIR", "server", "R");
    AddFile("kvar.txt", "%DESTDIR", "kept", "*");
    ASSERT_EQ(Install(), ExitCode::Done);
    Update();
    // It replaced a file that was there before; the uninstaller handles it by its record.
    EXPECT_TRUE(memory.files.FileExists(kOld));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\kvar.txt"));
    EXPECT_THAT(Log(), HasSubstr("delad.dll: filen är registrerad eller delas"));
    EXPECT_THAT(Log(), HasSubstr("server.dll: filen är registrerad eller delas"));
    EXPECT_TRUE(memory.files.FileExists("C:\\WINDOWS\\SYSTEM32\\delad.dll"));
}

TEST_F(OldFilesTest, StayBehindALinkAndWhereTheyCannotBeMoved)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    target.links = {LowerCase(kMain + "\\Data")};
    Update();
    EXPECT_TRUE(memory.files.FileExists(kOld));
    EXPECT_THAT(Log(), HasSubstr(kOld + ": en länk leder till en annan mapp"));
    target.links.clear();
    files.inUse = {kOld};
    Update();
    EXPECT_TRUE(memory.files.FileExists(kOld));
    EXPECT_THAT(Log(), HasSubstr("Hoppar över " + kOld));
    files.inUse.clear();
    Update();
    EXPECT_FALSE(memory.files.FileExists(kOld));
}

TEST_F(OldFilesTest, ComeBackWhereTheUpdateFails)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    package.rows.resize(1);
    const MachineState before = State();
    int changes = 0;
    files.beforeChange = [&] { ++changes; };
    Install();
    ASSERT_FALSE(memory.files.FileExists(kOld));
    files.beforeChange = [] {};
    // Each change is refused once.
    for (int refused = 1; refused < changes; ++refused) {
        ASSERT_EQ(UninstallProduct(), ExitCode::Done);
        package.rows.clear();
        sources.clear();
        AddFile("prog.exe", "%DESTDIR", "program");
        AddFile("gammal.txt", "%DESTDIR\\Data", "old text");
        ASSERT_EQ(Install(), ExitCode::Done);
        package.rows.resize(1);
        int done = 0;
        files.beforeChange = [&] {
            if (++done == refused)
                throw RunError(ErrorNumber::kDeviceIo, "C:\\");
        };
        const ExitCode code = Install();
        files.beforeChange = [] {};
        if (code == ExitCode::Done)
            continue;
        EXPECT_EQ(State().files, before.files) << refused;
    }
}

TEST_F(OldFilesTest, AreKnownByOneLineEachHoweverOftenTheProductIsInstalled)
{
    for (int i = 0; i < 3; ++i)
        ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(Count(kOld), 1U);
    EXPECT_EQ(Count(kMain + "\\prog.exe"), 1U);
    // A file that is kept is still what it was.
    package.rows[1].copyOptions = "N";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(Count(kOld), 1U);
}

// The folder has two paths, as one with a short name has: what the earlier version wrote under the
// first is what this one writes under the second.
TEST_F(OldFilesTest, StayWhereTheNewVersionHasThemUnderAnotherPath)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const Text other = "C:\\PROGRA~1\\EXEMPEL";
    target.main = kMain;
    target.otherNameOfMain = other;
    memory.files.Put(other + "\\QNXUNIN.LOG", memory.files.Get(kMain + "\\QNXUNIN.LOG"));
    for (const char* name : {"\\prog.exe", "\\Data\\gammal.txt"})
        memory.files.Put(other + name, memory.files.Get(kMain + name));
    package.rows.resize(1);
    ASSERT_EQ(Install("/S /D=" + other), ExitCode::Done) << Log();
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\prog.exe")) << Log();
    // This one is not of the new version.
    EXPECT_FALSE(memory.files.FileExists(kOld));
}

} // namespace
} // namespace quillon::test
