#include "filelist/adding/tree_walk.h"

#include "filelist/list_builder.h"
#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;

namespace {

class TreeWalkTest : public testing::Test {
protected:
    TreeWalkTest()
    {
        list.sorted = false;
        machine.files.Put("C:\\Data\\App\\b.txt", "x");
        machine.files.Put("C:\\Data\\App\\Sub\\a.txt", "x");
        machine.files.Put("C:\\Data\\App\\Sub\\Inre\\c.txt", "x");
        machine.files.PutFolder("C:\\Data\\App\\Tom");
    }

    void Walk(const TreeToAdd& tree, std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        FileAdding adding(list, machine.host, ask);
        AddTree(adding, machine.files, tree,
                {.enteredFolder = [this] { ++folders; }, .sawFile = [this] { ++seen; }});
    }
    std::vector<Text> Destinations() const
    {
        std::vector<Text> destinations;
        for (const FileListRow& row : list.rows)
            destinations.push_back(row[Destination]);
        return destinations;
    }

    MemoryHost machine;
    FileList list;
    int folders = 0;
    int seen = 0;
};

} // namespace

TEST_F(TreeWalkTest, HangsTheTreeBelowTheDestinationSubfoldersFirst)
{
    Walk({.StartDirectory = "C:\\Data\\App", .BaseDestination = "%DESTDIR", .ComponentNr = "4"});
    EXPECT_THAT(NamesOf(list), ElementsAre("c.txt", "a.txt", "b.txt"));
    EXPECT_THAT(Destinations(), ElementsAre("%DESTDIR\\Sub\\Inre", "%DESTDIR\\Sub", "%DESTDIR"));
    EXPECT_EQ(list.rows[1][Source], "c:\\data\\app\\sub\\a.txt");
    EXPECT_EQ(list.rows[1][ComponentNumber], "4");
    EXPECT_EQ(folders, 4) << "the empty one too";
    EXPECT_EQ(seen, 3);
}

TEST_F(TreeWalkTest, HangsTheWholePathBelowTheDestination)
{
    Walk({.StartDirectory = "C:\\Data\\App",
          .BaseDestination = "%DESTDIR",
          .form = TreeForm::WholePath});
    EXPECT_THAT(Destinations(), ElementsAre("%DESTDIR\\Data\\App\\Sub\\Inre",
                                            "%DESTDIR\\Data\\App\\Sub", "%DESTDIR\\Data\\App"));
}

TEST_F(TreeWalkTest, BuildsDestinationsFromADriveToo)
{
    struct Case {
        Text folder, start;
        TreeForm form;
        Text destination;
    };
    const Case cases[] = {
        {"D:\\", "D:\\", TreeForm::ReplaceStart, "%DESTDIR"},
        {"D:\\Sub\\", "D:\\", TreeForm::ReplaceStart, "%DESTDIR\\Sub"},
        {"D:\\", "D:\\", TreeForm::WholePath, "%DESTDIR"},
        {"D:\\Sub\\", "D:\\", TreeForm::WholePath, "%DESTDIR\\Sub"},
        {"d:\\data\\sub\\", "D:\\DATA", TreeForm::ReplaceStart, "%DESTDIR\\sub"},
    };
    for (const Case& given : cases)
        EXPECT_EQ(DestinationInTree(given.folder, {.StartDirectory = given.start,
                                                   .BaseDestination = "%DESTDIR",
                                                   .form = given.form}),
                  given.destination)
            << given.folder;
}

TEST_F(TreeWalkTest, KeepsALongDestinationWhole)
{
    const Text name(350, 'n');
    EXPECT_EQ(DestinationInTree("C:\\D\\" + name + "\\",
                                {.StartDirectory = "C:\\D", .BaseDestination = "%DESTDIR"}),
              "%DESTDIR\\" + name);
}

TEST_F(TreeWalkTest, WritesNamesInCapitalsLikeOthers)
{
    machine.files.Put("C:\\STOR\\PROG.EXE", "x");
    Walk({.StartDirectory = "C:\\STOR", .BaseDestination = "%DESTDIR"});
    EXPECT_EQ(list.rows[0][Filename], "Prog.exe");
    EXPECT_EQ(list.rows[0][Source], "c:\\stor\\prog.exe");
}

