// quillonc as a whole program: its help, and the calls that read and write projects.
#include "workshop.h"

#include <fstream>
#include <sstream>

namespace quillon::test {
namespace {

class ProjectCalls : public Workshop {
protected:
    static std::string Golden(const std::string& name)
    {
        std::ifstream file(std::string(QUILLON_TEST_DATA) + "/golden/project/" + name,
                           std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        EXPECT_TRUE(file) << name;
        return bytes.str();
    }
};

TEST_F(ProjectCalls, TellsItsVersionAndItsHelp)
{
    const ProgramRun version = Quillonc({"--version"});
    EXPECT_EQ(version.out, "6.5.6\n");
    EXPECT_EQ(version.exitCode, 0);
    const ProgramRun help = Quillonc({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_EQ(help.err, "");
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"-h"}, {"create", "--help"}, {"list", "a", "-h"}}) {
        const ProgramRun behind = Quillonc(words);
        EXPECT_EQ(behind.exitCode, 0);
        EXPECT_EQ(behind.out, help.out);
    }
    EXPECT_THAT(help.out, testing::HasSubstr("--medium floppy|cd|tree|internet"));
    EXPECT_FALSE(disk.Has("c")) << "help needs no drive C:";
}

TEST_F(ProjectCalls, TellsOfWrongUsage)
{
    for (const std::vector<std::string>& words : {std::vector<std::string>{},
                                                  {"bake"},
                                                  {"show"},
                                                  {"show", "a", "b"},
                                                  {"show", ""},
                                                  {"create", "p.qnp", "--medium", "dvd"},
                                                  {"resave", "a.qnp"},
                                                  {"show", "--", "a", "--help"},
                                                  {"list", "--after", "x"}}) {
        const ProgramRun run = Quillonc(words);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, testing::HasSubstr("quillonc --help visar alla anrop."));
    }
}

TEST_F(ProjectCalls, TellsOfSettingsThatItCannotUse)
{
    environment["QUILLON_DRIVES"] = "nonsense";
    const ProgramRun run = Quillonc({"show", SaveProjectOf({})});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "QUILLON_DRIVES: 'nonsense' är ingen enhet; skriv en bokstav, '=' och en "
                       "katalog.\n");
}

TEST_F(ProjectCalls, SavesAProjectAsItWas)
{
    const std::string saved = SaveProjectOf({"Prog.exe", "Data\\"});
    const ProgramRun run = Quillonc({"resave", saved, disk.Path("again.qnp")});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out + run.err, "");
    const ProgramRun twice = Quillonc({"resave", disk.Path("again.qnp"), disk.Path("twice.qnp")});
    EXPECT_EQ(twice.exitCode, 0);
    EXPECT_EQ(disk.Get("again.qnp"), disk.Get("twice.qnp"));
    EXPECT_THAT(disk.Get("again.qnp"), testing::HasSubstr("=Prog.exe;%DESTDIR;"));
}

TEST_F(ProjectCalls, TakesHostPathsAndWindowsPathsOfAnyCase)
{
    disk.PutFolder("src/Projekt");
    Save(MakeProject({"Prog.exe"}), "src/Projekt/Räkna.qnp");
    EXPECT_EQ(Quillonc({"resave", "s:\\projekt\\RÄKNA.QNP", "S:/projekt/ny.qnp"}).exitCode, 0);
    EXPECT_TRUE(disk.Has("src/Projekt/ny.qnp"));
    EXPECT_EQ(Quillonc({"show", disk.Path("src/Projekt/ny.qnp")}).exitCode, 0);
    EXPECT_EQ(Quillonc({"show", "q:\\a.qnp"}).exitCode, 3);
}

TEST_F(ProjectCalls, OpensAnEarlierProjectFirst)
{
    Project earlier = MakeProject({});
    earlier.Lists.AutoexecBat = "SET A=1";
    const std::string before = Save(earlier, "before.qnp");
    const std::string in = SaveProjectOf({});
    Quillonc({"resave", in, disk.Path("alone.qnp")});
    const ProgramRun run = Quillonc({"resave", in, disk.Path("after.qnp"), "--after", before});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    // Startup lines live on in the next project that has none.
    EXPECT_THAT(disk.Get("alone.qnp"), testing::Not(testing::HasSubstr("SET A=1")));
    EXPECT_THAT(disk.Get("after.qnp"), testing::HasSubstr("SET A=1"));

    const ProgramRun gone = Quillonc({"resave", in, disk.Path("x.qnp"), "--after", "S:\\gone.qnp"});
    EXPECT_EQ(gone.exitCode, 3);
    EXPECT_EQ(gone.err, "Filen 'S:\\gone.qnp' finns inte.\n");
    EXPECT_FALSE(disk.Has("x.qnp"));
}

