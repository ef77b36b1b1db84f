#include "shell/project_commands.h"

#include "platform/run_error.h"
#include "project/project_title.h"
#include "shell/fake_window.h"
#include "shell/lifecycle.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quillon {
namespace {

using test::BoxKind;
using test::ExpectedBox;
using test::ScriptedAsk;
using Recent = std::array<Text, 4>;

constexpr const char* kTool = "C:\\Program\\Quillon";
constexpr const char* kFilter = "Projektfiler (*.qnp)|*.qnp";

ExpectedBox SaveQuestion(Answer answer)
{
    return {BoxKind::YesNoCancel, "Tavrell Quillon 2004",
            "Vissa inställningar har ändrats. Vill du spara dessa?", answer};
}

/// A session with a script of its own: a box that was not asked for fails the test at its end.
struct Desk {
    explicit Desk(std::deque<ExpectedBox> boxes = {}, std::deque<ScriptedAsk::Choice> choices = {})
        : ask(std::move(boxes))
    {
        ask.choices = std::move(choices);
        memory.files.Put("C:\\Program\\Quillon\\Res\\SetupDef.bmp", "BM");
        session.ProjectsFolder = "C:\\Program\\Quillon\\Projects";
        for (const char* name : {"a", "b", "c", "d"})
            PutProject("C:\\P\\" + Text(name) + ".qnp", name);
    }

    void PutProject(const Text& path, const Text& projectName)
    {
        ScriptedAsk nobody;
        Session other = NewSession(memory.host, nobody, kTool);
        memory.files.PutFolder("C:\\P");
        other.state.ProjectFileName = path;
        other.project.ProjectName.ProjectName = projectName;
        SaveProject(other);
    }

    /// The project has a file, or is "noname", and has changed.
    void Change(const Text& file = "noname")
    {
        session.state.ProjectFileName = file;
        session.state.ProjectIsDirty = kOn;
        session.project.ProjectName.ProjectName = "Ändrat";
    }

    const Text& Name() const { return session.project.ProjectName.ProjectName; }

    Text NameOnFile(const Text& file)
    {
        ScriptedAsk nobody;
        Session other = NewSession(memory.host, nobody, kTool);
        other.state.ProjectFileName = file;
        LoadProject(other);
        return other.project.ProjectName.ProjectName;
    }

    test::MemoryHost memory;
    ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, kTool);
    test::FakeWindow window;
};

TEST(AskSaveChangesTest, AsksNothingWhileNothingHasChanged)
{
    Desk desk;
    EXPECT_EQ(AskSaveChanges(desk.session, desk.window), SaveChanges::GoOn);
    EXPECT_EQ(static_cast<int>(SaveChanges::Cancel), 2);
}

TEST(AskSaveChangesTest, SavesOnYes)
{
    Desk desk({SaveQuestion(Answer::Yes)});
    desk.Change("C:\\P\\a.qnp");
    EXPECT_EQ(AskSaveChanges(desk.session, desk.window), SaveChanges::GoOn);
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(desk.NameOnFile("C:\\P\\a.qnp"), "Ändrat");
}

TEST(AskSaveChangesTest, LeavesTheProjectAloneOnNoAndOnCancel)
{
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        Desk desk({SaveQuestion(answer)});
        desk.Change("C:\\P\\a.qnp");
        EXPECT_EQ(AskSaveChanges(desk.session, desk.window),
                  answer == Answer::No ? SaveChanges::GoOn : SaveChanges::Cancel);
        EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
        EXPECT_EQ(desk.NameOnFile("C:\\P\\a.qnp"), "a");
    }
}

TEST(AskSaveChangesTest, CancelsWhereSavingFails)
{
    Desk desk({SaveQuestion(Answer::Yes),
               {BoxKind::Critical, "Fel", "Katalogen till 'C:\\Borta\\p.qnp' finns inte."}});
    desk.Change("C:\\Borta\\p.qnp");
    EXPECT_EQ(AskSaveChanges(desk.session, desk.window), SaveChanges::Cancel);
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
}

