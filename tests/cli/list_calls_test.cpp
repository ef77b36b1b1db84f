// quillonc remove, refresh, sort, options and compare-lst, and how a project is saved by the calls
// that change it.
#include "edit_workshop.h"

#include <sys/stat.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

class ListCalls : public EditWorkshop {
protected:
    ListCalls() { Done({"add-tree", "S:\\App"}); } // a.txt, b.dll, Prog.exe
};

TEST_F(ListCalls, RemovesRowsByNameAndNumber)
{
    EXPECT_EQ(Done({"remove", "*.DLL", "3"}), "Borttagna rader: 2\n");
    EXPECT_THAT(Rows(Filename), ElementsAre("a.txt"));
    const Json object = DoneAsObject({"remove", "1"});
    EXPECT_EQ(object["changed"], true);
    EXPECT_EQ(object["removed"][0]["name"], "a.txt");
    EXPECT_TRUE(Rows(Filename).empty());
}

TEST_F(ListCalls, RefusesPatternsThatSelectNothing)
{
    ExpectRefused({"remove", "a.txt", "zz*"}, 1, "Ingen rad i fillistan har ett namn som 'zz*'.");
    ExpectRefused({"remove", "2-4"}, 1, "Raden 4 finns inte; fillistan har 3 rader.");
    ExpectRefused({"remove", "0"}, 2, "'0' är inga radnummer");
    ExpectRefused({"remove"}, 2, "saknar RADER...");
}

TEST_F(ListCalls, RefreshesRowsAndMarksThoseWhoseFileIsGone)
{
    ExpectUntouched({"refresh"});
    disk.Put("src/App/Prog.exe", std::string(2048, 'x'));
    fs::remove(disk.Path("src/App/Sub/a.txt"));
    const ProgramRun run = Edit({"refresh", "--json"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err, HasSubstr("Filer saknas: En eller flera filer har försvunnit"));
    const Json object = ObjectOf(run);
    ASSERT_EQ(object["missing"].size(), 1U);
    EXPECT_EQ(object["missing"][0]["name"], "a.txt");
    EXPECT_EQ(object["boxes"][0]["title"], "Filer saknas");
    EXPECT_THAT(Rows(Size), ElementsAre("0", "0.0", "2.0"));
    EXPECT_EQ(Rows(Destination)[0], "<Filen saknas>");
    EXPECT_EQ(Edit({"refresh"}).out,
              "Uppdaterade rader: 3, filer som saknas: 1\nProjektet är oförändrat.\n");
}

TEST_F(ListCalls, SortsByEachKeyOfTheDialog)
{
    ExpectUntouched({"sort", "--by", "name"});
    EXPECT_EQ(Done({"sort", "--by", "destination"}), "Sorterade rader: 3\n");
    EXPECT_THAT(Rows(Filename), ElementsAre("Prog.exe", "a.txt", "b.dll"));
    EXPECT_EQ(DoneAsObject({"sort", "--by", "extension"})["by"], "extension");
    EXPECT_THAT(Rows(Filename), ElementsAre("b.dll", "Prog.exe", "a.txt"));
    for (const char* key : {"date", "time", "name"})
        Done({"sort", "--by", key});
    EXPECT_THAT(Rows(Filename), ElementsAre("a.txt", "b.dll", "Prog.exe"));
    ExpectRefused({"sort", "--by", "component"}, 1, "Projektet har inga komponenter.");
    ExpectRefused({"sort", "--by", "size"}, 2, "kan ej vara 'size'");
    Done({"sort", "--by", "destination"});
    // A list in an order of its own keeps it.
    ExpectUntouched({"refresh"});
    ExpectUntouched({"sort", "--by", "destination"});
    EXPECT_EQ(DoneAsObject({"sort"})["by"], "name");
    ExpectUntouched({"sort", "--by", "name"});
}

TEST_F(ListCalls, ReplacesDestinationsSourcesAndOptions)
{
    EXPECT_EQ(Done({"replace", "destinations", "%DESTDIR", "%WINDIR"}), "Ändrade rader: 1\n");
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR\\Sub", "%DESTDIR\\Sub", "%WINDIR"));
    EXPECT_EQ(DoneAsObject({"replace", "destinations", "Sub", "Data", "--part"})["replaced"], 2);
    EXPECT_EQ(Rows(Destination)[0], "%DESTDIR\\Data");
    // The whole source takes the replacement, name included.
    Done({"replace", "sources", "s:\\app", "s:\\new"});
    EXPECT_THAT(Rows(Source), ElementsAre("s:\\app\\sub\\a.txt", "s:\\app\\sub\\b.dll", "s:\\new"));
    Done({"options", "1", "V"});
    Done({"replace", "options", "V", "da"});
    EXPECT_EQ(Rows(CopyOptions)[0], "DA");
    ExpectUntouched({"replace", "options", "V", "D"});
}

TEST_F(ListCalls, RefusesReplacementsThatNoRowCanHold)
{
    ExpectRefused({"replace", "destinations", "%DESTDIR", "a;b"}, 1, "Inget är sparat.");
    ExpectRefused({"replace", "destinations", "%DESTDIR", "Ω"}, 1, "Inget är sparat.");
    ExpectRefused({"replace", "names", "a", "b"}, 2, "'names' kan ej ersättas");
    ExpectRefused({"replace", "options", "D", "V", "--part"}, 2, "utan --part");
    ExpectRefused({"replace", "options", "D", "V*"}, 2, "endast bokstäverna A till Z");
}

TEST_F(ListCalls, GivesRowsTheirCopyOptionsInTheOrderOfTheTable)
{
    EXPECT_EQ(Done({"options", "*.*", "*aev"}), "Kopieringsinställningar 'VAE*' för rader: 3\n");
    EXPECT_THAT(Rows(CopyOptions), ElementsAre("VAE*", "VAE*", "VAE*"));
    const Json object = DoneAsObject({"options", "1,3", ""});
    EXPECT_EQ(object["options"], "");
    EXPECT_EQ(object["changedRows"].size(), 2U);
    EXPECT_THAT(Rows(CopyOptions), ElementsAre("", "VAE*", ""));
    ExpectUntouched({"options", "2", "V*EA"});
}

TEST_F(ListCalls, RefusesCopyOptionsThatTheDialogDoesNotGive)
{
    ExpectRefused({"options", "1", "DQ"}, 2, "'DQ' är inga kopieringsinställningar");
    ExpectRefused({"options", "1", "F"}, 2, "välj bland DVNXRASWPBE*.");
    ExpectRefused({"options", "1", "DN"}, 2, "Högst en av inställningarna D, V och N");
    ExpectRefused({"options", "1", "E"}, 2, "endast tillsammans med V");
    ExpectRefused({"options", "gone", "D"}, 1, "Ingen rad i fillistan");
    Done({"add-folder", "%DESTDIR\\Temp"});
    ExpectRefused({"options", "<Dir>", "D"}, 1, "Tomma kataloger har inga");
}

TEST_F(ListCalls, ListsWhatASetupListHasMore)
{
    disk.Put("app.lst", "[Bootstrap Files]\r\nFile1=@VB6STKIT.DLL,$(Win)\r\nFile2=@A.TXT,x\r\n"
                        "[Setup1 Files]\r\nFile1=@New.dll,y\r\n");
    const std::string before = disk.Get("p.qnp");
    EXPECT_EQ(Done({"compare-lst", disk.Path("app.lst")}), "New.dll\n");
    EXPECT_EQ(DoneAsObject({"compare-lst", disk.Path("app.lst")})["missing"],
              Json::array({"New.dll"}));
    EXPECT_EQ(disk.Get("p.qnp"), before);
    disk.Put("none.lst", "File1=a\r\n");
    ExpectRefused({"compare-lst", disk.Path("none.lst")}, 3, "är ingen LST-fil");
    ExpectRefused({"compare-lst", disk.Path("gone.lst")}, 3, "finns inte");
    disk.Put("large.lst", std::string((32U << 20) + 1, 'x'));
    ExpectRefused({"compare-lst", disk.Path("large.lst")}, 3,
                  "är för stor för att vara en LST-fil");
}

TEST_F(ListCalls, TouchNoProjectThatCanBeReadInPartOnly)
{
    const std::string whole = disk.Get("p.qnp");
    disk.Put("p.qnp", whole.substr(0, whole.rfind("F3=") + 5));
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"add", "S:\\Other\\c.txt"},
          {"add-tree", "S:\\App"},
          {"add-folder", "x"},
          {"add-dep", "S:\\a.dep", "S:\\a.dll"},
          {"remove", "1"},
          {"refresh"},
          {"sort", "--by", "name"},
          {"options", "1", "D"},
          {"set", "Version.Comments=x"}})
        ExpectRefused(words, 3, "är skadat eller avkortat");
    disk.Put("p.qnp", "something else");
    ExpectRefused({"refresh"}, 3, "är inget projekt.");
}

