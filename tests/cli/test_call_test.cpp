// quillonc test as a whole program.
#include "workshop.h"

#include <filesystem>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class TestCall : public Workshop {
protected:
    TestCall()
    {
        disk.Put("src/Prog.exe", "program");
        disk.Put("src/Data/Läs mig.txt", "text");
        Project made = MakeProject({"Prog.exe", "Data\\Läs mig.txt", "Tom\\"});
        made.Media.TargetMedia = 4;
        made.RunAppSelfX.ProgramFilename = "s:\\prog.exe";
        made.ProgramGroup.ProgramGroup = "";
        made.DesBackground.PictureFilename = "S:\\bak.bmp";
        disk.Put("src/bak.bmp", "BM");
        project = Save(std::move(made));
        before = disk.Get("p.qnp");
    }
    ~TestCall() override
    {
        EXPECT_EQ(disk.Get("p.qnp"), before);
        EXPECT_FALSE(fs::exists(disk.Path("tool/Test")));
    }

    ProgramRun Test(std::vector<std::string> more = {}, const std::string& to = "out") const
    {
        more.insert(more.begin(), {"test", project, "--to", disk.Path(to)});
        return Quillonc(more);
    }
    void ExpectStopped(const std::string& err, const std::string& to = "out") const
    {
        const ProgramRun run = Test({}, to);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(err));
    }

    std::string project;
    std::string before;
};

TEST_F(TestCall, WritesWhatATestReads)
{
    const ProgramRun run = Test();
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, testing::StartsWith("Testfiler: Z:\\"));
    EXPECT_THAT(Names("out"), ElementsAre("FILELIST.INF", "QNSETUP.INF", "SWEDISH.LNG"));
    const std::string setup = disk.Get("out/QNSETUP.INF");
    EXPECT_THAT(setup, HasSubstr("\r\nTargetMedia = 2\r\n"));
    EXPECT_THAT(setup, HasSubstr("\r\nProgramGroup = Prov\r\n"));
    EXPECT_THAT(setup, HasSubstr("\r\nPictureFilename = S:\\bak.bmp\r\n"));
    EXPECT_THAT(setup, HasSubstr("\r\nFiles = 3\r\n"));
    EXPECT_THAT(setup, Not(HasSubstr("[RunAppSelfX]")));
    EXPECT_THAT(setup, Not(HasSubstr("FileSubType")));
    EXPECT_THAT(disk.Get("out/FILELIST.INF"), HasSubstr("F1=Prog.exe;%DESTDIR;7;;"));
    EXPECT_EQ(disk.Get("out/SWEDISH.LNG"), disk.Get("tool/Language/SWEDISH.LNG"));
}

TEST_F(TestCall, MakesTheFolderAndTellsItInJson)
{
    const ProgramRun run = Test({"--json"}, "new/folder");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const Json object = ObjectOf(run);
    EXPECT_EQ(object["result"], "done");
    EXPECT_THAT(object["folder"].get<std::string>(), testing::EndsWith("\\new\\folder"));
    EXPECT_EQ(object["files"], 3);
    EXPECT_TRUE(object["boxes"].empty());
    EXPECT_EQ(object["exitCode"], 0);
    EXPECT_FALSE(object.contains("error"));
    EXPECT_EQ(Names("new/folder").size(), 3U);
}

TEST_F(TestCall, RefusesAProjectThatNoTestCanShow)
{
    Project empty = MakeProject({});
    project = Save(empty);
    before = disk.Get("p.qnp");
    ExpectStopped("Fel: Kan ej simulera! Det finns inga filer i fillistan!");
    EXPECT_TRUE(Names("out").empty());
    const ProgramRun run = Test({"--json"});
    const Json object = ObjectOf(run);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(object["result"], "stopped");
    EXPECT_EQ(object["boxes"][0]["title"], "Fel");
    EXPECT_FALSE(object.contains("error"));
}

TEST_F(TestCall, NamesAFileThatIsGone)
{
    fs::remove(disk.Path("src/Prog.exe"));
    const ProgramRun run = Test({"--json"});
    EXPECT_EQ(run.exitCode, 1);
    const Json object = ObjectOf(run);
    EXPECT_EQ(object["result"], "failed");
    EXPECT_THAT(object["error"].get<std::string>(), HasSubstr("prog.exe"));
    EXPECT_EQ(object["boxes"][0]["title"], "Kan ej testa");
    ExpectStopped(
        "Kan ej testa: Ett fel inträffade när fillista-filen FILELIST.INF skulle skapas!");
}

TEST_F(TestCall, TellsOfALanguageFileThatIsMissing)
{
    fs::remove(disk.Path("tool/Language/SWEDISH.LNG"));
    ExpectStopped("Fel #53 inträffade när språkfilen 'SWEDISH.LNG' skulle kopieras!");
    fs::remove(disk.Path("tool/Language"));
    ExpectStopped("Fel #76 inträffade när språkfilen 'SWEDISH.LNG' skulle kopieras!");
}

TEST_F(TestCall, TellsOfALanguageFileThatIsNone)
{
    Project made = MakeProject({"Prog.exe"});
    for (const char* name : {"", "..\\quillonc", "../../p.qnp"}) {
        made.Language.LanguageFile = name;
        Save(made);
        before = disk.Get("p.qnp");
        const ProgramRun run = Test();
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_THAT(run.err, HasSubstr("Fel #52 inträffade när språkfilen '" + Text(name) +
                                       "' skulle kopieras!"));
        EXPECT_THAT(run.err,
                    HasSubstr("\\Language\\" + Text(name) + "' är inget giltigt filnamn."));
        EXPECT_THAT(Names("out"), ElementsAre("FILELIST.INF", "QNSETUP.INF"));
    }
}

TEST_F(TestCall, TellsOfAFolderThatIsNone)
{
    disk.Put("file", "text");
    ExpectStopped("Fel #76 inträffade när katalogen", "file");
    EXPECT_EQ(disk.Get("file"), "text");
}

TEST_F(TestCall, RefusesWhatIsNoProject)
{
    const auto refused = [&](const std::string& path) {
        const ProgramRun run = Quillonc({"test", path, "--to", out});
        EXPECT_EQ(run.exitCode, 3) << run.err;
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(Names("out").empty());
    };
    disk.Put("text.qnp", "text");
    disk.Put("cut.qnp", before.substr(0, before.size() / 2));
    refused(disk.Path("gone.qnp"));
    refused(disk.Path("text.qnp"));
    refused(disk.Path("cut.qnp"));
}

TEST_F(TestCall, WantsAFolder)
{
    for (const std::vector<std::string>& words : {std::vector<std::string>{"test", project},
                                                  {"test"},
                                                  {"test", project, "--to"},
                                                  {"test", project, "--to", ""},
                                                  {"test", project, "--to", out, "more"}}) {
        const ProgramRun run = Quillonc(words);
        EXPECT_EQ(run.exitCode, 2) << run.err;
        EXPECT_EQ(run.out, "");
    }
    EXPECT_THAT(Quillonc({"--help"}).out, HasSubstr("test PROJEKT"));
}

TEST_F(TestCall, LeavesTheLanguageFilesOfTheToolAlone)
{
    const std::string text = disk.Get("tool/Language/SWEDISH.LNG");
    Test({}, "tool/Language");
    EXPECT_EQ(disk.Get("tool/Language/SWEDISH.LNG"), text);
}

} // namespace
} // namespace quillon::test
