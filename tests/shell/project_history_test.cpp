#include "shell/project_history.h"

#include "filelist/list_builder.h"
#include "filelist/view/sort.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using Changed = ProjectHistory::Changed;
using test::MakeRow;
using test::NamesOf;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Changed kAll = Changed::SettingsAndRows;

class History : public testing::Test {
protected:
    void Add(const Text& name)
    {
        project.Files.rows.push_back(MakeRow(name));
        state.ProjectIsDirty = kOn;
        history.Record("Addera " + name, kAll);
    }
    void Name(const Text& name)
    {
        project.ProjectName.ProjectName = name;
        state.ProjectIsDirty = kOn;
        history.Record("Namn " + name, Changed::Settings);
    }
    void Save()
    {
        state.ProjectIsDirty = kOff;
        history.MergeIntoLastStep(kAll);
    }
    std::vector<Text> Names() const { return NamesOf(project.Files); }
    Text UndoName() const { return history.UndoName() ? *history.UndoName() : "-"; }
    Text RedoName() const { return history.RedoName() ? *history.RedoName() : "-"; }

    Project project;
    OpenProjectState state;
    ProjectHistory history{project, state};
};

TEST_F(History, BeginsWithNothingToUndo)
{
    EXPECT_EQ(history.UndoName(), nullptr);
    EXPECT_EQ(history.RedoName(), nullptr);
    EXPECT_FALSE(history.Record("Ingenting", kAll));
    EXPECT_EQ(history.UndoName(), nullptr) << "what changed nothing is no step";
}

TEST_F(History, GoesBackAndForthStepByStep)
{
    Add("a");
    Name("Ett");
    Add("b");
    EXPECT_EQ(UndoName(), "Addera b");

    const auto withoutB = history.Undo();
    EXPECT_TRUE(withoutB.rowsChanged);
    EXPECT_THAT(withoutB.newRows, IsEmpty());
    EXPECT_THAT(Names(), ElementsAre("a"));
    EXPECT_EQ(UndoName(), "Namn Ett");
    EXPECT_EQ(RedoName(), "Addera b");

    EXPECT_FALSE(history.Undo().rowsChanged);
    EXPECT_EQ(project.ProjectName.ProjectName, "");
    history.Undo();
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_EQ(UndoName(), "-");

    EXPECT_THAT(history.Redo().newRows, ElementsAre(0));
    history.Redo();
    EXPECT_THAT(history.Redo().newRows, ElementsAre(1));
    EXPECT_THAT(Names(), ElementsAre("a", "b"));
    EXPECT_EQ(project.ProjectName.ProjectName, "Ett");
    EXPECT_EQ(RedoName(), "-");
}

TEST_F(History, ForgetsWhatWasUndoneWhenSomethingElseIsDone)
{
    Add("a");
    Add("b");
    history.Undo();
    Add("c");
    EXPECT_EQ(RedoName(), "-");
    EXPECT_THAT(Names(), ElementsAre("a", "c"));
    history.Undo();
    EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(History, BringsTheOrderOfTheListBack)
{
    project.Files.rows = {MakeRow("a", "z"), MakeRow("b", "y")};
    history.Begin();
    SortRowsBy(project.Files, Destination, true);
    SortRowsBy(project.Files, Destination, false);
    EXPECT_TRUE(history.Record("Sortera", kAll));
    history.Undo();
    EXPECT_THAT(Names(), ElementsAre("a", "b"));
    EXPECT_EQ(project.Files.sortKey, Filename);
    history.Redo();
    EXPECT_THAT(Names(), ElementsAre("b", "a"));
    EXPECT_EQ(project.Files.sortKey, Destination);
}

TEST_F(History, FindsRowsThatMovedWereChangedOrCameTwice)
{
    project.Files.rows = {MakeRow("a"), MakeRow("b"), MakeRow("b"), MakeRow("c"), MakeRow("d")};
    history.Begin();
    const std::vector<FileListRow> before = project.Files.rows;
    auto& rows = project.Files.rows;
    rows = {MakeRow("d"), MakeRow("b"), MakeRow("new"), MakeRow("b"), MakeRow("a"), MakeRow("b")};
    const std::vector<FileListRow> after = rows;
    ASSERT_TRUE(history.Record("Ändra", kAll));
    EXPECT_THAT(history.Undo().newRows, ElementsAre(3)) << "the row that was gone";
    EXPECT_EQ(rows, before);
    EXPECT_THAT(history.Redo().newRows, ElementsAre(2));
    EXPECT_EQ(rows, after);
}

TEST_F(History, LooksAtSettingsAloneWhereRowsCannotHaveChanged)
{
    Add("a");
    project.Files.rows.push_back(MakeRow("unseen"));
    EXPECT_FALSE(history.Record("Inställningar", Changed::Settings));
    EXPECT_TRUE(history.Record("Rader", kAll));
}

TEST_F(History, MakesWhatIsAbsorbedAPartOfTheStepBefore)
{
    Add("a");
    project.ProgramGroup.ProgramGroup = "Filled in by saving";
    history.MergeIntoLastStep(kAll);
    EXPECT_EQ(UndoName(), "Addera a");
    history.Undo();
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "");
    history.Redo();
    EXPECT_EQ(project.ProgramGroup.ProgramGroup, "Filled in by saving");
}

