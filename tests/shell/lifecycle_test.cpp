#include "shell/lifecycle.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon {
namespace {

constexpr const char* kPath = "C:\\Data\\p.qnp";
constexpr const char* kToolFolder = "C:\\Program\\Quillon";

class Lifecycle : public testing::Test {
protected:
    test::MemoryHost memory;
    test::ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, kToolFolder);

    void SetUp() override
    {
        memory.files.PutFolder("C:\\Data");
        memory.files.Put("C:\\Program\\Quillon\\Res\\SetupDef.bmp", "BM");
    }

    void Save(const Text& path, const Text& projectName)
    {
        session.state.ProjectFileName = path;
        session.project.ProjectName.ProjectName = projectName;
        SaveProject(session);
    }
};

TEST_F(Lifecycle, BeginsWithANewProjectAndTheToolsDefaults)
{
    EXPECT_EQ(session.state.ProjectFileName, "noname");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(session.project.InstallOptions.SetupName, "SETUP.EXE");
    EXPECT_EQ(session.options.ToolFolder, kToolFolder);
    EXPECT_EQ(session.options.TempZipPath, "C:\\Program\\Quillon\\TEMP");
    EXPECT_EQ(session.options.UseTempZipPath, kOff);
    EXPECT_EQ(session.options.CreateZipLogFile, kOff);
    EXPECT_EQ(session.options.UpdateSetupExeDateTime, kOff);
    EXPECT_EQ(session.options.PlaceCompressedFilesInFolderSetupFiles, kOn);
    EXPECT_EQ(session.options.CreateFolderStructureInFolderSetupFiles, kOff);
    for (const Text& file : session.RecentFiles)
        EXPECT_EQ(file, "");
}

TEST_F(Lifecycle, SavesAndLoadsAProject)
{
    session.state.ProjectIsDirty = kOn;
    Save(kPath, "Prov");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(session.RecentFiles[0], kPath);

    session.project.ProjectName.ProjectName = "";
    session.project.Files.rows.resize(3);
    session.state.ProjectIsDirty = kOn;
    EXPECT_EQ(LoadProject(session), ReadEnd::Whole);
    EXPECT_EQ(session.project.ProjectName.ProjectName, "Prov");
    EXPECT_TRUE(session.project.Files.rows.empty());
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_FALSE(ask.busyPointer);
    EXPECT_EQ(ask.statusTexts,
              (std::vector<Text>{"Sparar projekt...", "", "Öppnar projekt...", ""}));
}

TEST_F(Lifecycle, DoesNothingWithoutAFileName)
{
    session.state = {.ProjectFileName = "", .ProjectIsDirty = kOn};
    session.project.Files.rows.resize(1);
    EXPECT_EQ(LoadProject(session), std::nullopt);
    SaveProject(session);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(session.project.Files.rows.size(), 1U);
    EXPECT_EQ(session.RecentFiles[0], "");
}

TEST_F(Lifecycle, TheStatusTextComesBackBehindALongCommand)
{
    Save(kPath, "Prov");
    memory.files.FailFromWrite(1, ErrorNumber::kDiskFull);
    EXPECT_THROW(SaveProject(session), RunError);
    EXPECT_EQ(ask.statusTexts,
              (std::vector<Text>{"Sparar projekt...", "", "Sparar projekt...", ""}));
    EXPECT_FALSE(ask.busyPointer);
}

TEST_F(Lifecycle, AFailedSaveLeavesTheProjectChanged)
{
    session.state = {.ProjectFileName = "C:\\Nowhere\\p.qnp", .ProjectIsDirty = kOn};
    EXPECT_EQ(RunErrorNumber([&] { SaveProject(session); }), 76);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(session.RecentFiles[0], "");
}

// Kept: a refused file counts as opened.
TEST(LifecycleOfRefusedFiles, LeaveAnEmptyFileListAndEnterTheRecentFiles)
{
    test::MemoryHost memory;
    test::ScriptedAsk ask{{{test::BoxKind::Warn, "Fel filformat"}}};
    Session session = NewSession(memory.host, ask, kToolFolder);
    memory.files.Put("C:\\a.txt", "no project");
    session.project.Files.rows.resize(2);
    session.project.ProjectName.ProjectName = "Kvar";
    session.state = {.ProjectFileName = "C:\\a.txt", .ProjectIsDirty = kOn};
    EXPECT_EQ(LoadProject(session), ReadEnd::Refused);
    EXPECT_TRUE(session.project.Files.rows.empty());
    EXPECT_EQ(session.project.ProjectName.ProjectName, "Kvar");
    EXPECT_EQ(session.state.ProjectFileName, "C:\\a.txt");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(session.RecentFiles[0], "C:\\a.txt");
}

using Recent = std::array<Text, 4>;

class RecentFiles : public Lifecycle {
protected:
    Recent After(const Recent& before, const Text& file)
    {
        session.RecentFiles = before;
        session.state.ProjectFileName = file;
        HandleRecentFilesMenu(session);
        return session.RecentFiles;
    }
};

TEST_F(RecentFiles, MoveTheFileToTheFrontAndKeepTheOthersInOrder)
{
    const Recent full{"a", "b", "c", "d"};
    EXPECT_EQ(After(full, "a"), full);
    EXPECT_EQ(After(full, "b"), (Recent{"b", "a", "c", "d"}));
    EXPECT_EQ(After(full, "c"), (Recent{"c", "a", "b", "d"}));
    EXPECT_EQ(After(full, "d"), (Recent{"d", "a", "b", "c"}));
    EXPECT_EQ(After(full, "e"), (Recent{"e", "a", "b", "c"}));
    EXPECT_EQ(After(full, "A"), (Recent{"A", "a", "b", "c"})) << "names are compared with case";
    EXPECT_EQ(After(full, ""), full);
}

TEST_F(RecentFiles, FillTheFreeSlots)
{
    EXPECT_EQ(After({}, "a"), (Recent{"a", "", "", ""}));
    EXPECT_EQ(After({"a", "", "", ""}, "b"), (Recent{"b", "a", "", ""}));
}

} // namespace
} // namespace quillon