TEST_F(ProjectCalls, SavesOverTheProjectItself)
{
    const std::string in = SaveProjectOf({"Prog.exe"});
    EXPECT_EQ(Quillonc({"resave", in, in}).exitCode, 0);
    EXPECT_EQ(ObjectOf(Quillonc({"show", in, "--json"}))["FileList"].size(), 1U);
}

TEST_F(ProjectCalls, TellsWhatItSavedAsAnObject)
{
    const Json object =
        ObjectOf(Quillonc({"resave", SaveProjectOf({"a.txt", "b.txt"}), "S:\\n.qnp", "--json"}));
    EXPECT_EQ(object["project"], "S:\\n.qnp");
    EXPECT_EQ(object["isWhole"], true);
    EXPECT_EQ(object["files"], 2);
}

TEST_F(ProjectCalls, TellsThatItCannotSave)
{
    const std::string in = SaveProjectOf({});
    const ProgramRun run = Quillonc({"resave", in, "S:\\nowhere\\n.qnp"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Katalogen till 'S:\\nowhere\\n.qnp' finns inte.\n");
    EXPECT_EQ(Names("src"), std::vector<std::string>{});
}

TEST_F(ProjectCalls, ShowsTheWholeModelAsAnObject)
{
    Project project = MakeProject({"Å.txt"});
    project.Version.CompanyName = "Firma \"AB\"";
    project.Lists.Registry = "one\r\ntwo";
    project.FileComponents[1] = {.Comp = 1, .CompName = "Hjälp"};
    project.DesPicturesAnim.NrAnimPictures = 2;
    project.DesPicturesAnim.P[1] = "s:\\b.bmp";
    const ProgramRun run = Quillonc({"show", Save(project), "--json"});
    EXPECT_EQ(run.err, "");
    const Json object = ObjectOf(run);
    EXPECT_EQ(object["isWhole"], true);
    EXPECT_EQ(object["ProjectName"]["ProjectName"], "Prov");
    EXPECT_EQ(object["Version"]["CompanyName"], "Firma \"AB\"");
    EXPECT_EQ(object["Media"]["TargetMedia"], 2);
    EXPECT_EQ(object["TargetOS"]["TargetOS_Win95"], -1);
    EXPECT_EQ(object["Registry"], "one\r\ntwo");
    EXPECT_EQ(object["FileComponents"]["CompName2"], "Hjälp");
    EXPECT_EQ(object["DesPicturesAnim"]["P2"], "s:\\b.bmp");
    EXPECT_EQ(object["DesTextBox"]["BoxXPosTwips"], 400);
    EXPECT_FALSE(object["DesTextBox"].contains("BoxXPos"));
    ASSERT_EQ(object["FileList"].size(), 1U);
    ASSERT_EQ(object["FileList"][0].size(), 15U);
    EXPECT_EQ(object["FileList"][0][0], "Å.txt");
    EXPECT_EQ(object["FileList"][0][9], "s:\\å.txt");
}

TEST_F(ProjectCalls, ShowsEverySectionOfAFullProjectFile)
{
    disk.Put("full.qnp", Golden("full/full.qnp"));
    const Json object = ObjectOf(Quillonc({"show", disk.Path("full.qnp"), "--json"}));
    std::istringstream lines(disk.Get("full.qnp"));
    for (std::string line; std::getline(lines, line);) {
        const bool isSection =
            line.size() > 2 && line[0] == '[' && line.find(']') == line.size() - 2;
        const std::string name = isSection ? line.substr(1, line.size() - 3) : "";
        const bool isOfFileAlone = name == "Origin" || name == "ID" || name == "Configuration" ||
                                   name == "RegisterFiles" || name == "FileListInfo";
        if (isSection && !isOfFileAlone)
            EXPECT_TRUE(object.contains(name)) << name;
    }
}

TEST_F(ProjectCalls, ShowsAProjectToPeople)
{
    Project project = MakeProject({"a.txt", "b.txt"});
    project.Files.rows[1][Filename] = "";
    project.DialogBoxData.LicenseText = "one\r\ntwo";
    const ProgramRun run = Quillonc({"show", Save(project)});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, testing::HasSubstr("[ProjectName]\nProjectName = Prov\n\n"));
    EXPECT_THAT(run.out, testing::HasSubstr("LicenseText =\n    one\n    two\n"));
    EXPECT_THAT(run.out, testing::HasSubstr("[FileList]\na.txt;%DESTDIR;0.0;"));
    EXPECT_THAT(run.out, testing::HasSubstr("\n;%DESTDIR;0.0;"));
}

} // namespace
} // namespace quillon::test