TEST(NewProjectTest, BeginsAnewOnTheFirstTab)
{
    Desk desk;
    desk.session.state.ProjectFileName = "C:\\P\\a.qnp";
    desk.session.project.ProjectName.ProjectName = "a";
    desk.session.project.Version.Comments = "Kvar";
    desk.session.project.Files.rows.resize(3);
    NewProject(desk.session, desk.window);
    EXPECT_EQ(desk.session.state.ProjectFileName, "noname");
    EXPECT_EQ(desk.Name(), "");
    EXPECT_EQ(desk.session.project.Version.Comments, "Kvar");
    EXPECT_TRUE(desk.session.project.Files.rows.empty());
    EXPECT_EQ(desk.window.selected, Tab::Files);
    EXPECT_EQ(desk.window.calls, (std::vector<std::string>{"project", "select"}));
}

TEST(NewProjectTest, KeepsTheProjectWhenTheSaveDialogIsCancelled)
{
    Desk desk({SaveQuestion(Answer::Yes)}, {{}});
    desk.Change();
    NewProject(desk.session, desk.window);
    EXPECT_EQ(desk.Name(), "Ändrat");
    EXPECT_EQ(desk.session.state.ProjectFileName, "noname");
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
    EXPECT_TRUE(desk.window.calls.empty());
}

TEST(OpenProjectTest, AsksForAFileAndReadsIt)
{
    Desk desk({}, {{{"C:\\P\\b.qnp"}}});
    OpenProject(desk.session, desk.window);
    ASSERT_EQ(desk.ask.questions.size(), 1U);
    const FileQuestion& question = desk.ask.questions[0];
    EXPECT_EQ(question.title, "Öppna projekt");
    EXPECT_EQ(question.folder, "C:\\Program\\Quillon\\Projects");
    EXPECT_EQ(question.fileName, "");
    EXPECT_EQ(question.filter, kFilter);
    EXPECT_EQ(question.defaultExtension, ".qnp");
    EXPECT_EQ(desk.Name(), "b");
    EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\P\\b.qnp");
    EXPECT_EQ(desk.session.RecentFiles[0], "C:\\P\\b.qnp");
    EXPECT_EQ(desk.window.calls, (std::vector<std::string>{"title", "project", "recent"}));
    EXPECT_EQ(desk.window.selected, Tab::Design) << "Open stays on its tab";
}

TEST(OpenProjectTest, StartsInTheFolderOfTheProject)
{
    Desk desk({}, {{}});
    desk.session.state.ProjectFileName = "D:\\Arbete\\x.qnp";
    OpenProject(desk.session, desk.window);
    EXPECT_EQ(desk.ask.questions.at(0).folder, "D:\\Arbete");
}

TEST(OpenProjectTest, ChangesNothingWhenItsDialogIsCancelled)
{
    for (const ScriptedAsk::Choice& choice : {ScriptedAsk::Choice{}, ScriptedAsk::Choice{{""}}}) {
        Desk desk({SaveQuestion(Answer::No)}, {choice});
        desk.Change("C:\\P\\a.qnp");
        OpenProject(desk.session, desk.window);
        EXPECT_EQ(desk.Name(), "Ändrat");
        EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\P\\a.qnp");
        EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
        EXPECT_TRUE(desk.window.calls.empty());
    }
}

TEST(OpenProjectTest, AsksForNoFileWhenTheSaveQuestionIsCancelled)
{
    Desk desk({SaveQuestion(Answer::Cancel)});
    desk.Change();
    OpenProject(desk.session, desk.window);
    EXPECT_TRUE(desk.ask.questions.empty());
}

