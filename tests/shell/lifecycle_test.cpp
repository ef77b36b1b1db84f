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

class SavingOverFiles : public testing::Test {
protected:
    SavingOverFiles()
    {
        memory.files.Put("C:\\Program\\Quillon\\Res\\SetupDef.bmp", "BM");
        test::ScriptedAsk nobody;
        Session other = NewSession(memory.host, nobody, kToolFolder);
        memory.files.PutFolder("C:\\Data");
        other.state.ProjectFileName = kPath;
        other.project.Files.rows = {FileListRow{{"a.txt"}}, FileListRow{{"b.txt"}}};
        SaveProject(other);
        whole = memory.files.Get(kPath);
    }

    void Open(const std::string& bytes, Session& session)
    {
        memory.files.Put(kPath, bytes);
        session.state.ProjectFileName = kPath;
        LoadProject(session);
    }

    static test::ExpectedBox KeptAs(const Text& name)
    {
        return {test::BoxKind::Inform, "Den gamla filen finns kvar",
                Text("'") + kPath +
                    "' kunde inte läsas helt som projekt. Filen som den var finns "
                    "kvar som '" +
                    name + "'."};
    }

    std::vector<Text> Names() const
    {
        std::vector<Text> names;
        for (const FolderEntry& entry : memory.files.List("C:\\Data"))
            names.push_back(entry.name);
        return names;
    }

    test::MemoryHost memory;
    std::string whole;
};

TEST_F(SavingOverFiles, KeepsAFileBesideThatWasReadInPart)
{
    const std::string parts[] = {
        whole.substr(0, whole.find("[FileList]")),
        ReplaceAll(whole, "Files = 2", "Files = 1"),
        ReplaceAll(whole, "Files = 2", "Files = 100000"),
        ReplaceAll(whole, "\r\n", "\n"),
        ReplaceAll(whole, "=b.txt;", "=b.txt"),
    };
    for (const std::string& part : parts) {
        test::ScriptedAsk ask{{KeptAs(Text(kPath) + ".bak")}};
        Session session = NewSession(memory.host, ask, kToolFolder);
        Open(part, session);
        EXPECT_EQ(SaveProject(session), SaveEnd::Done);
        EXPECT_EQ(memory.files.Get(Text(kPath) + ".bak"), part);
        // From now on the file holds what the project holds.
        session.project.Version.Comments = "again";
        EXPECT_EQ(SaveProject(session), SaveEnd::Done);
        EXPECT_EQ(Names(), (std::vector<Text>{"p.qnp", "p.qnp.bak"}));
        memory.files.RemoveFile(Text(kPath) + ".bak");
    }
}

TEST_F(SavingOverFiles, KeepsAForeignFileBesideUnderAFreeName)
{
    test::ScriptedAsk ask{{{test::BoxKind::Warn, "Fel filformat"}, KeptAs(Text(kPath) + ".bak2")}};
    Session session = NewSession(memory.host, ask, kToolFolder);
    memory.files.Put(Text(kPath) + ".bak", "an older one");
    Open("{\\rtf1 Hej}", session);
    SaveProject(session);
    EXPECT_EQ(memory.files.Get(Text(kPath) + ".bak2"), "{\\rtf1 Hej}");
    EXPECT_EQ(memory.files.Get(Text(kPath) + ".bak"), "an older one");
}

TEST_F(SavingOverFiles, KeepsNothingOfAFileUnderAnotherName)
{
    test::ScriptedAsk ask{{{test::BoxKind::Warn, "Fel filformat"}}};
    Session session = NewSession(memory.host, ask, kToolFolder);
    Open("{\\rtf1 Hej}", session);
    session.state.ProjectFileName = "C:\\Data\\q.qnp";
    SaveProject(session);
    EXPECT_EQ(memory.files.Get(kPath), "{\\rtf1 Hej}");
    EXPECT_EQ(Names(), (std::vector<Text>{"p.qnp", "q.qnp"}));
}

TEST_F(SavingOverFiles, LeavesTheOldFileInItsPlaceWhereItCannotBeKept)
{
    test::ScriptedAsk ask{{{test::BoxKind::Warn, "Fel filformat"}}};
    Session session = NewSession(memory.host, ask, kToolFolder);
    Open("{\\rtf1 Hej}", session);
    memory.files.RefuseOutput(Text(kPath) + ".bak", ErrorNumber::kDiskFull);
    session.state.ProjectIsDirty = kOn;
    EXPECT_EQ(RunErrorNumber([&] { SaveProject(session); }), ErrorNumber::kDiskFull);
    EXPECT_EQ(memory.files.Get(kPath), "{\\rtf1 Hej}");
    EXPECT_EQ(Names(), (std::vector<Text>{"p.qnp"}));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(SavingOverFiles, TooManyPicturesAreToldBeforeAnythingIsOpened)
{
    test::ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, kToolFolder);
    const std::string file = ReplaceAll(whole, "NrAnimPictures = 0", "NrAnimPictures = 20000");
    Open(file, session);
    EXPECT_EQ(RunErrorNumber([&] { SaveProject(session); }), ErrorNumber::kSubscriptOutOfRange);
    EXPECT_EQ(memory.files.Get(kPath), file);
    EXPECT_EQ(Names(), (std::vector<Text>{"p.qnp"}));
}

TEST_F(SavingOverFiles, SeesWhatAnotherProgramHasChanged)
{
    test::ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, kToolFolder);
    Open(whole, session);
    EXPECT_EQ(SaveProject(session), SaveEnd::Done);
    const std::string theirs = ReplaceAll(memory.files.Get(kPath), "b.txt", "c.txt");
    memory.files.Put(kPath, theirs);
    session.state.ProjectIsDirty = kOn;
    EXPECT_EQ(SaveProject(session), SaveEnd::ChangedByOthers);
    EXPECT_EQ(memory.files.Get(kPath), theirs);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);

    session.knownFile.content = LookAtFile(memory.files, kPath).content;
    EXPECT_EQ(SaveProject(session), SaveEnd::Done);
    EXPECT_EQ(memory.files.Get(kPath), whole);
    // A file that no longer exists is written again.
    memory.files.RemoveFile(kPath);
    EXPECT_EQ(SaveProject(session), SaveEnd::Done);
    EXPECT_EQ(memory.files.Get(kPath), whole);
}

TEST_F(SavingOverFiles, LeavesAFileAloneThatAnotherProgramIsChanging)
{
    test::ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, kToolFolder);
    Open(whole, session);
    session.state.ProjectIsDirty = kOn;
    const auto lock = LockSavedFile(memory.files, kPath, LockWait::None);
    EXPECT_EQ(RunErrorNumber([&] { SaveProject(session); }), ErrorNumber::kFileInUse);
    EXPECT_EQ(memory.files.Get(kPath), whole);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
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
