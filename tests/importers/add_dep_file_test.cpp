#include "importers/add_dep_file.h"

#include "filelist/list_builder.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const Text kDep = "C:\\Data\\Dep\\Chart.dep";
const Text kComponent = "D:\\Bin\\Chart.OCX";

const ExpectedBox kCut{
    BoxKind::Warn, "Alla filer är ej adderade",
    "Filen 'Chart.dep' är ej läst till slutet, eftersom en fil i den inte kunde adderas.\r\n"
    "\r\nLägg den fil som saknas på plats och välj kommandot igen."};

class AddDepFile : public testing::Test {
protected:
    AddDepFile()
    {
        project.Files.sorted = false;
        for (const char* const name : {"Chart.OCX", "one.dll", "two.dll"})
            machine.files.Put(Text("D:\\Bin\\") + name, "x");
        machine.files.Put("D:\\up.dll", "x");
        machine.files.Put(kDep, "[chart.ocx]\r\nUses1=One.dll\r\nUses2=..\\up.dll\r\n");
        machine.files.Put("D:\\Bin\\one.dep", "[one.dll]\r\nUses1=two.dll\r\n");
    }

    void PutDep(const std::string& keys) { machine.files.Put(kDep, "[chart.ocx]\r\n" + keys); }

    std::optional<DepFileRows> Run(std::deque<std::vector<Text>> chosen,
                                   std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        for (std::vector<Text>& choice : chosen)
            ask.choices.push_back({std::move(choice)});
        auto rows = AddDepFileCommand({project, state, machine.host, ask}, lastDepFileDir);
        EXPECT_TRUE(ask.choices.empty());
        EXPECT_FALSE(ask.busyPointer);
        questions = ask.questions;
        statusTexts = ask.statusTexts;
        return rows;
    }

    MemoryHost machine;
    Project project;
    OpenProjectState state;
    Text lastDepFileDir = "C:\\Sist";
    std::vector<FileQuestion> questions;
    std::vector<Text> statusTexts;
};

} // namespace

TEST_F(AddDepFile, AddsWhatTheComponentNeedsButNotTheComponent)
{
    project.Files.rows = {MakeRow("readme.txt")};
    const auto rows = Run({{kDep}, {kComponent}, {"%DESTDIR\\Lib"}});
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->places, (NewPlaces{0, 1, 2, 3}));
    EXPECT_THAT(rows->added, ElementsAre(1, 2, 3));
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("readme.txt", "one.dll", "up.dll", "two.dll"));
    EXPECT_EQ(project.Files.rows[2][Source], "d:\\up.dll");
    for (std::size_t i = 1; i < 4; ++i)
        EXPECT_EQ(project.Files.rows[i][Destination], "%DESTDIR\\Lib");
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    EXPECT_EQ(statusTexts.back(), "");
}

TEST_F(AddDepFile, AsksForFileComponentAndDestination)
{
    Run({{kDep}, {kComponent}, {"%SYSDIR"}});
    ASSERT_EQ(questions.size(), 3U);
    EXPECT_EQ(questions[0].title, "Välj DEP-fil");
    EXPECT_EQ(questions[0].folder, "C:\\Sist");
    EXPECT_EQ(questions[0].filter, "Dependency-filer (*.dep)|*.dep");
    EXPECT_EQ(questions[1].title, "Välj tillhörande binär fil");
    EXPECT_EQ(questions[1].folder, "C:\\Data\\Dep");
    EXPECT_EQ(questions[1].filter, "Binära filer (*.dll;*.ocx;*.exe)|*.dll;*.ocx;*.exe");
    EXPECT_EQ(questions[2].title, "ChooseDestination");
    EXPECT_EQ(questions[2].folder, "");
    EXPECT_EQ(questions[2].filter, "oSystemDirectory");
    EXPECT_EQ(lastDepFileDir, "C:\\Data\\Dep");
}