// Kept: a refused file counts as opened, in the title and among the recent files.
TEST(OpenProjectTest, EntersARefusedFileAmongTheRecentFiles)
{
    Desk desk({{BoxKind::Warn, "Fel filformat"}}, {{{"C:\\P\\annat.txt"}}});
    desk.memory.files.Put("C:\\P\\annat.txt", "no project");
    desk.session.project.Files.rows.resize(2);
    desk.session.RecentFiles = {"C:\\P\\a.qnp"};
    OpenProject(desk.session, desk.window);
    EXPECT_EQ(desk.session.RecentFiles, (Recent{"C:\\P\\annat.txt", "C:\\P\\a.qnp"}));
    EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\P\\annat.txt");
    EXPECT_TRUE(desk.session.project.Files.rows.empty());
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOff);
}

// One project has one order, here as in a script, and whatever list was shown before.
TEST(OpenProjectTest, KeepsTheOrderOfTheFile)
{
    Desk desk({}, {{{"C:\\P\\rader.qnp"}}, {{"C:\\P\\rader.qnp"}}});
    FileList& files = desk.session.project.Files;
    files.rows.resize(2);
    files.rows[0][Filename] = "z.txt";
    files.rows[0][Date] = "2003-01-01";
    files.rows[1][Filename] = "a.txt";
    files.rows[1][Date] = "2004-01-01";
    desk.session.state.ProjectFileName = "C:\\P\\rader.qnp";
    SaveProject(desk.session);
    NewProject(desk.session, desk.window);
    OpenProject(desk.session, desk.window);
    ASSERT_EQ(files.rows.size(), 2U);
    EXPECT_EQ(files.rows[0][Filename], "z.txt");
    EXPECT_FALSE(files.sorted);
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOff);

    files.rows[0][Filename] = "a.txt";
    files.rows[1][Filename] = "z.txt";
    SaveProject(desk.session);
    files.sortKey = Date;
    files.sortDescending = true;
    OpenProject(desk.session, desk.window);
    ASSERT_EQ(files.rows.size(), 2U);
    EXPECT_EQ(files.rows[0][Filename], "a.txt");
    EXPECT_TRUE(files.sorted);
    EXPECT_EQ(files.sortKey, Filename);
    EXPECT_FALSE(files.sortDescending);
}

TEST(OpenProjectTest, AsksForFilesThatNoProjectHasToName)
{
    Desk desk({}, {{}, {}});
    OpenProject(desk.session, desk.window);
    SaveProjectAs(desk.session, desk.window);
    ASSERT_EQ(desk.ask.questions.size(), 2U);
    EXPECT_FALSE(desk.ask.questions[0].isForProject);
    EXPECT_FALSE(desk.ask.questions[1].isForProject);
}

TEST(OpenChosenProjectTest, AsksFirstWhatBecomesOfTheOpenOne)
{
    Desk desk({SaveQuestion(Answer::Cancel), SaveQuestion(Answer::No)});
    desk.Change();
    OpenChosenProject(desk.session, desk.window, "C:\\P\\b.qnp");
    EXPECT_EQ(desk.Name(), "Ändrat");
    OpenChosenProject(desk.session, desk.window, "C:\\P\\b.qnp");
    EXPECT_EQ(desk.Name(), "b");
    EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\P\\b.qnp");
}

TEST(ProjectTitleTest, IsTheNameAlone)
{
    EXPECT_EQ(ProjectTitle("Z:\\a\\b.qnp"), "b.qnp");
    EXPECT_EQ(ProjectTitle("Z:/a/b.qnp"), "b.qnp");
    EXPECT_EQ(ProjectTitle("Z:\\a/b.qnp"), "b.qnp");
    EXPECT_EQ(ProjectTitle("noname"), "noname");
}

TEST(OpenRecentFileTest, MovesTheThirdToTheFront)
{
    Desk desk;
    desk.session.RecentFiles = {"C:\\P\\a.qnp", "C:\\P\\b.qnp", "C:\\P\\c.qnp", "C:\\P\\d.qnp"};
    OpenRecentFile(desk.session, desk.window, 2);
    EXPECT_EQ(desk.session.RecentFiles,
              (Recent{"C:\\P\\c.qnp", "C:\\P\\a.qnp", "C:\\P\\b.qnp", "C:\\P\\d.qnp"}));
    EXPECT_EQ(desk.Name(), "c");
    EXPECT_EQ(desk.window.calls,
              (std::vector<std::string>{"select", "title", "project", "recent"}));
    EXPECT_EQ(desk.window.selected, Tab::Files);
}

