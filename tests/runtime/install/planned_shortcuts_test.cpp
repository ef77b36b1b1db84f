#include "runtime/support/setup_fixture.h"

#include "runtime/install/planned_shortcuts.h"

namespace quillon {

using test::kMain;
const Text kGroup = "C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\";

class PlannedShortcutsTest : public test::SetupFixture {
protected:
    InstallRow& AddIcon(const Text& name, const Text& marker, const Text& title)
    {
        InstallRow& row = AddFile(name, "%DESTDIR", "x");
        row.iconMarker = marker;
        row.iconTitle = title;
        return row;
    }
};

struct PlaceCase {
    const char* marker;
    const char* second;
};
class IconPlace : public PlannedShortcutsTest, public testing::WithParamInterface<PlaceCase> {};

TEST_P(IconPlace, ComesBesideTheProgramGroup)
{
    AddIcon("prog.exe", GetParam().marker, "Prog");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kGroup + "Prog.lnk"));
    for (const char* place : {"C:\\Ulla\\Skrivbord\\Prog.lnk", "C:\\Ulla\\Start-meny\\Prog.lnk",
                              "C:\\Ulla\\Start-meny\\Program\\Prog.lnk"})
        EXPECT_EQ(memory.files.FileExists(place), Text(place) == GetParam().second) << place;
}

INSTANTIATE_TEST_SUITE_P(
    , IconPlace,
    testing::Values(PlaceCase{"Ikon", ""}, PlaceCase{"IkonD", "C:\\Ulla\\Skrivbord\\Prog.lnk"},
                    PlaceCase{"IkonS", "C:\\Ulla\\Start-meny\\Prog.lnk"},
                    PlaceCase{"IkonP", "C:\\Ulla\\Start-meny\\Program\\Prog.lnk"}));

TEST_F(PlannedShortcutsTest, GoToAllUsersWhereTheProjectSaysSo)
{
    AddIcon("prog.exe", "IkonD", "Prog");
    project.ProgramGroup.ProgramGroup_AllUsers = kOn;
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists("C:\\Alla\\Start-meny\\Program\\Exempelgrupp\\Prog.lnk"));
    EXPECT_TRUE(memory.files.FileExists("C:\\Alla\\Skrivbord\\Prog.lnk"));
    target.hasCommonFolders = false;
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kGroup + "Prog.lnk"));
}

TEST_F(PlannedShortcutsTest, CarryParametersFolderAndIcon)
{
    InstallRow& row = AddIcon("prog.exe", "Ikon", "Prog: 1/2");
    row.iconParameters = "/fil=%DESTDIR\\a.txt";
    row.workFolder = "%MYDOCUMENTS";
    row.iconFile = "%DESTDIR\\ikon.ico";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kGroup + "Prog- 1-2.lnk"), kMain + "\\prog.exe|/fil=" + kMain +
                                                              "\\a.txt|C:\\Mina dokument|" + kMain +
                                                              "\\ikon.ico|Prog: 1/2");
}

struct ViewerCase {
    int viewer;
    const char* program;
};
class Viewer : public PlannedShortcutsTest, public testing::WithParamInterface<ViewerCase> {};

TEST_P(Viewer, OpensTheDocument)
{
    AddIcon("läs.txt", "Ikon", "Läs").viewer = GetParam().viewer;
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kGroup + "Läs.lnk"),
              Text(GetParam().program) + "|\"" + kMain + "\\läs.txt\"|" + kMain + "||Läs");
}

INSTANTIATE_TEST_SUITE_P(
    , Viewer,
    testing::Values(ViewerCase{1, "C:\\WINDOWS\\NOTEPAD.EXE"},
                    ViewerCase{2, "C:\\WINDOWS\\WINHLP32.EXE"},
                    ViewerCase{3, "C:\\Program\\Windows NT\\Accessories\\WORDPAD.EXE"},
                    ViewerCase{4, "C:\\WINDOWS\\WRITE.EXE"}));

struct CommandCase {
    const char* commandLine;
    const char* target;
};
class IconOfAFile : public PlannedShortcutsTest, public testing::WithParamInterface<CommandCase> {};

TEST_P(IconOfAFile, StartsItsCommandLine)
{
    AddIcon("bild.ico", "Ikon", "Start").iconParameters = GetParam().commandLine;
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kGroup + "Start.lnk"),
              Text(GetParam().target) + "||" + kMain + "\\bild.ico|Start");
}

