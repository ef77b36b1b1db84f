#include "filelist/adding/paste_rows.h"

#include "filelist/list_builder.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PasteRowsTest : public testing::Test {
protected:
    std::vector<std::size_t> Paste(const std::vector<FileListRow>& rows,
                                   std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        return PasteRows({project, state, machine.host, ask}, rows);
    }
    std::vector<Text> Names() const { return NamesOf(project.Files); }

    MemoryHost machine;
    Project project;
    OpenProjectState state;
};

FileListRow Folder(const Text& destination)
{
    return MakeRow("<Dir>", destination);
}

FileListRow File(const Text& name, const Text& destination = "%DESTDIR")
{
    return MakeRow(name, destination, "c:\\d\\" + name);
}

TEST_F(PasteRowsTest, PutsRowsWhereTheyBelongAndTellsWhereTheyAre)
{
    project.Files = MakeList({File("b.txt"), File("d.txt")});
    EXPECT_THAT(Paste({File("e.txt"), File("c.txt")}), ElementsAre(1, 3));
    EXPECT_THAT(Names(), ElementsAre("b.txt", "c.txt", "d.txt", "e.txt"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(PasteRowsTest, LeavesDuplicatesOutAlsoOfEachOther)
{
    project.Files = MakeList({File("b.txt")});
    EXPECT_THAT(Paste({File("B.TXT"), File("c.txt"), File("c.txt", "%WINDIR"),
                       Folder("%DESTDIR\\T"), Folder("%destdir\\t"), Folder("%DESTDIR\\U")}),
                ElementsAre(0, 1, 3));
    EXPECT_THAT(Names(), ElementsAre("<Dir>", "<Dir>", "b.txt", "c.txt"));
}

TEST_F(PasteRowsTest, TellsOfADuplicateThatIsAlone)
{
    project.Files = MakeList({File("b.txt"), Folder("%DESTDIR\\T")});
    EXPECT_THAT(Paste({File("b.txt")}, {{BoxKind::Inform, "Quillon"}}), IsEmpty());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(PasteRowsTest, EndsAtTheFirstRowThatNoListMayHave)
{
    EXPECT_THAT(
        Paste({File("a.txt"), File("aux"), File("c.txt")}, {{BoxKind::Critical, "Kan ej addera"}}),
        ElementsAre(0));
    EXPECT_EQ(state.ProjectIsDirty, kOn) << "the rows so far stay";
    EXPECT_THAT(
        Paste({File("x.txt", "%DESTDIR\\..\\..\\x")}, {{BoxKind::Critical, "Kan ej addera"}}),
        IsEmpty());
    EXPECT_THAT(
        Paste({Folder("%DESTDIR\\a?b")}, {{BoxKind::Critical, "Ogiltig destinationskatalog"}}),
        IsEmpty());
    EXPECT_THAT(Names(), ElementsAre("a.txt"));
}

TEST_F(PasteRowsTest, FillsTheListToItsLastRow)
{
    project.Files.rows.resize(kMaxRows - 1, File("z.txt"));
    EXPECT_EQ(Paste({File("a.txt"), File("b.txt")},
                    {{BoxKind::Critical, "Fel", "Fillistan rymmer högst 32767 rader."}})
                  .size(),
              1U);
    EXPECT_EQ(project.Files.rows.size(), kMaxRows);
}

} // namespace
} // namespace quillon::test