TEST(OpenRecentFileTest, IgnoresAFreeSlotAndOneThatIsNoSlot)
{
    Desk desk;
    desk.Change();
    desk.session.RecentFiles = {"C:\\P\\a.qnp"};
    for (const std::size_t slot : {1U, 3U, 4U, 99U})
        OpenRecentFile(desk.session, desk.window, slot);
    EXPECT_TRUE(desk.window.calls.empty());
    EXPECT_EQ(desk.Name(), "Ändrat");
}

TEST(OpenRecentFileTest, TellsOfADeletedFileAndKeepsItsEntry)
{
    Desk desk({{BoxKind::Critical, "Fel", "Kaj ej öppna 'C:\\P\\borta.qnp'!"}});
    desk.session.state.ProjectFileName = "C:\\P\\a.qnp";
    desk.session.RecentFiles = {"C:\\P\\a.qnp", "C:\\P\\borta.qnp"};
    OpenRecentFile(desk.session, desk.window, 1);
    EXPECT_EQ(desk.session.RecentFiles, (Recent{"C:\\P\\a.qnp", "C:\\P\\borta.qnp"}));
    EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\P\\a.qnp");
}

TEST(OpenRecentFileTest, AsksToSaveBeforeItLooksForTheFile)
{
    Desk desk({SaveQuestion(Answer::Cancel)});
    desk.Change();
    desk.session.RecentFiles = {"C:\\P\\borta.qnp"};
    OpenRecentFile(desk.session, desk.window, 0);
    EXPECT_EQ(desk.window.calls, (std::vector<std::string>{"select"}));
    EXPECT_EQ(desk.Name(), "Ändrat");
}

TEST(OpenRecentFileTest, OpensTheChosenNameAlsoWhenSavingMovesTheSlots)
{
    Desk desk({SaveQuestion(Answer::Yes)}, {{{"C:\\P\\ny.qnp"}}});
    desk.Change();
    desk.session.RecentFiles = {"C:\\P\\a.qnp", "C:\\P\\b.qnp"};
    OpenRecentFile(desk.session, desk.window, 0);
    EXPECT_EQ(desk.Name(), "a");
    EXPECT_EQ(desk.session.RecentFiles, (Recent{"C:\\P\\a.qnp", "C:\\P\\ny.qnp", "C:\\P\\b.qnp"}));
    EXPECT_EQ(desk.NameOnFile("C:\\P\\ny.qnp"), "Ändrat");
}

TEST(SaveProjectCommandTest, WritesTheFileThatTheProjectHas)
{
    Desk desk;
    desk.Change("C:\\P\\a.qnp");
    EXPECT_TRUE(SaveProjectCommand(desk.session, desk.window));
    EXPECT_TRUE(desk.ask.questions.empty());
    EXPECT_EQ(desk.NameOnFile("C:\\P\\a.qnp"), "Ändrat");
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(desk.window.calls, (std::vector<std::string>{"recent"}));
}

TEST(SaveProjectCommandTest, AsksForANameWhereThereIsNone)
{
    Desk desk({}, {{{"C:\\P\\ny.qnp"}}});
    desk.Change();
    EXPECT_TRUE(SaveProjectCommand(desk.session, desk.window));
    const FileQuestion& question = desk.ask.questions.at(0);
    EXPECT_EQ(question.title, "Spara projekt");
    EXPECT_EQ(question.folder, "C:\\Program\\Quillon\\Projects");
    EXPECT_EQ(question.fileName, "");
    EXPECT_EQ(question.filter, kFilter);
    EXPECT_EQ(question.defaultExtension, ".qnp");
    EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\P\\ny.qnp");
    EXPECT_EQ(desk.window.calls, (std::vector<std::string>{"title", "recent"}));
}

