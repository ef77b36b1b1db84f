// quillonc add, add-tree, add-folder and add-dep: what is in the project afterwards, what is
// said, and what is refused.
#include "edit_workshop.h"

#include <sys/stat.h>

namespace quillon::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class AddCalls : public EditWorkshop {
protected:
    std::string Src(const std::string& name) const { return disk.Path("src/" + name); }

    /// A list with as many rows as there is room for, or some fewer.
    void FillList(std::size_t fewer = 0) const
    {
        Project full = MakeProject({"App\\Prog.exe"});
        full.Files.rows.resize(kMaxRows - fewer, full.Files.rows[0]);
        Save(full);
    }
};

TEST_F(AddCalls, AddsFilesWhereTheDialogWouldPutThem)
{
    EXPECT_EQ(Done({"add", "S:\\App\\Sub\\a.txt", "S:\\Other\\c.txt"}),
              "Adderade filer: 2, överhoppade (finns redan eller dolda): 0\n");
    EXPECT_THAT(Rows(Filename), ElementsAre("a.txt", "c.txt"));
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR", "%DESTDIR"));
    EXPECT_THAT(Rows(Source), ElementsAre("s:\\app\\sub\\a.txt", "s:\\other\\c.txt"));
    // One library is enough to offer the system folder, as for a selection in the file dialog.
    Done({"add", Src("App/Sub/b.dll")});
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR", "%SYSDIR", "%DESTDIR"));
}

TEST_F(AddCalls, AddsFilesToTheFolderAndTheComponentThatAreNamed)
{
    Project withParts = MakeProject({});
    withParts.FileComponents[2] = {.Comp = 1, .CompName = "Hjälp"};
    Save(withParts);
    Done({"add", Src("App/Sub/a.txt"), "--component", "3"});
    Done({"add", Src("App/Sub/b.dll"), "--to", "%DESTDIR\\Bin\\"});
    EXPECT_THAT(Rows(Destination), ElementsAre("%COMPDIR3", "%DESTDIR\\Bin"));
    EXPECT_THAT(Rows(ComponentNumber), ElementsAre("3", ""));
    ExpectRefused({"add", Src("Other/c.txt"), "--component", "4"}, 1,
                  "Projektet har ingen komponent 4.");
    ExpectRefused({"add", Src("Other/c.txt"), "--component", "10"}, 2, "från 1 till 9");
}

TEST_F(AddCalls, TellsAnAdditionAsAnObject)
{
    const Json object = DoneAsObject({"add", Src("App/Sub/a.txt"), Src("Other/c.txt")});
    EXPECT_EQ(object["changed"], true);
    EXPECT_EQ(object["files"], 2);
    EXPECT_EQ(object["passed"], 0);
    EXPECT_TRUE(object["refused"].empty());
    ASSERT_EQ(object["added"].size(), 2U);
    EXPECT_EQ(object["added"][1]["row"], 2);
    EXPECT_EQ(object["added"][1]["name"], "c.txt");
    EXPECT_EQ(object["added"][1]["destination"], "%DESTDIR");
}

TEST_F(AddCalls, LeavesAProjectAloneThatHasTheFilesAlready)
{
    Done({"add", Src("App/Sub/a.txt"), Src("Other/c.txt")});
    ExpectUntouched({"add", Src("App/Sub/a.txt"), Src("Other/c.txt")});
    ExpectUntouched({"add", Src("Other/c.txt")});
    EXPECT_THAT(Edit({"add", Src("Other/c.txt")}).err,
                HasSubstr("Quillon: Filen är redan inlagd i fillistan!"));
}

TEST_F(AddCalls, TakesAFileThatIsNamedTwiceOnce)
{
    disk.Put("src/Other/a.txt", "another");
    // The same file, and one of the same name that would go to the same place.
    EXPECT_EQ(DoneAsObject(
                  {"add", Src("App/Sub/a.txt"), Src("App/Sub/a.txt"), Src("Other/a.txt")})["added"]
                  .size(),
              1U);
    EXPECT_THAT(Rows(Source), ElementsAre("s:\\app\\sub\\a.txt"));
}

