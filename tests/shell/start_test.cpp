#include "shell/start.h"

#include "platform/run_error.h"
#include "shell/fake_window.h"
#include "shell/lifecycle.h"
#include "shell/projects_folder.h"
#include "shell/settings_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon {
namespace {

using test::BoxKind;
using test::ScriptedAsk;

constexpr const char* kToolFolder = "C:\\Program\\Quillon";
constexpr const char* kOwnProjects = "C:\\Program\\Quillon\\Projects";
constexpr const char* kOffered = "C:\\Mina dokument\\Quillon\\Mina projekt";
constexpr const char* kSettings = "C:\\Data\\Roaming\\Quillon\\QUILLON.INI";

constexpr const char* kToolFolders[] = {
    "Res",      "Language", "RTF",       "Test", "Release", "Release\\Small32", "Release\\Full32",
    "Projects", "Diagnos",  "BugReport", "TEMP"};

class Start : public testing::Test {
protected:
    test::MemoryHost memory;
    ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, kToolFolder);
    test::FakeWindow window;
    int offers = 0;

    void Activate(const Text& commandLine = "")
    {
        ActivateForTheFirstTime(session, window, commandLine, [&] {
            ++offers;
            window.calls.emplace_back("offer");
        });
    }
};

TEST_F(Start, GivesTheStartValuesOfAMachineThatWasNeverSetUp)
{
    StartSession(session);
    EXPECT_EQ(session.ProjectsFolder, kOwnProjects);
    EXPECT_EQ(session.LastInstallFilesDir, "C:\\");
    EXPECT_EQ(session.LastDepFileDir, "C:\\");
    EXPECT_EQ(session.options.TempZipPath, "C:\\Program\\Quillon\\TEMP");
    EXPECT_EQ(session.options.UseTempZipPath, kOff);
    EXPECT_EQ(session.options.CreateZipLogFile, kOff);
    EXPECT_EQ(session.options.PlaceCompressedFilesInFolderSetupFiles, kOn);
    EXPECT_EQ(session.Settings.Directories.LastPictureDir, "C:\\Mina dokument");
    EXPECT_EQ(session.Settings.WindowOptions.CBarsCurrentStyle, 3);
    for (const Text& file : session.RecentFiles)
        EXPECT_EQ(file, "");
}

TEST_F(Start, MakesTheFoldersOfTheTool)
{
    StartSession(session);
    for (const char* name : kToolFolders)
        EXPECT_TRUE(memory.files.DirExists(Text(kToolFolder) + "\\" + name)) << name;
}

TEST_F(Start, WritesInTheUsersFolderWhereTheToolsOwnIsClosed)
{
    const Text own = "C:\\Data\\Quillon";
    Session closed = NewSession(memory.host, ask, kToolFolder, own);
    StartSession(closed);
    for (const char* name : kToolFolders) {
        EXPECT_TRUE(memory.files.DirExists(own + "\\" + name)) << name;
        EXPECT_FALSE(memory.files.DirExists(Text(kToolFolder) + "\\" + name)) << name;
    }
    EXPECT_EQ(closed.ProjectsFolder, own + "\\Projects");
    EXPECT_EQ(closed.options.TempZipPath, own + "\\TEMP");
    EXPECT_EQ(closed.options.ToolFolder, kToolFolder);
}

TEST_F(Start, GoesOnWhereNoFolderCanBeMade)
{
    memory.files.refuseFolders = true;
    StartSession(session);
    EXPECT_EQ(session.ProjectsFolder, kOwnProjects);
}

TEST_F(Start, ReadsTheSettings)
{
    memory.files.Put(kSettings, "[RecentFiles]\r\nF1=C:\\a.qnp\r\n[HideTabs]\r\n"
                                "HideTabRegistry=-1\r\n");
    StartSession(session);
    EXPECT_EQ(session.RecentFiles[0], "C:\\a.qnp");
    EXPECT_EQ(session.Settings.HideTabs.HideTabRegistry, kOn);
}