INSTANTIATE_TEST_SUITE_P(
    , IconOfAFile,
    testing::Values(CommandCase{"%DESTDIR\\p.exe", "C:\\Program\\Exempel\\p.exe|"},
                    CommandCase{"\"%DESTDIR\\en fil.exe\" /a \"b c\"",
                                "C:\\Program\\Exempel\\en fil.exe|/a \"b c\""},
                    CommandCase{"%DESTDIR\\p.exe /a", "C:\\Program\\Exempel\\p.exe|/a"}));

class ShortcutInTheGroup : public PlannedShortcutsTest,
                           public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(ShortcutInTheGroup, GoesOnlyWhereItLeadsToTheProduct)
{
    const auto& [content, goes] = GetParam();
    AddIcon("prog.exe", "Ikon", "Prog");
    memory.files.Put(kGroup + "Gammal.lnk", content);
    memory.files.Put(kGroup + "anteckning.txt", kMain + "\\prog.exe||||");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.FileExists(kGroup + "Gammal.lnk"), !goes);
    EXPECT_TRUE(memory.files.FileExists(kGroup + "anteckning.txt"));
    memory.files.Put(kGroup + "Gammal.lnk", content);
    project.InstallOptions.DeleteProgGroup = kOff;
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kGroup + "Gammal.lnk"));
}

INSTANTIATE_TEST_SUITE_P(
    , ShortcutInTheGroup,
    testing::Values(std::pair("c:\\PROGRAM\\exempel\\gammal.exe||||", true),
                    std::pair("C:\\WINDOWS\\NOTEPAD.EXE|\"C:\\Program\\Exempel\\l.txt\"|||", true),
                    std::pair("C:\\Program\\Exempel2\\annan.exe||||", false),
                    std::pair("C:\\WINDOWS\\NOTEPAD.EXE|\"C:\\Program\\Annan\\l.txt\"|||", false),
                    std::pair("ingen genväg", false)));

// What was called otherwise in the version before goes with its old name.
TEST_F(PlannedShortcutsTest, ReplaceThoseThatTheProductsOwnRecordNames)
{
    AddIcon("bild.ico", "Ikon", "Gammalt namn").iconParameters = "C:\\Annat\\start.exe";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kGroup + "Gammalt namn.lnk"));
    package.rows[0].iconTitle = "Nytt namn";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kGroup + "Gammalt namn.lnk"));
    EXPECT_TRUE(memory.files.FileExists(kGroup + "Nytt namn.lnk"));
}

TEST_F(PlannedShortcutsTest, GoWithAnUpgradeThatHasNoneAnyMore)
{
    AddIcon("prog.exe", "Ikon", "Prog");
    project.InstallOptions.CreateUninstallIcon = kOff;
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_TRUE(memory.files.FileExists(kGroup + "Prog.lnk"));
    memory.files.Put(kGroup + "Annan.lnk", "C:\\Annan\\annan.exe||||");
    package.rows[0].iconMarker.clear();
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kGroup + "Prog.lnk"));
    EXPECT_TRUE(memory.files.FileExists(kGroup + "Annan.lnk"));
    EXPECT_THAT(Log(), testing::HasSubstr(kGroup + "Prog.lnk"));
}

class GroupElsewhere : public PlannedShortcutsTest,
                       public testing::WithParamInterface<const char*> {};

TEST_P(GroupElsewhere, IsRefusedBeforeAnythingIsWritten)
{
    AddIcon("prog.exe", "Ikon", "Prog");
    project.ProgramGroup.ProgramGroup = GetParam();
    const test::MachineState before = State();
    EXPECT_EQ(Install(), ExitCode::DamagedPackage);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(Log(), testing::HasSubstr(Text("ProgramGroup saknar giltig mapp: ") + GetParam()));
}

INSTANTIATE_TEST_SUITE_P(, GroupElsewhere,
                         testing::Values("..\\Startup", "Firma\\..\\..\\x", "C:\\Windows",
                                         "d:", "Firma/../x", "NUL", "Firma\\com1.txt"));

TEST_F(PlannedShortcutsTest, MakeNoGroupWithoutAnIcon)
{
    AddFile("prog.exe", "%DESTDIR", "x");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_FALSE(memory.files.DirExists(kGroup));
}

} // namespace quillon
