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

    std::optional<NewPlaces> Run(std::deque<std::vector<Text>> chosen,
                                 std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        for (std::vector<Text>& choice : chosen)
            ask.choices.push_back({std::move(choice)});
        const auto places = AddDepFileCommand({project, state, machine.host, ask}, lastDepFileDir);
        EXPECT_TRUE(ask.choices.empty());
        EXPECT_FALSE(ask.busyPointer);
        questions = ask.questions;
        statusTexts = ask.statusTexts;
        return places;
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
    EXPECT_EQ(Run({{kDep}, {kComponent}, {"%DESTDIR\\Lib"}}), (NewPlaces{0, 1, 2, 3}));
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
    EXPECT_TRUE(Run({{kDep}, {kComponent}, {"%SYSDIR"}},
                    {{BoxKind::Critical, "Fel", "Filen 'd:\\up.dll' finns inte."}}));
    EXPECT_THAT(NamesOf(project.Files), ElementsAre("one.dll", "up.dll", "two.dll"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

} // namespace quillon::test