TEST_F(Start, UsesTheProjectsFolderInMyDocumentsOnceItIsThere)
{
    memory.files.PutFolder("C:\\Mina dokument\\Quillon");
    StartSession(session);
    EXPECT_EQ(session.ProjectsFolder, kOwnProjects) << "the folder of the tool alone is not enough";
    memory.files.PutFolder(kOffered);
    StartSession(session);
    EXPECT_EQ(session.ProjectsFolder, kOffered);
}

TEST_F(Start, ActivatesInItsOrder)
{
    session.project.ProjectName.ProjectName = "Rest";
    session.state.ProjectIsDirty = kOn;
    Activate();
    EXPECT_EQ(window.calls,
              (std::vector<std::string>{"project", "settings", "select", "offer", "recent"}));
    EXPECT_EQ(window.selected, Tab::Files);
    EXPECT_EQ(session.project.ProjectName.ProjectName, "");
    EXPECT_EQ(session.state.ProjectFileName, "noname");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(Start, OffersFoldersBehindTheProjectOfTheCommandLine)
{
    session.state.ProjectFileName = "C:\\Data\\p.qnp";
    memory.files.PutFolder("C:\\Data");
    memory.files.Put("C:\\Program\\Quillon\\Res\\SetupDef.bmp", "BM");
    session.project.ProjectName.ProjectName = "Prov";
    SaveProject(session);
    session.RecentFiles = {};
    Activate("C:\\Data\\p.qnp");
    EXPECT_EQ(session.project.ProjectName.ProjectName, "Prov");
    EXPECT_EQ(session.state.ProjectFileName, "C:\\Data\\p.qnp");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(session.RecentFiles[0], "C:\\Data\\p.qnp");
    EXPECT_EQ(window.calls, (std::vector<std::string>{"project", "settings", "select", "title",
                                                      "project", "recent", "offer", "recent"}));
}

TEST_F(Start, OffersFoldersNoMoreAfterEitherAnswer)
{
    for (const bool wanted : {false, true}) {
        StartSession(session);
        session.Settings.WindowOptions.MyDocFolderAutoCreateDone = kOff;
        offers = 0;
        Activate();
        EXPECT_EQ(offers, 1);
        AnswerFolderOffer(session, wanted);
        WriteDataToIniFile(session);

        StartSession(session);
        Activate();
        EXPECT_EQ(offers, 1) << wanted;
        EXPECT_EQ(session.ProjectsFolder, wanted ? kOffered : kOwnProjects);
    }
}

TEST_F(Start, MakesTheOfferedFolders)
{
    AnswerFolderOffer(session, true);
    EXPECT_TRUE(memory.files.DirExists(kOffered));
    EXPECT_EQ(session.ProjectsFolder, kOffered);
}

TEST_F(Start, StaysWithTheToolWhereFoldersCannotBeMade)
{
    session.ProjectsFolder = "C:\\elsewhere";
    memory.files.refuseFolders = true;
    CreateQNDocFolders(session);
    EXPECT_EQ(session.ProjectsFolder, kOwnProjects);
}

// Kept: the file is not looked for first; it is refused like any file that holds no project.
TEST(StartWithAMissingProject, GoesOnUnderItsName)
{
    test::MemoryHost memory;
    ScriptedAsk ask{{{BoxKind::Warn, "Fel filformat"}}};
    Session session = NewSession(memory.host, ask, kToolFolder);
    test::FakeWindow window;
    session.Settings.WindowOptions.MyDocFolderAutoCreateDone = kOn;
    ActivateForTheFirstTime(session, window, "C:\\Borta\\p.qnp", [] { FAIL(); });
    EXPECT_EQ(session.state.ProjectFileName, "C:\\Borta\\p.qnp");
    EXPECT_EQ(session.RecentFiles[0], "C:\\Borta\\p.qnp");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon
