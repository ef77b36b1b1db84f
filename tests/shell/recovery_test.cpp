#include "shell/recovery.h"

#include "fake_window.h"
#include "filelist/list_builder.h"
#include "platform/run_error.h"
#include "project/new_project.h"
#include "shell/lifecycle.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

constexpr const char* kFirst = "C:\\Data\\Recovery\\1.qnp";
constexpr const char* kSecond = "C:\\Data\\Recovery\\2.qnp";

ExpectedBox Offer(const Text& project, Answer answer)
{
    return {BoxKind::YesNoCancel, "Återskapa projekt",
            "Quillon avslutades utan att '" + project +
                "' sparades. Ändringarna till och med 2004-02-29 kl 12:30 finns kvar. Vill du "
                "öppna dem? Nej tar bort dem för gott.",
            answer};
}

/// A run of the program on a machine that lives longer.
struct OneRun {
    explicit OneRun(MemoryHost& machine, std::deque<ExpectedBox> boxes = {})
        : ask(std::move(boxes)), session(NewSession(machine.host, ask, "C:\\Tool", "C:\\Data"))
    {
    }
    void Offer() { OfferLeftCopies(session, window, copy); }

    ScriptedAsk ask;
    Session session;
    FakeWindow window;
    RecoveryCopy copy{session};
};

class Recovery : public testing::Test {
protected:
    Recovery() { machine.files.Put("C:\\Tool\\Res\\SetupDef.bmp", "BM"); }

    bool Has(const Text& path) const { return machine.files.FileExists(path); }
    /// A run that ends with a copy left behind; the lock goes with its program.
    void LeaveCopy(const Text& project = "C:\\P\\a.qnp", bool isInProject = true)
    {
        OneRun run(machine);
        ResetToNewProject(run.session.project, run.session.state, "C:\\Tool");
        run.session.knownFile = LookAtFile(machine.files, project);
        run.session.knownFile.isInProject = isInProject;
        run.session.state.ProjectFileName = project;
        run.session.state.ProjectIsDirty = kOn;
        run.session.project.ProjectName.ProjectName = "Ändrat";
        run.session.project.Files.rows = {MakeRow("a.txt", "%DESTDIR", "c:\\d\\a.txt")};
        ASSERT_TRUE(run.copy.Keep());
        // A copy in memory has the date of the machine's other files.
        machine.files.SetModified(kFirst, {2004, 2, 29, 12, 30, 0});
    }

    MemoryHost machine;
};

TEST_F(Recovery, KeepsTheProjectAsItIsInMemoryWithoutChangingIt)
{
    OneRun run(machine);
    run.session.project.ProjectName.ProjectName = "Hej";
    run.session.project.Files.rows = {MakeRow("a.txt")};
    run.session.project.Files.rows[0][Size] = "no number";
    ASSERT_TRUE(run.copy.Keep()) << "and asks nobody about the size";
    EXPECT_EQ(run.session.project.ProgramGroup.ProgramGroup, "");
    EXPECT_EQ(run.session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(run.session.state.ProjectFileName, "noname");
    EXPECT_TRUE(Has(kFirst));
    run.copy.Remove();
    EXPECT_FALSE(Has(kFirst));
    EXPECT_FALSE(Has("C:\\Data\\Recovery\\1.ini"));
}

TEST_F(Recovery, LeavesTheCopyBeforeWholeWhenTheDiskIsFull)
{
    OneRun run(machine);
    ASSERT_TRUE(run.copy.Keep());
    const std::string before = machine.files.Get(kFirst);
    run.session.project.ProjectName.ProjectName = "Annat";
    machine.files.FailFromWrite(3, ErrorNumber::kDiskFull);
    EXPECT_FALSE(run.copy.Keep());
    EXPECT_EQ(machine.files.Get(kFirst), before);
}

TEST_F(Recovery, KeepsNoneWhereTheDataFolderCanNotBeMade)
{
    machine.files.refuseFolders = true;
    OneRun run(machine);
    EXPECT_FALSE(run.copy.Keep());
    run.copy.Remove();
    run.Offer();
}

TEST_F(Recovery, GivesEachRunningProgramAPlaceOfItsOwn)
{
    OneRun one(machine);
    OneRun two(machine);
    ASSERT_TRUE(one.copy.Keep());
    ASSERT_TRUE(two.copy.Keep());
    EXPECT_TRUE(Has(kFirst));
    EXPECT_TRUE(Has(kSecond));
    two.Offer();
    EXPECT_TRUE(two.ask.shown.empty()) << "the other one is still at work";
}

TEST_F(Recovery, OffersWhatWasLeftBehindAndOpensItAsChanged)
{
    LeaveCopy();
    OneRun run(machine, {Offer("C:\\P\\a.qnp", Answer::Yes)});
    run.Offer();
    EXPECT_EQ(run.session.project.ProjectName.ProjectName, "Ändrat");
    EXPECT_THAT(NamesOf(run.session.project.Files), ElementsAre("a.txt"));
    EXPECT_EQ(run.session.state.ProjectFileName, "C:\\P\\a.qnp");
    EXPECT_EQ(run.session.state.ProjectIsDirty, kOn);
    EXPECT_THAT(run.window.calls, Contains("project"));
    EXPECT_FALSE(Has(kFirst));
    EXPECT_TRUE(Has(kSecond)) << "its own copy, as long as it isn't saved";
    machine.files.PutFolder("C:\\P");
    EXPECT_EQ(SaveProject(run.session), SaveEnd::Done);
    EXPECT_TRUE(Has("C:\\P\\a.qnp"));
}

TEST_F(Recovery, AsksBeforeItSavesOverAFileThatChangedMeanwhile)
{
    machine.files.Put("C:\\P\\a.qnp", "old");
    for (const char* content : {"old", "new"}) {
        LeaveCopy();
        machine.files.Put("C:\\P\\a.qnp", content);
        OneRun run(machine, {Offer("C:\\P\\a.qnp", Answer::Yes)});
        run.Offer();
        EXPECT_EQ(HasChangedSince(machine.files, run.session.knownFile, "C:\\P\\a.qnp"),
                  content == std::string_view("new"));
        EXPECT_TRUE(run.session.knownFile.isInProject);
        run.copy.Remove();
    }
}

TEST_F(Recovery, AsksBeforeItSavesOverAFileThatCameMeanwhile)
{
    LeaveCopy();
    machine.files.Put("C:\\P\\a.qnp", "of another program");
    OneRun run(machine, {Offer("C:\\P\\a.qnp", Answer::Yes)});
    run.Offer();
    EXPECT_TRUE(HasChangedSince(machine.files, run.session.knownFile, "C:\\P\\a.qnp"));
}

TEST_F(Recovery, StillKnowsThatTheProjectsFileWasReadInPart)
{
    machine.files.Put("C:\\P\\a.qnp", "cut");
    LeaveCopy("C:\\P\\a.qnp", false);
    OneRun run(machine, {Offer("C:\\P\\a.qnp", Answer::Yes)});
    run.Offer();
    EXPECT_FALSE(run.session.knownFile.isInProject);
}

TEST_F(Recovery, KnowsAProjectThatWasNeverSavedAndOneWithAForeignName)
{
    LeaveCopy("noname");
    OneRun run(machine, {Offer("noname", Answer::Yes)});
    run.Offer();
    EXPECT_EQ(run.session.state.ProjectFileName, "noname");
    run.copy.Remove();
    LeaveCopy("C:\\日本\\a.qnp");
    OneRun other(machine, {Offer("C:\\日本\\a.qnp", Answer::Yes)});
    other.Offer();
    EXPECT_EQ(other.session.state.ProjectFileName, "C:\\日本\\a.qnp");
}

TEST_F(Recovery, RemovesACopyOnNoAndKeepsItOnCancel)
{
    LeaveCopy();
    OneRun cancel(machine, {Offer("C:\\P\\a.qnp", Answer::Cancel)});
    cancel.Offer();
    EXPECT_TRUE(Has(kFirst));
    EXPECT_EQ(cancel.session.state.ProjectIsDirty, kOff);
    OneRun no(machine, {Offer("C:\\P\\a.qnp", Answer::No)});
    no.Offer();
    EXPECT_FALSE(Has(kFirst));
    EXPECT_FALSE(Has("C:\\Data\\Recovery\\1.ini"));
    EXPECT_EQ(no.session.project.ProjectName.ProjectName, "");
}

TEST_F(Recovery, KeepsACopyThatCannotBeReadWhole)
{
    LeaveCopy();
    const std::string bytes = machine.files.Get(kFirst);
    machine.files.Put(kFirst, bytes.substr(0, bytes.find("F1=") + 5));
    OneRun run(machine, {Offer("C:\\P\\a.qnp", Answer::Yes)});
    run.Offer();
    EXPECT_EQ(run.session.project.ProjectName.ProjectName, "Ändrat") << "what there is";
    EXPECT_TRUE(Has(kFirst));
}

} // namespace
} // namespace quillon::test