TEST_F(AddDepFile, EndsWithoutAWordWhereAnyChoiceIsCancelled)
{
    EXPECT_FALSE(Run({{}}));
    EXPECT_EQ(lastDepFileDir, "C:\\Sist");
    EXPECT_FALSE(Run({{kDep}, {}}));
    EXPECT_FALSE(Run({{kDep}, {kComponent}, {}}));
    EXPECT_THAT(project.Files.rows, IsEmpty());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
    EXPECT_THAT(statusTexts, IsEmpty());
}

TEST_F(AddDepFile, LeavesTheProjectUnchangedWhereNothingIsAdded)
{
    EXPECT_TRUE(Run({{kDep}, {"D:\\Bin\\other.exe"}, {"%SYSDIR"}}));
    EXPECT_THAT(project.Files.rows, IsEmpty());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(AddDepFile, TakesAComponentInADrivesRoot)
{
    machine.files.Put("D:\\one.dll", "x");
    Run({{kDep}, {"D:\\CHART.ocx"}, {"%SYSDIR"}});
    ASSERT_THAT(NamesOf(project.Files), ElementsAre("one.dll")) << "nothing lies above the root";
    EXPECT_EQ(project.Files.rows[0][Source], "d:\\one.dll");
}

TEST_F(AddDepFile, TellsOfAFailureAndMarksWhatWasAdded)
{
    machine.files.RemoveFile("D:\\up.dll");
    const auto rows = Run({{kDep}, {kComponent}, {"%SYSDIR"}},
                          {{BoxKind::Critical, "Fel", "Filen 'd:\\up.dll' finns inte."}, kCut});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("one.dll", "up.dll", "two.dll"));
    EXPECT_THAT(rows->added, ElementsAre(0, 2)) << "not the row without a file";
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(AddDepFile, GoesOnOnceTheMissingFileIsThere)
{
    PutDep("Uses1=late.dll\r\nUses2=one.dll\r\n");
    const ExpectedBox missing{BoxKind::Critical, "Fel", "Filen 'd:\\bin\\late.dll' finns inte."};
    Run({{kDep}, {kComponent}, {"%SYSDIR"}}, {missing, kCut});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("late.dll", "two.dll"));

    // Still missing, it has no second row.
    state.ProjectIsDirty = kOff;
    Run({{kDep}, {kComponent}, {"%SYSDIR"}}, {missing, kCut});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("late.dll", "two.dll"));
    EXPECT_EQ(state.ProjectIsDirty, kOff);

    machine.files.Put("D:\\Bin\\late.dll", "x");
    const auto rows = Run({{kDep}, {kComponent}, {"%SYSDIR"}});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("late.dll", "two.dll", "one.dll"));
    EXPECT_EQ(project.Files.rows[0][Source], "d:\\bin\\late.dll");
    EXPECT_THAT(rows->added, ElementsAre(0, 2));
}

TEST_F(AddDepFile, MarksTheProjectWhereItOnlyFillsARow)
{
    PutDep("Uses1=late.dll\r\n");
    Run({{kDep}, {kComponent}, {"%SYSDIR"}}, {{BoxKind::Critical, "Fel"}, kCut});
    state.ProjectIsDirty = kOff;
    machine.files.Put("D:\\Bin\\late.dll", "x");
    Run({{kDep}, {kComponent}, {"%SYSDIR"}});
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("late.dll"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(AddDepFile, NamesEachFileThatItDidNotReadToItsEnd)
{
    machine.files.Put("D:\\Bin\\one.dep", "[one.dll]\r\nUses1=gone.dll\r\n");
    machine.files.RemoveFile("D:\\up.dll");
    Run({{kDep}, {kComponent}, {"%SYSDIR"}},
        {{BoxKind::Critical, "Fel", "Filen 'd:\\up.dll' finns inte."},
         {BoxKind::Critical, "Fel", "Filen 'd:\\bin\\gone.dll' finns inte."},
         {BoxKind::Warn, "Alla filer är ej adderade",
          "Filen 'Chart.dep' är ej läst till slutet, eftersom en fil i den inte kunde adderas.\r\n"
          "Filen 'One.DEP' är ej läst till slutet, eftersom en fil i den inte kunde adderas.\r\n"
          "\r\nLägg den fil som saknas på plats och välj kommandot igen."}});
}

} // namespace quillon::test