TEST_F(TreeWalkTest, CountsFilesThatBecomeNoRow)
{
    const TreeToAdd tree{
        .StartDirectory = "C:\\Data\\App", .BaseDestination = "%DESTDIR", .CheckDuplicates = true};
    machine.files.At("C:\\Data\\App\\b.txt").status.isHidden = true;
    Walk(tree);
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(list.rows.size(), 2U);
    Walk(tree);
    EXPECT_EQ(seen, 6);
    EXPECT_EQ(list.rows.size(), 2U) << "duplicates are left out without a word";
}

TEST_F(TreeWalkTest, TellsOfEachSourceWithASemicolon)
{
    machine.files.Put("C:\\Data\\x;y\\a.txt", "x");
    machine.files.Put("C:\\Data\\x;y\\b.txt", "x");
    Walk({.StartDirectory = "C:\\Data\\x;y", .BaseDestination = "%DESTDIR"},
         {{BoxKind::Critical, "Ogiltiga tecken hittade"},
          {BoxKind::Critical, "Ogiltiga tecken hittade"}});
    EXPECT_TRUE(list.rows.empty());
    EXPECT_EQ(seen, 2);
}

TEST_F(TreeWalkTest, DoesNotEnterAFolderThatLeadsBack)
{
    machine.files.At("C:\\Data\\App").status.identity = 7;
    machine.files.At("C:\\Data\\App\\Sub\\Inre").status.identity = 7; // a link back up
    machine.files.At("C:\\Data\\App\\Tom").status.identity = 8;
    machine.files.PutFolder("C:\\Data\\App\\Sub\\Annan");
    machine.files.At("C:\\Data\\App\\Sub\\Annan").status.identity = 8; // a second way is none
    machine.files.Put("C:\\Data\\App\\Sub\\Annan\\d.txt", "x");
    Walk({.StartDirectory = "C:\\Data\\App", .BaseDestination = "%DESTDIR"});
    EXPECT_THAT(NamesOf(list), ElementsAre("d.txt", "a.txt", "b.txt"));
}

TEST_F(TreeWalkTest, PassesOverAFileThatCannotBeRead)
{
    machine.files.At("C:\\Data\\App\\Sub\\a.txt").unreadable = true;
    Walk({.StartDirectory = "C:\\Data\\App", .BaseDestination = "%DESTDIR"},
         {{BoxKind::Critical, "Kan ej addera"}});
    EXPECT_THAT(NamesOf(list), ElementsAre("c.txt", "b.txt"));
    EXPECT_EQ(seen, 3);
}

TEST_F(TreeWalkTest, AddsNothingTheSecondTimeHoweverManyFilesHaveOneName)
{
    list.sorted = true;
    for (int i = 0; i < 100; ++i)
        machine.files.Put("C:\\Data\\App\\m" + std::to_string(i) + "\\readme.txt", "x");
    const TreeToAdd tree{
        .StartDirectory = "C:\\Data\\App", .BaseDestination = "%DESTDIR", .CheckDuplicates = true};
    Walk(tree);
    EXPECT_EQ(list.rows.size(), 103U);
    for (int again = 0; again < 3; ++again)
        Walk(tree);
    EXPECT_EQ(list.rows.size(), 103U);
}

TEST(WalkFailureText, NamesTheEntryThatEndedTheWalk)
{
    const TreeToAdd tree{.StartDirectory = "C:\\Data"};
    EXPECT_EQ(WalkFailureText(RunError(70, "C:\\Data\\Sub"), tree),
              "Åtkomst nekas till 'C:\\Data\\Sub'.");
    EXPECT_EQ(WalkFailureText(RunError(76), tree), "Katalogen till 'C:\\Data' finns inte.");
    EXPECT_EQ(WalkFailureText(RunError(6, "a.txt"), tree),
              "Fillistan rymmer högst 32767 rader. 'a.txt' fick inte plats.");
}

TEST_F(TreeWalkTest, KeepsTheRowsFromBeforeAFailure)
{
    machine.files.At("C:\\Data\\App\\Tom").unreadable = true;
    EXPECT_THROW(Walk({.StartDirectory = "C:\\Data\\App", .BaseDestination = "%DESTDIR"}),
                 RunError);
    EXPECT_THAT(NamesOf(list), ElementsAre("c.txt", "a.txt"));
}

} // namespace quillon::test