TEST_F(ListCalls, TellAFailureAsAnObject)
{
    const ProgramRun run = Edit({"remove", "zz", "--json"});
    const Json object = ObjectOf(run);
    EXPECT_EQ(object["exitCode"], 1);
    EXPECT_EQ(object["error"], "Ingen rad i fillistan har ett namn som 'zz'.");
}

TEST_F(ListCalls, KeepTheRightsAndTheLinkOfAProject)
{
    chmod(project.c_str(), 0640);
    fs::create_symlink(project, disk.Path("link.qnp"));
    EXPECT_EQ(Quillonc({"remove", disk.Path("link.qnp"), "1"}).exitCode, 0);
    EXPECT_TRUE(fs::is_symlink(disk.Path("link.qnp")));
    EXPECT_THAT(Rows(Filename), ElementsAre("b.dll", "Prog.exe"));
    EXPECT_EQ(static_cast<int>(fs::status(project).permissions()), 0640);
}

TEST_F(ListCalls, LeaveAProjectAloneThatMayNotBeWritten)
{
    const std::string before = disk.Get("p.qnp");
    chmod(project.c_str(), 0444);
    ExpectRefused({"remove", "1"}, 1, "är ingen vanlig fil, eller så är den skrivskyddad.");
    chmod(project.c_str(), 0644);
    ExpectRefused({"remove", "1"}, 1, "Åtkomst nekas", RunAs::Nobody);
    // A user who may write to the folder may still not replace another user's file.
    chmod(disk.Path().c_str(), 0777);
    ExpectRefused({"remove", "1"}, 1, "Åtkomst nekas", RunAs::Nobody);
    EXPECT_EQ(disk.Get("p.qnp"), before);
}

} // namespace
} // namespace quillon::test
