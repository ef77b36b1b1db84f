#include "filelist/adding/add_tree_command.h"

#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

constexpr const char* kOnlyADrive =
    "Du har inte valt en katalog utan endast en enhet. Du kan addera samtliga kataloger och filer "
    "från denna enhet men det kan ta lång tid. Vill du verkligen fortsätta?";

class AddTreeCommandTest : public testing::Test {
protected:
    std::optional<TreeToAdd> Choose(std::deque<ScriptedAsk::Choice> choices,
                                    std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        ask.choices = std::move(choices);
        const auto tree = ChooseTree({project, state, machine.host, ask});
        EXPECT_EQ(ask.questions[0].folder, openedOn);
        return tree;
    }

    MemoryHost machine;
    Project project;
    OpenProjectState state;
    Text openedOn = "C:\\";
};

} // namespace

TEST_F(AddTreeCommandTest, AsksForTheFolderAndRemembersIt)
{
    const auto tree = Choose({{{"C:\\Data\\App"}}});
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->StartDirectory, "C:\\Data\\App");
    EXPECT_EQ(tree->BaseDestination, "%DESTDIR");
    EXPECT_EQ(tree->ComponentNr, "");
    openedOn = "C:\\Data\\App";
    EXPECT_FALSE(Choose({{}}));
    EXPECT_EQ(state.LastAddDirectory, "C:\\Data\\App");
}

TEST_F(AddTreeCommandTest, AsksAboutAWholeDrive)
{
    EXPECT_FALSE(Choose({{{"D:\\"}}}, {{BoxKind::YesNo, "Info", kOnlyADrive, Answer::No}}));
    EXPECT_EQ(state.LastAddDirectory, "C:\\");
    EXPECT_TRUE(Choose({{{"D:\\"}}}, {{BoxKind::YesNo, "Info", kOnlyADrive, Answer::Yes}}));
    EXPECT_EQ(state.LastAddDirectory, "D:\\");
}

TEST_F(AddTreeCommandTest, AsksForTheComponentWhereOneIsInUse)
{
    project.FileComponents[6] = {.Comp = kOn, .CompName = "Kartor"};
    const auto tree = Choose({{{"C:\\Data"}}, {{"Komponent nr 7 - 'Kartor'"}}});
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->BaseDestination, "%COMPDIR7");
    EXPECT_EQ(tree->ComponentNr, "7");
    openedOn = "C:\\Data";
    EXPECT_FALSE(Choose({{{"C:\\Annan"}}, {}}));
    EXPECT_EQ(state.LastAddDirectory, "C:\\Annan") << "the folder was chosen all the same";
}

TEST_F(AddTreeCommandTest, TellsTheWaysOfATreeWithItsDestination)
{
    EXPECT_EQ(TreeFormCaption(TreeForm::ReplaceStart, "%DESTDIR"),
              "&Ersätt startnivå i katalogträdet med '%DESTDIR'");
    EXPECT_EQ(TreeFormCaption(TreeForm::WholePath, "%COMPDIR2"),
              "&Addera katalogträd till '%COMPDIR2'  (%COMPDIR2+träd)");
}

} // namespace quillon::test