TEST(SaveProjectCommandTest, TellsWhyItFailedAndStaysChanged)
{
    Desk desk({{BoxKind::Critical, "Fel", "Disken är full: 'C:\\P\\a.qnp'."}});
    desk.Change("C:\\P\\a.qnp");
    desk.session.RecentFiles = {"C:\\P\\b.qnp"};
    desk.memory.files.FailFromWrite(1, ErrorNumber::kDiskFull);
    EXPECT_FALSE(SaveProjectCommand(desk.session, desk.window));
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(desk.session.RecentFiles[0], "C:\\P\\b.qnp");
    EXPECT_FALSE(desk.ask.busyPointer);
}

ExpectedBox OverwriteQuestion(const Text& file, Answer answer)
{
    return {BoxKind::YesNo, "Projektet har ändrats",
            "'" + file +
                "' har ändrats av ett annat program sedan projektet öppnades eller "
                "sparades. Vill du skriva över filen?",
            answer};
}

TEST(SaveProjectCommandTest, AsksBeforeItWritesOverWhatAnotherProgramHasMade)
{
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        Desk desk({OverwriteQuestion("C:\\P\\a.qnp", answer)});
        OpenNamedProject(desk.session, desk.window, "C:\\P\\a.qnp");
        desk.Change("C:\\P\\a.qnp");
        desk.PutProject("C:\\P\\a.qnp", "Andras");
        EXPECT_EQ(SaveProjectCommand(desk.session, desk.window), answer == Answer::Yes);
        EXPECT_EQ(desk.NameOnFile("C:\\P\\a.qnp"), answer == Answer::Yes ? "Ändrat" : "Andras");
        EXPECT_EQ(desk.session.state.ProjectIsDirty, answer == Answer::Yes ? kOff : kOn);
        EXPECT_EQ(desk.ask.stops, (std::vector<Ask::Stops>{Ask::Stops::OnNo}));
    }
}

/// A user who makes another change while the question is shown.
class SlowAsk : public ScriptedAsk {
public:
    using ScriptedAsk::ScriptedAsk;
    bool YesNo(const Text& title, const Text& text, Stops which) override
    {
        if (auto change = std::exchange(beforeAnswer, nullptr))
            change();
        return ScriptedAsk::YesNo(title, text, which);
    }
    std::function<void()> beforeAnswer;
};

TEST(SaveProjectCommandTest, TheAnswerIsForTheFileThatTheUserWasAskedAbout)
{
    constexpr const char* kFile = "C:\\P\\a.qnp";
    Desk desk;
    SlowAsk ask({OverwriteQuestion(kFile, Answer::Yes), OverwriteQuestion(kFile, Answer::No)});
    Session session = NewSession(desk.memory.host, ask, kTool);
    OpenNamedProject(session, desk.window, kFile);
    desk.PutProject(kFile, "Andras");
    session.state.ProjectIsDirty = kOn;
    ask.beforeAnswer = [&] { desk.PutProject(kFile, "Andras igen"); };
    EXPECT_FALSE(SaveProjectCommand(session, desk.window));
    EXPECT_EQ(desk.NameOnFile(kFile), "Andras igen");
}

TEST(SaveProjectCommandTest, TellsThatAnotherProgramIsChangingTheFile)
{
    Desk desk({{BoxKind::Critical, "Fel",
                "'C:\\P\\a.qnp' ändras just nu av ett annat program. Försök igen om en stund."}});
    desk.Change("C:\\P\\a.qnp");
    desk.memory.files.locked.insert("c:\\p\\a.qnp.lock");
    EXPECT_FALSE(SaveProjectCommand(desk.session, desk.window));
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(desk.NameOnFile("C:\\P\\a.qnp"), "a");
}