TEST_F(History, BringsTheChangeFlagOfEachStateBack)
{
    Add("a");
    history.Undo();
    EXPECT_EQ(state.ProjectIsDirty, kOff) << "a new project without changes";
    history.Redo();
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(History, KnowsTheSavedStateFromEitherSide)
{
    Add("a");
    Add("b");
    Save();
    history.Undo();
    EXPECT_EQ(state.ProjectIsDirty, kOn) << "the file holds more";
    history.Undo();
    EXPECT_EQ(state.ProjectIsDirty, kOn) << "no longer what is on disk";
    history.Redo();
    history.Redo();
    EXPECT_EQ(state.ProjectIsDirty, kOff);
    Add("c");
    history.Undo();
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(History, LeavesAProjectChangedThatOkInADialogMarkedAlone)
{
    Save();
    state.ProjectIsDirty = kOn;
    EXPECT_FALSE(history.Record("Språk", kAll));
    Add("a");
    history.Undo();
    EXPECT_EQ(state.ProjectIsDirty, kOn) << "OK marks the project, whatever it changed";
}

TEST_F(History, CountsEveryChange)
{
    const auto begin = history.Revision();
    Add("a");
    const auto added = history.Revision();
    EXPECT_NE(added, begin);
    history.Record("Ingenting", kAll);
    EXPECT_EQ(history.Revision(), added);
    history.Undo();
    EXPECT_NE(history.Revision(), added);
    const auto undone = history.Revision();
    project.Media.TargetMedia = 4;
    history.MergeIntoLastStep(Changed::Settings);
    EXPECT_NE(history.Revision(), undone);
}

TEST_F(History, ForgetsAllWithTheProject)
{
    Add("a");
    Add("b");
    history.Undo();
    project = {};
    history.Begin();
    EXPECT_EQ(UndoName(), "-");
    EXPECT_EQ(RedoName(), "-");
}

TEST(HistoryInLittleMemory, ForgetsTheOldestStepsButNeverTheLast)
{
    Project project;
    OpenProjectState state;
    constexpr std::size_t kBytes = 200'000;
    ProjectHistory history(project, state, kBytes);
    for (int step = 0; step < 50; ++step) {
        project.Lists.Registry.assign(20'000, static_cast<char>('0' + step));
        history.Record("Steg " + NumberText(step), Changed::SettingsAndRows);
        EXPECT_LE(history.Bytes(), kBytes);
    }
    int steps = 0;
    for (; history.UndoName(); ++steps)
        history.Undo();
    EXPECT_GE(steps, 4);
    EXPECT_LT(steps, 10);

    project.Lists.Registry.assign(3 * kBytes, 'x');
    history.Record("Stort", Changed::SettingsAndRows);
    ASSERT_NE(history.UndoName(), nullptr);
    history.Undo();
    EXPECT_EQ(project.Lists.Registry.size(), 20'000U);
}

TEST(HistoryInLittleMemory, GivesTheRowsOfForgottenStepsBack)
{
    Project project;
    OpenProjectState state;
    project.Files.rows.resize(100);
    constexpr std::size_t kBytes = 300'000;
    ProjectHistory history(project, state, kBytes);
    for (int step = 0; step < 100; ++step) {
        for (std::size_t row = 0; row < 100; ++row)
            project.Files.rows[row] =
                MakeRow(NumberText(step) + "-" + NumberText(std::int64_t(row)));
        history.Record("Byt alla", Changed::SettingsAndRows);
        ASSERT_LE(history.Bytes(), kBytes);
    }
    history.Undo();
    EXPECT_EQ(project.Files.rows[7][Filename], "98-7");
    history.Redo();
    EXPECT_EQ(project.Files.rows[99][Filename], "99-99");
}

} // namespace
} // namespace quillon