TEST_F(AddCalls, RefusesWhatIsNoFileToAdd)
{
    disk.Put("src/root.txt", "in the root of S:");
    ExpectRefused({"add", Src("gone.txt")}, 3, "finns inte. Inget är sparat.");
    ExpectRefused({"add", Src("Other/c.txt"), Src("gone.txt")}, 3, "finns inte.");
    ExpectRefused({"add", Src("App")}, 3, "är en katalog och ingen fil.");
    ExpectRefused({"add", "S:\\Other\\c.txt", "S:\\root.txt"}, 1,
                  "Filer kan endast adderas från underkataloger");
    ExpectRefused({"add", Src("Other/c.txt"), "--to", "%DESTDIR;X"}, 1,
                  "Destinationskatalogen innehåller ogiltiga tecken!");
    ExpectRefused({"add", Src("Other/c.txt"), "--to", "%DESTDIR\\Ω"}, 1,
                  "har tecken i namn, källsökväg eller destination");
    ExpectRefused({"add"}, 2, "saknar FIL...");
    chmod(Src("Other/c.txt").c_str(), 0);
    ExpectRefused({"add", Src("Other/c.txt")}, 3, "Åtkomst nekas", RunAs::Nobody);
}

TEST_F(AddCalls, TakesTheMainFolderWhereThereIsNoSystemFolder)
{
    disk.Put("no-folder", "x");
    environment["QUILLON_DRIVE_C"] = disk.Path("no-folder/c");
    const ProgramRun run = Edit({"add", Src("Other/c.txt")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "Enheten C: kan ej skapas i '" + disk.Path("no-folder/c") +
                           "'; ange en annan katalog med QUILLON_DRIVE_C.\n");
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR"));
}

TEST_F(AddCalls, RefusesAFileWhosePathInLowerCaseLeadsToAnother)
{
    disk.Put("src/Other/A.TXT", "capitals");
    disk.Put("src/Other/a.txt", "small letters");
    ExpectRefused({"add", Src("Other/A.TXT")}, 1, "a.txt' leder till en annan fil.");
    ExpectRefused({"add-tree", Src("Other")}, 1, "leder till en annan fil.");
    const Json object = DoneAsObject({"add-tree", "S:\\Other", "--continue"});
    EXPECT_EQ(object["refused"].size(), 1U);
    EXPECT_THAT(Rows(Source), ElementsAre("s:\\other\\a.txt", "s:\\other\\c.txt"));
    // The other way round: "B.txt" comes first in byte order.
    disk.Put("src/Third/B.txt", "one");
    disk.Put("src/Third/B.tXt", "two");
    EXPECT_THAT(Edit({"add", Src("Third/B.txt")}).err, HasSubstr("leder till en annan fil."));
    Done({"add", Src("Third/B.tXt")});
}

TEST_F(AddCalls, RefusesAFileInAFolderWhoseNamesCannotBeRead)
{
    disk.Put("src/Shut/Läs.TXT", "text");
    chmod(disk.Path().c_str(), 0777);
    chmod(Src("Shut").c_str(), 0711);
    ExpectRefused({"add", Src("Shut/Läs.TXT")}, 1, "leder till ingen fil alls.", RunAs::Nobody);
    chmod(Src("Shut").c_str(), 0755);
}

TEST_F(AddCalls, RefusesNamesThatWindowsCannotHold)
{
    for (const char* name : {"a:b", "a?b.txt", "aux.txt", "a.", "rad\r\nF2=x"}) {
        disk.Put(std::string("src/Odd/") + name, "text");
        ExpectRefused({"add-tree", Src("Odd")}, 1, "fungerar inte i Windows");
        ExpectRefused({"add", Src(std::string("Odd/") + name)}, 1, "fungerar inte i Windows");
        std::filesystem::remove(Src(std::string("Odd/") + name));
    }
    disk.Put("src/Tree/a|b/c.txt", "text");
    ExpectRefused({"add-tree", Src("Tree")}, 1, "Destinationen '%DESTDIR\\a|b' fungerar inte");
    for (const char* folder : {"%DESTDIR\\..\\..", "%DESTDIR\\C:\\x", "C:\\%SYSDIR"})
        ExpectRefused({"add", Src("Other/c.txt"), "--to", folder}, 1, "fungerar inte i Windows");
}

TEST_F(AddCalls, RefusesATreeWithAFileThatCannotBeRead)
{
    chmod(disk.Path().c_str(), 0777);
    chmod(Src("App/Sub/a.txt").c_str(), 0);
    ExpectRefused({"add-tree", "S:\\App"}, 1, "Åtkomst nekas", RunAs::Nobody);
    chmod(Src("App/Sub/a.txt").c_str(), 0644);
}

TEST_F(AddCalls, TakesNoPipeForAFile)
{
    ASSERT_EQ(mkfifo(Src("App/pipe").c_str(), 0600), 0);
    ExpectRefused({"add", Src("App/pipe")}, 3, "är ingen vanlig fil");
    EXPECT_EQ(DoneAsObject({"add-tree", "S:\\App"})["added"].size(), 3U);
    std::filesystem::remove(Src("App/Sub/a.txt"));
    ASSERT_EQ(mkfifo(Src("App/Sub/a.txt").c_str(), 0600), 0);
    EXPECT_EQ(DoneAsObject({"refresh"})["missing"].size(), 1U);
}

TEST_F(AddCalls, AddsNothingTheSecondTimeHoweverManyFilesHaveOneName)
{
    for (int i = 0; i < 120; ++i)
        disk.Put("src/Many/m" + std::to_string(i) + "/readme.txt", "text");
    EXPECT_EQ(DoneAsObject({"add-tree", "S:\\Many"})["added"].size(), 120U);
    ExpectUntouched({"add-tree", "S:\\Many"});
}

TEST_F(AddCalls, SavesTheRestOnlyWhereThatIsWanted)
{
    disk.Put("src/Other/Ωmega.txt", "no Windows-1252 name");
    disk.Put("src/Other/x;y.txt", "a name that ends a column");
    const std::vector<std::string> files = {"add", Src("Other/c.txt"), Src("Other/Ωmega.txt"),
                                            Src("Other/x;y.txt")};
    ExpectRefused(files, 1, "Ωmega.txt");
    std::vector<std::string> words = files;
    words.emplace_back("--continue");
    const Json object = DoneAsObject(words);
    EXPECT_EQ(object["added"].size(), 1U);
    EXPECT_EQ(object["passed"], 0);
    ASSERT_EQ(object["refused"].size(), 2U);
    EXPECT_THAT(std::string(object["refused"][1]), HasSubstr("x;y.txt"));
    EXPECT_THAT(Rows(Filename), ElementsAre("c.txt"));
}

TEST_F(AddCalls, AddsATreeBelowTheDestination)
{
    EXPECT_EQ(Done({"add-tree", "S:\\App"}),
              "Adderade filer: 3, överhoppade (finns redan eller dolda): 0\n");
    EXPECT_THAT(Rows(Filename), ElementsAre("a.txt", "b.dll", "Prog.exe"));
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR\\Sub", "%DESTDIR\\Sub", "%DESTDIR"));
    ExpectUntouched({"add-tree", "S:\\App\\"});
}

TEST_F(AddCalls, AddsATreeWithItsWholePathOrToAnotherFolder)
{
    Done({"add-tree", "S:\\App\\Sub", "--concat"});
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR\\App\\Sub", "%DESTDIR\\App\\Sub"));
    Done({"add-tree", "S:\\Other", "--to", "%WINDIR\\Data"});
    EXPECT_THAT(Rows(Destination),
                ElementsAre("%DESTDIR\\App\\Sub", "%DESTDIR\\App\\Sub", "%WINDIR\\Data"));
}

TEST_F(AddCalls, AddsATreeToAComponent)
{
    Project withParts = MakeProject({});
    withParts.FileComponents[0] = {.Comp = 1, .CompName = "Bas"};
    Save(withParts);
    Done({"add-tree", "S:\\App", "--component", "1"});
    EXPECT_THAT(Rows(ComponentNumber), ElementsAre("1", "1", "1"));
    EXPECT_EQ(Rows(Destination)[0], "%COMPDIR1\\Sub");
}

TEST_F(AddCalls, AsksBeforeAWholeDriveIsAdded)
{
    ExpectRefused({"add-tree", "S:\\"}, 1, "Du har inte valt en katalog utan endast en enhet.");
    EXPECT_EQ(DoneAsObject({"add-tree", "S:\\", "--continue"})["added"].size(), 4U);
}

TEST_F(AddCalls, FollowsALinkThatLeadsBackUpOnce)
{
    std::filesystem::create_directory_symlink(Src("App"), Src("App/Sub/up"));
    EXPECT_EQ(DoneAsObject({"add-tree", "S:\\App"})["added"].size(), 3U);
}

TEST_F(AddCalls, RefusesATreeThatCannotBeReadWhole)
{
    ExpectRefused({"add-tree", Src("gone")}, 3, "finns inte. Inget är sparat.");
    ExpectRefused({"add-tree", Src("App/Prog.exe")}, 3, "finns inte.");
    ExpectRefused({"add-tree", Src("App"), "--to", "a;b"}, 1, "ogiltiga tecken");
    chmod(disk.Path().c_str(), 0777);
    chmod(Src("App/Sub").c_str(), 0);
    ExpectRefused({"add-tree", Src("App")}, 1, "Åtkomst nekas", RunAs::Nobody);
    chmod(Src("App/Sub").c_str(), 0755);
}

TEST_F(AddCalls, RefusesATreeWithANameThatNoProjectHolds)
{
    disk.Put("src/Other/Ωmega.txt", "text");
    ExpectRefused({"add-tree", Src("Other")}, 1, "Ωmega.txt");
    const Json object = DoneAsObject({"add-tree", Src("Other"), "--continue"});
    EXPECT_EQ(object["added"].size(), 1U);
    EXPECT_EQ(object["refused"].size(), 1U);
}

TEST_F(AddCalls, RefusesMoreRowsThanAListHolds)
{
    constexpr const char* kFull = "Fillistan rymmer högst 32767 rader. Inget är sparat.";
    FillList();
    ExpectRefused({"add", Src("Other/c.txt")}, 1, kFull);
    ExpectRefused({"add", Src("Other/c.txt"), "--continue"}, 1, kFull);
    ExpectRefused({"add-tree", Src("Other")}, 1, kFull);
    ExpectRefused({"add-folder", "%DESTDIR\\Temp"}, 1, "Fillistan rymmer högst 32767 rader.");
    // Two files of the tree are new, and there is room for one.
    FillList(1);
    ExpectRefused({"add-tree", "S:\\App"}, 1, kFull);
    FillList(2);
    EXPECT_EQ(DoneAsObject({"add", "S:\\App\\Sub\\a.txt", "S:\\Other\\c.txt"})["files"], 32767);
}

TEST_F(AddCalls, AddsAnEmptyFolderEachTime)
{
    EXPECT_EQ(Done({"add-folder", "%DESTDIR\\Temp"}), "Adderad katalog: %DESTDIR\\Temp\n");
    Done({"add-folder", "%DESTDIR\\Temp"});
    EXPECT_THAT(Rows(Filename), ElementsAre("<Dir>", "<Dir>"));
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR\\Temp", "%DESTDIR\\Temp"));
    EXPECT_EQ(DoneAsObject({"add-folder", "%DESTDIR\\A"})["added"][0]["row"], 3);
}

TEST_F(AddCalls, RefusesAFolderThatWouldNotComeBackFromTheFile)
{
    ExpectRefused({"add-folder", "%DESTDIR;Temp"}, 1, "Semikolon kan inte användas");
    ExpectRefused({"add-folder", "Ω"}, 1, "har tecken som inte kan lagras");
    ExpectRefused({"add-folder", "a\r\nb"}, 1, "styrtecken, till exempel radbrytningar");
    ExpectRefused({"add-folder", "%DESTDIR\\..\\x"}, 1, "'..' får inte ingå");
    ExpectRefused({"add-folder", ""}, 2, "Destinationen är tom.");
}

TEST_F(AddCalls, AddsWhatAComponentNeeds)
{
    disk.Put("src/Other/main.ocx", "component");
    disk.Put("src/Other/help.dll", "library");
    disk.Put("src/Other/main.dep", "[main.ocx]\r\nUses1=help.dll\r\nUses2=c.txt\r\n");
    const std::vector<std::string> words = {"add-dep", "S:\\Other\\main.dep",
                                            "S:\\Other\\main.ocx"};
    EXPECT_EQ(Done(words), "Adderade filer: 2\n");
    EXPECT_THAT(Rows(Filename), ElementsAre("c.txt", "help.dll"));
    EXPECT_THAT(Rows(Destination), ElementsAre("%SYSDIR", "%SYSDIR"));
    ExpectUntouched(words);
    Save(MakeProject({}));
    Done({"add-dep", "S:\\Other\\main.dep", "S:\\Other\\main.ocx", "--to", "%DESTDIR\\Bin"});
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR\\Bin", "%DESTDIR\\Bin"));
}

TEST_F(AddCalls, RefusesDependencyFilesThatAreNone)
{
    disk.Put("src/Other/main.ocx", "component");
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += static_cast<char>(i * 7);
    disk.Put("src/Other/binary.dep", bytes);
    disk.Put("src/Other/lost.dep", "[main.ocx]\r\nUses1=lost.dll\r\n");
    ExpectRefused({"add-dep", Src("Other/binary.dep"), Src("Other/main.ocx")}, 1,
                  "har inget avsnitt [main.ocx] som anger filer.");
    ExpectRefused({"add-dep", Src("Other/gone.dep"), Src("Other/main.ocx")}, 3, "finns inte.");
    ExpectRefused({"add-dep", Src("Other/lost.dep"), Src("Other/gone.ocx")}, 3, "finns inte.");
    ExpectRefused({"add-dep", Src("Other/lost.dep"), Src("Other/main.ocx")}, 1, "lost.dll");
}

TEST_F(AddCalls, FillsTheRowOfADependencyThatHasComeSince)
{
    disk.Put("src/Other/main.ocx", "component");
    disk.Put("src/Other/main.dep", "[main.ocx]\r\nUses1=late.dll\r\nUses2=c.txt\r\n");
    const std::vector<std::string> words = {"add-dep", Src("Other/main.dep"), Src("Other/main.ocx"),
                                            "--continue"};
    EXPECT_EQ(Done(words), "Adderade filer: 0\n") << "a row without its file is no addition";
    EXPECT_THAT(Rows(Filename), ElementsAre("late.dll"));
    disk.Put("src/Other/late.dll", "library");
    EXPECT_EQ(Done(words), "Adderade filer: 2\n");
    EXPECT_THAT(Rows(Filename), ElementsAre("c.txt", "late.dll"));
    EXPECT_THAT(Rows(Source), Each(Not(IsEmpty())));
}

TEST_F(AddCalls, ComesToAnEndWithADependencyFileThatNamesItself)
{
    disk.Put("src/Other/main.ocx", "component");
    disk.Put("src/Other/main.dep", "[main.ocx]\r\nUses1=main.ocx\r\nUses2=c.txt\r\n");
    EXPECT_EQ(Done({"add-dep", Src("Other/main.dep"), Src("Other/main.ocx")}),
              "Adderade filer: 2\n");
}

} // namespace
} // namespace quillon::test