TEST(SaveProjectCommandTest, WritesNoListThatWouldReplaceAnotherOne)
{
    Desk desk({{BoxKind::Critical, "Kan ej spara",
                "'Skript före installation': Raden '[Registry]' kan ej lagras i projektfilen. När "
                "projektet öppnas igen tas den för något annat, och det som finns under 'Registry' "
                "går förlorat. Ändra raden och spara sedan igen."}});
    const std::string before = desk.memory.files.Get("C:\\P\\a.qnp");
    desk.Change("C:\\P\\a.qnp");
    desk.session.project.Lists.RunScriptBefore = "a\r\n[Registry]\r\nb";
    EXPECT_FALSE(SaveProjectCommand(desk.session, desk.window));
    EXPECT_EQ(desk.memory.files.Get("C:\\P\\a.qnp"), before);
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(desk.session.project.Lists.RunScriptBefore, "a\r\n[Registry]\r\nb");
}

TEST(SaveProjectAsTest, MovesANameThatIsInTheListToTheFront)
{
    Desk desk({}, {{{"C:\\P\\b.qnp"}}});
    desk.Change("C:\\P\\a.qnp");
    desk.session.RecentFiles = {"C:\\P\\a.qnp", "C:\\P\\b.qnp"};
    EXPECT_TRUE(SaveProjectAs(desk.session, desk.window));
    EXPECT_EQ(desk.session.RecentFiles, (Recent{"C:\\P\\b.qnp", "C:\\P\\a.qnp"}));
    EXPECT_EQ(desk.NameOnFile("C:\\P\\a.qnp"), "a");
    EXPECT_EQ(desk.NameOnFile("C:\\P\\b.qnp"), "Ändrat");
}

TEST(SaveProjectAsTest, ChangesNothingWhenItsDialogIsCancelled)
{
    Desk desk({}, {{}});
    desk.Change("C:\\P\\a.qnp");
    EXPECT_FALSE(SaveProjectAs(desk.session, desk.window));
    EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\P\\a.qnp");
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
    EXPECT_TRUE(desk.window.calls.empty());
}

// Kept: the name is the project's from the moment that it was chosen.
TEST(SaveProjectAsTest, KeepsTheChosenNameWhenWritingFails)
{
    Desk desk({{BoxKind::Critical, "Fel"}}, {{{"C:\\Borta\\x.qnp"}}});
    desk.Change();
    EXPECT_FALSE(SaveProjectAs(desk.session, desk.window));
    EXPECT_EQ(desk.session.state.ProjectFileName, "C:\\Borta\\x.qnp");
    EXPECT_EQ(desk.session.state.ProjectIsDirty, kOn);
}

struct Closing {
    const char* name;
    Answer answer;
    const char* file;
    std::deque<ScriptedAsk::Choice> choices;
    bool closes;
    Flag isDirty;
};

class MayClose : public testing::TestWithParam<Closing> {};

TEST_P(MayClose, AsksAboutChanges)
{
    const Closing& closing = GetParam();
    Desk desk({SaveQuestion(closing.answer)}, closing.choices);
    desk.Change(closing.file);
    EXPECT_EQ(MayCloseMainWindow(desk.session, desk.window), closing.closes);
    EXPECT_EQ(desk.session.state.ProjectIsDirty, closing.isDirty);
}

INSTANTIATE_TEST_SUITE_P(
    All, MayClose,
    testing::Values(Closing{"Yes", Answer::Yes, "C:\\P\\a.qnp", {}, true, kOff},
                    Closing{"YesAndAName", Answer::Yes, "noname", {{{"C:\\P\\x.qnp"}}}, true, kOff},
                    Closing{"YesAndNoName", Answer::Yes, "noname", {{}}, false, kOn},
                    Closing{"No", Answer::No, "C:\\P\\a.qnp", {}, true, kOn},
                    Closing{"Cancel", Answer::Cancel, "C:\\P\\a.qnp", {}, false, kOn}),
    [](const auto& one) { return one.param.name; });

TEST(MayCloseUnchanged, AsksNothing)
{
    Desk desk;
    EXPECT_TRUE(MayCloseMainWindow(desk.session, desk.window));
}

} // namespace
} // namespace quillon
