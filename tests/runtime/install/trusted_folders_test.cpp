// A folder that another user has made: programs that are installed there could be replaced.
#include "runtime/support/setup_fixture.h"

#include "runtime/install/trusted_folders.h"

namespace quillon {
namespace {

using testing::HasSubstr;

using test::kMain;

class FolderOfOthers : public test::SetupFixture {
protected:
    FolderOfOthers() { AddFile("prog.exe", "%DESTDIR", "program"); }

    void ExpectRefused(const Text& folder)
    {
        const test::MachineState before = State();
        EXPECT_EQ(Install(), ExitCode::Failed);
        EXPECT_EQ(State(), before);
        EXPECT_THAT(Log(), HasSubstr("Mappen '" + folder +
                                     "' har skapats av en annan användare, som kan byta ut det som "
                                     "installeras där. Välj en annan mapp."));
    }
};

TEST_F(FolderOfOthers, IsRefused)
{
    memory.files.PutFolder(kMain);
    target.ofOthers.insert(kMain);
    ExpectRefused(kMain);
}

TEST_F(FolderOfOthers, IsRefusedAboveTheMainFolderToo)
{
    target.ofOthers.insert("C:\\Program");
    ExpectRefused("C:\\Program");
}

TEST_F(FolderOfOthers, IsRefusedForAnUpdate)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    target.ofOthers.insert(kMain);
    sources[0].bytes = "version 2";
    ExpectRefused(kMain);
}

TEST_F(FolderOfOthers, IsTheOneThatTheUserHasChosen)
{
    target.ofOthers.insert("C:\\Program");
    EXPECT_EQ(Install("/S /D=C:\\Egen"), ExitCode::Done) << Log();
}

// The root of a drive belongs to the system or, on a disk from another machine, to a user unknown
// here.
TEST_F(FolderOfOthers, IsNoRootAndNoFolderOnADiskThatIsCarriedAbout)
{
    target.ofOthers.insert("C:\\");
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    memory.files.PutFolder("E:\\Program");
    memory.files.driveKinds["e:\\"] = DriveKind::Removable;
    target.ofOthers.insert("E:\\Program");
    EXPECT_EQ(Install("/S /D=E:\\Program\\Exempel"), ExitCode::Done) << Log();
}

class PartInFolderOfOthers : public FolderOfOthers {
protected:
    PartInFolderOfOthers() { AddFile("del.dll", "C:\\Firma\\Delat", "part"); }
};

TEST_F(PartInFolderOfOthers, IsRefused)
{
    target.ofOthers.insert("C:\\Firma\\Delat");
    EXPECT_EQ(Install(), ExitCode::Done) << "nobody has made it yet" << Log();
    memory.files.Put("C:\\Firma\\Delat\\annans.txt", "of somebody else");
    ExpectRefused("C:\\Firma\\Delat");
    target.ofOthers = {"C:\\Firma"};
    ExpectRefused("C:\\Firma");
}

TEST_F(PartInFolderOfOthers, IsRefusedByThePlanToo)
{
    memory.files.PutFolder("C:\\Firma");
    target.ofOthers.insert("C:\\Firma");
    EXPECT_EQ(Install("/S /PLAN=L:\\plan.json"), ExitCode::Failed);
    EXPECT_FALSE(memory.files.FileExists("L:\\plan.json"));
    target.ofOthers.clear();
    EXPECT_EQ(Install("/S /PLAN=L:\\plan.json"), ExitCode::Done) << Log();
}

TEST_F(PartInFolderOfOthers, IsRefusedInAFolderThatTheUserHasChosenForAComponent)
{
    package.setup.UseComponents = kOn;
    project.FileComponents[1] = {.Comp = 1, .CompDefault = 1, .CompCanChangeDir = 1};
    AddFile("b.txt", "%COMPDIR2", "of a component").component = "2";
    memory.files.PutFolder("C:\\Vald");
    target.ofOthers.insert("C:\\Vald");
    memory.files.Put("L:\\svar.inf", "\xEF\xBB\xBF[Setup]\r\nCompDir2=C:\\Vald\\Del\r\n");
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    const test::MachineState before = State();
    EXPECT_EQ(Install("/S /LOADINF=L:\\svar.inf"), ExitCode::Failed);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(Log(), HasSubstr("Mappen 'C:\\Vald' har skapats av en annan användare"));
    // Nothing is written there where the component is left out.
    EXPECT_EQ(Install("/S /LOADINF=L:\\svar.inf /COMPONENTS=!2"), ExitCode::Done) << Log();
}

// An INI file, an empty folder and a shortcut are parts too.
TEST_F(PartInFolderOfOthers, NeedsNoFileOfTheList)
{
    memory.files.PutFolder("C:\\Annans");
    target.ofOthers.insert("C:\\Annans");
    project.Lists.INIFiles = "-- C:\\Annans\\a.ini --\r\n[A]\r\nb=c";
    ExpectRefused("C:\\Annans");
    project.Lists.INIFiles.clear();
    AddFolder("C:\\Annans\\Tom");
    ExpectRefused("C:\\Annans");
    package.rows.pop_back();
    target.ofOthers = {"C:\\Ulla\\Skrivbord"};
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    package.rows[0].iconMarker = "IKOND";
    package.rows[0].iconTitle = "Exempel";
    ExpectRefused("C:\\Ulla\\Skrivbord");
}

// Only administrators may write to these, even if another user owns them.
TEST_F(PartInFolderOfOthers, GoesToTheFoldersOfTheSystem)
{
    AddFile("a.dll", "%SYSDIR", "a");
    AddFile("b.dll", "%COMMONFILES\\Firma", "b");
    AddFile("c.ttf", "%FONTDIR", "c");
    project.Lists.INIFiles = "-- APP.INI --\r\n[A]\r\nb=c";
    memory.files.PutFolder("C:\\WINDOWS\\Fonts");
    memory.files.PutFolder("C:\\Program\\Vanliga filer\\Firma");
    target.ofOthers = {"C:\\WINDOWS", "C:\\WINDOWS\\SYSTEM32", "C:\\WINDOWS\\Fonts",
                       "C:\\Program\\Vanliga filer"};
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    target.ofOthers = {"C:\\Program\\Vanliga filer\\Firma"};
    ExpectRefused("C:\\Program\\Vanliga filer\\Firma");
}

TEST(FoldersOfParts, AreThoseOutsideTheMainFolderEachOnce)
{
    InstallPlan plan;
    plan.mainFolder = "C:\\Program\\Exempel";
    for (const char* path :
         {"C:\\Program\\Exempel\\a.exe", "c:\\program\\EXEMPEL\\Data\\b.txt",
          "C:\\Program\\Exempel 2\\c.txt", "D:\\Delat\\d.txt", "D:\\DELAT\\e.txt"})
        plan.files.push_back({nullptr, path});
    plan.folders = {"E:\\Tom", "C:\\Program\\Exempel\\Tom"};
    plan.shortcuts.push_back({"F:\\Grupp\\a.lnk", {}});
    plan.ini.push_back({.file = "G:\\a.ini"});
    EXPECT_EQ(FoldersOfParts(plan), (std::vector<Text>{"C:\\Program\\Exempel 2", "D:\\Delat",
                                                       "E:\\Tom", "F:\\Grupp", "G:\\"}));
}

} // namespace
} // namespace quillon
