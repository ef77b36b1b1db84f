// Wrong input and failures of the machine: each case has its message, its exit code and what is
// left on disk.
#include "workshop.h"

#include <sys/stat.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const std::vector<std::string> kNothing;
// What a failed compression leaves in the destination.
const std::vector<std::string> kAllButTheContainer = {
    "DUNZIP32.DLL", "FILELIST.INF", "PACKAGE.SHA256", "QNS32X.BIN",
    "QNSETUP.INF",  "SETUP.EXE",    "SWEDISH.LNG"};

class BadInput : public Workshop {
protected:
    BadInput()
    {
        disk.Put("src/a.txt", "some text");
        disk.Put("src/Data/b.txt", "more text");
    }

    static Text WindowsPath(const std::string& hostPath)
    {
        return Text("Z:").append(ReplaceAll(hostPath, "/", "\\"));
    }

    /// All calls that take a project end with this line and code, and write nothing.
    void ExpectRefused(const std::string& project, const std::string& err)
    {
        for (const std::vector<std::string>& words :
             {std::vector<std::string>{"create", project, "--to", out},
              {"show", project},
              {"resave", project, disk.Path("new.qnp")}}) {
            const ProgramRun run = Quillonc(words);
            EXPECT_EQ(run.exitCode, 3) << words[0];
            EXPECT_EQ(run.out, "") << words[0];
            EXPECT_EQ(run.err, err) << words[0];
        }
        EXPECT_EQ(Names("out"), kNothing);
        EXPECT_FALSE(disk.Has("new.qnp"));
    }
    void ExpectNoProject(const std::string& project)
    {
        ExpectRefused(project,
                      "Fel filformat: Kan ej öppna! Filen är ej en Quillon 2004 projektfil.\n'" +
                          WindowsPath(project) + "' är inget projekt.\n");
    }
};

TEST_F(BadInput, AProjectThatIsNotThere)
{
    const std::string file = disk.Path("gone.qnp");
    ExpectRefused(file, "Filen '" + WindowsPath(file) + "' finns inte.\n");
    const std::string folder = disk.Path("gone/p.qnp");
    ExpectRefused(folder, "Katalogen till '" + WindowsPath(folder) + "' finns inte.\n");
}

TEST_F(BadInput, AnEmptyFile)
{
    disk.Put("empty.qnp", "");
    ExpectNoProject(disk.Path("empty.qnp"));
}

TEST_F(BadInput, AFileOfAnotherKind)
{
    disk.Put("other.qnp", "[ID]\r\nApp = Something\r\n");
    ExpectNoProject(disk.Path("other.qnp"));
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += static_cast<char>(i * 7);
    disk.Put("binary.qnp", bytes);
    ExpectNoProject(disk.Path("binary.qnp"));
}

TEST_F(BadInput, AFolderInsteadOfAProject)
{
    disk.PutFolder("folder.qnp");
    const std::string folder = disk.Path("folder.qnp");
    ExpectRefused(folder, "'" + WindowsPath(folder) + "' är en katalog och ingen projektfil.\n");
}

TEST_F(BadInput, AProjectThatMayNotBeRead)
{
    const std::string project = SaveProjectOf({"a.txt"});
    chmod(project.c_str(), 0);
    const ProgramRun run = Quillonc({"create", project, "--to", out}, RunAs::Nobody);
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "Åtkomst nekas till '" + WindowsPath(project) + "'.\n");
    EXPECT_EQ(Names("out"), kNothing);
}

TEST_F(BadInput, AFailureAsAnObject)
{
    const Json object = ObjectOf(Quillonc({"show", disk.Path("gone.qnp"), "--json"}));
    EXPECT_EQ(object["error"], "Filen '" + WindowsPath(disk.Path("gone.qnp")) + "' finns inte.");
    EXPECT_EQ(object["exitCode"], 3);
}

TEST_F(BadInput, AProjectThatIsCutAnywhere)
{
    SaveProjectOf({"a.txt", "Data\\b.txt"});
    const std::string whole = disk.Get("p.qnp");
    const std::size_t lastRowEnd = whole.rfind("....");
    const Text named = Text("'").append(WindowsPath(disk.Path("cut.qnp"))).append("' är ");
    constexpr std::size_t kCuts = 40;
    for (std::size_t cut = 0; cut < kCuts; ++cut) {
        const std::size_t length = lastRowEnd * cut / kCuts;
        disk.Put("cut.qnp", whole.substr(0, length));
        const ProgramRun run = Create(disk.Path("cut.qnp"));
        EXPECT_EQ(run.exitCode, 3) << length;
        EXPECT_EQ(run.out, "") << length;
        EXPECT_THAT(run.err, HasSubstr(named)) << length;
        EXPECT_EQ(Names("out"), kNothing) << length;
    }
}

TEST_F(BadInput, APartOfAProjectIsShownAndSavedWithAWarning)
{
    SaveProjectOf({"a.txt", "Data\\b.txt"});
    const std::string whole = disk.Get("p.qnp");
    disk.Put("cut.qnp", whole.substr(0, whole.find("F2=") + 5));
    const std::string cut = disk.Path("cut.qnp");
    const Text warning = "Projektet '" + WindowsPath(cut) +
                         "' är skadat eller avkortat: det som står efter felet är inte läst.\n";
    const ProgramRun show = Quillonc({"show", cut, "--json"});
    EXPECT_EQ(show.err, warning);
    EXPECT_EQ(ObjectOf(show)["isWhole"], false);
    const ProgramRun resave = Quillonc({"resave", cut, disk.Path("part.qnp")});
    EXPECT_EQ(resave.exitCode, 0);
    EXPECT_EQ(resave.err, warning);
    EXPECT_THAT(disk.Get("part.qnp"), HasSubstr("F1=a.txt;"));
}

TEST_F(BadInput, ASourceThatIsMissing)
{
    const ProgramRun run = Create(SaveProjectOf({"a.txt", "gone.txt"}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr("Skapar FILELIST.INF\nFil saknas! Avbryter processen.\n"));
    EXPECT_THAT(run.err, StartsWith("Fil saknas: En eller flera filer har försvunnit"));
    EXPECT_THAT(run.err, HasSubstr("s:\\gone.txt"));
    EXPECT_THAT(Names("out"), ElementsAre("DUNZIP32.DLL", "FILELIST.INF", "PACKAGE.SHA256",
                                          "QNS32X.BIN", "SETUP.EXE"));
}

TEST_F(BadInput, ASourceFolderThatIsMissing)
{
    const ProgramRun run = Create(SaveProjectOf({"Gone\\a.txt"}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr("Källkatalog existerar inte! Avbryter processen.\n"));
    EXPECT_THAT(run.err, StartsWith("Källkatalog existerar inte: En källkatalog till en fil"));
    EXPECT_THAT(run.err, EndsWith("\nKatalogen till 's:\\gone\\a.txt' finns inte.\n"));
    EXPECT_THAT(Names("out"), ElementsAre("DUNZIP32.DLL", "FILELIST.INF", "PACKAGE.SHA256",
                                          "QNS32X.BIN", "SETUP.EXE"));
}

TEST_F(BadInput, ASourceThatMayNotBeRead)
{
    chmod(disk.Path("src/a.txt").c_str(), 0);
    chmod(out.c_str(), 0777);
    const ProgramRun run =
        Quillonc({"create", SaveProjectOf({"a.txt"}), "--to", out}, RunAs::Nobody);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr(" DynaZip rapporterade fel #18!\n Felmeddelande: Saknar "
                                   "läsrättigheter till en eller flera filer!\n"));
    EXPECT_THAT(run.out, EndsWith("Processen avbruten!\n"));
    EXPECT_EQ(run.err, "Åtkomst nekas till 's:\\a.txt'.\n");
    EXPECT_THAT(Names("out"), ElementsAreArray(kAllButTheContainer));
}

// Files whose stated size is wrong look like files that change while they are read: those of /proc
// state 0 bytes, those of /sys a whole page.
class ChangingSource : public BadInput, public testing::WithParamInterface<const char*> {};

TEST_P(ChangingSource, IsRefusedByName)
{
    const char* changing = GetParam();
    if (!std::filesystem::exists(changing))
        GTEST_SKIP() << "this machine has no " << changing;
    std::filesystem::remove(disk.Path("src/a.txt"));
    std::filesystem::create_symlink(changing, disk.Path("src/a.txt"));
    const ProgramRun run = Create(SaveProjectOf({"Data\\b.txt", "a.txt"}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, EndsWith(" DynaZip rapporterade fel #5!\n Kan ej skapa FILEDATA.DAT\n"
                                  "Processen avbruten!\n"));
    EXPECT_EQ(run.err, "Filen 's:\\a.txt' ändrades medan den lästes.\n");
    EXPECT_THAT(Names("out"), ElementsAreArray(kAllButTheContainer));
}

INSTANTIATE_TEST_SUITE_P(WhileItIsRead, ChangingSource,
                         testing::Values("/proc/version", "/sys/devices/system/cpu/possible"),
                         [](const auto& file) {
                             return file.index == 0 ? std::string("Grows") : std::string("Shrinks");
                         });

TEST_F(BadInput, APictureThatMayNotBeRead)
{
    disk.Put("src/bild.bmp", "BM");
    chmod(disk.Path("src/bild.bmp").c_str(), 0);
    chmod(out.c_str(), 0777);
    Project project = MakeProject({"a.txt"});
    project.DesBackground.PictureFilename = "s:\\bild.bmp";
    const ProgramRun run = Quillonc({"create", Save(project), "--to", out}, RunAs::Nobody);
    EXPECT_EQ(run.exitCode, 1);
    // The status lines do not mention it.
    EXPECT_THAT(run.out, EndsWith("Färdig!\n"));
    EXPECT_EQ(run.err, "Åtkomst nekas till 's:\\bild.bmp'.\n");
    EXPECT_FALSE(disk.Has("out/DESOBJ.DAT"));
}

TEST_F(BadInput, RowsThatAreAllFolders)
{
    const ProgramRun run = Create(SaveProjectOf({"Tom\\"}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr(" DynaZip rapporterade fel #12!\n"));
    EXPECT_EQ(run.err, "Fillistan har inga filer att packa, endast tomma kataloger.\n");
    EXPECT_THAT(Names("out"), ElementsAreArray(kAllButTheContainer));
}

TEST_F(BadInput, ADestinationThatIsReadOnly)
{
    const std::string project = SaveProjectOf({"a.txt"});
    chmod(out.c_str(), 0555);
    const ProgramRun run = Quillonc({"create", project, "--to", out}, RunAs::Nobody);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr("Kopierar SETUP.EXE\nFel! Kan ej kopiera SETUP.EXE!\n"));
    EXPECT_EQ(run.err, "Åtkomst nekas till '" + WindowsPath(out) + "\\SETUP.EXE'.\n");
    EXPECT_EQ(Names("out"), kNothing);
}

TEST_F(BadInput, ADestinationThatCannotBeMade)
{
    out = disk.Path("src/a.txt/sub");
    const ProgramRun run = Create(SaveProjectOf({"a.txt"}), {"--continue"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, EndsWith("Kan ej skapa katalog: Kan ej skapa katalogen "
                                  "S:\\a.txt\\sub!\n"));
    EXPECT_EQ(disk.Get("src/a.txt"), "some text");
}

TEST_F(BadInput, NoDestinationAtAll)
{
    const ProgramRun run = Quillonc({"create", SaveProjectOf({"a.txt"})});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, StartsWith("Destinationskatalog saknas: "));
}

TEST_F(BadInput, ADestinationThatIsFull)
{
    disk.Put("src/big.bin", std::string(300000, 'x'));
    const std::string project = SaveProjectOf({"big.bin"});
    const std::string script = "mount -t tmpfs -o size=64k none \"$0\" || exit 99; "
                               "\"$@\"; code=$?; ls \"$0\"; exit $code";
    const ProgramRun run =
        RunProgram({"/usr/bin/unshare", "-rm", "/bin/sh", "-c", script, out,
                    disk.Path("tool/quillonc"), "create", project, "--to", out, "--no-compress"},
                   environment);
    if (run.exitCode == 99 || run.err.find("unshare") != std::string::npos)
        GTEST_SKIP() << "this machine mounts no small disk for a test: " << run.err;
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr(" DynaZip rapporterade fel #15!\n"));
    EXPECT_THAT(run.err, StartsWith("Disken är full: '" + WindowsPath(out)));
    EXPECT_THAT(run.out,
                EndsWith("Processen avbruten!\nDUNZIP32.DLL\nFILELIST.INF\n"
                         "PACKAGE.SHA256\nQNS32X.BIN\nQNSETUP.INF\nSETUP.EXE\nSWEDISH.LNG\n"));
}

TEST_F(BadInput, AProjectWithoutRows)
{
    const ProgramRun run = Create(SaveProjectOf({}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Fel: Kan ej skapa! Det finns inga filer i fillistan!\n");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Names("out"), kNothing);
}

TEST_F(BadInput, TwoRowsWithOneSource)
{
    Project project = MakeProject({"a.txt", "a.txt"});
    project.Files.rows[1][Filename] = "copy.txt";
    EXPECT_EQ(Create(Save(project)).exitCode, 0);
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
    const Json rows = ObjectOf(Quillonc({"list", out, "--json"}))["rows"];
    EXPECT_EQ(rows[0]["entry"], "a.txt");
    EXPECT_EQ(rows[1]["entry"], "a.txt");
    EXPECT_EQ(rows[1]["name"], "copy.txt");
}

TEST_F(BadInput, ASourceWithItsParentInThePath)
{
    const ProgramRun run = Create(SaveProjectOf({"Data\\..\\a.txt", "..\\..\\Data\\b.txt"}));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
    const Json rows = ObjectOf(Quillonc({"list", out, "--json"}))["rows"];
    EXPECT_EQ(rows[0]["entry"], "a.txt");
    EXPECT_EQ(rows[1]["entry"], "data/b.txt");
}

TEST_F(BadInput, PathsOfMoreThanThreeHundredCharacters)
{
    std::string folder;
    for (int i = 0; i < 5; ++i)
        folder.append(60, static_cast<char>('a' + i)).append("/");
    disk.Put("src/" + folder + "c.txt", "deep text");
    const std::string project = SaveProjectOf({ReplaceAll(folder, "/", "\\") + "c.txt"});
    EXPECT_EQ(Create(project).exitCode, 0);
    const ProgramRun verify = Quillonc({"verify", out});
    EXPECT_EQ(verify.exitCode, 0) << verify.out;

    // The tool's path functions answer with 300 characters at most.
    const std::size_t room = 300 - WindowsPath(disk.Path("deep/")).size();
    out = disk.Path("deep/" + folder.substr(0, room));
    std::filesystem::create_directories(out);
    ASSERT_EQ(WindowsPath(out).size(), 300U);
    EXPECT_EQ(Create(project).exitCode, 0);
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);

    out += "x";
    std::filesystem::create_directories(out);
    const ProgramRun run = Create(project);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "Destinationskatalogen är längre än 300 tecken: '" + WindowsPath(out) + "'.\n");
    EXPECT_TRUE(std::filesystem::is_empty(out));
}

TEST_F(BadInput, ANameThatTheCodePageLacks)
{
    // Host paths may have any name; only what a project holds is bound to the code page.
    disk.PutFolder("Ωμέγα 🙂");
    out = disk.Path("Ωμέγα 🙂");
    const std::string project = Save(MakeProject({"a.txt"}), "πρόγραμμα.qnp");
    const ProgramRun run = Create(project);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);

    // A project made elsewhere has lost the name already, and the row says so.
    disk.Put("src/Ω.txt", "text");
    const ProgramRun lost = Create(SaveProjectOf({"?.txt"}));
    EXPECT_EQ(lost.exitCode, 1);
    EXPECT_EQ(lost.out, "");
    EXPECT_THAT(lost.err, HasSubstr("Rad 1 ('?.txt'): Namnet '?.txt' fungerar inte i Windows"));

    const ProgramRun gone = Create(SaveProjectOf({"gone.txt"}));
    EXPECT_EQ(gone.exitCode, 1);
    EXPECT_THAT(gone.out, HasSubstr("Fil saknas! Avbryter processen.\n"));
    EXPECT_THAT(gone.err, EndsWith("\nFilen 's:\\gone.txt' finns inte.\n"));
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0) << "the one of before stays as it was";
    EXPECT_FALSE(disk.Has("Ωμέγα 🙂/PACKAGE.NEW"));
}

TEST_F(BadInput, AToolWithoutItsRuntime)
{
    std::filesystem::remove(disk.Path("tool/Release/DUNZIP32.DLL"));
    const ProgramRun run = Create(SaveProjectOf({"a.txt"}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, EndsWith("Fel! Kan ej kopiera DUNZIP32.DLL!\n"));
    EXPECT_EQ(run.err, "Filen '" + WindowsPath(disk.Path("tool")) +
                           "\\Release\\DUNZIP32.DLL' finns inte.\n");
}

TEST_F(BadInput, AFolderThatIsNoPackage)
{
    for (const char* call : {"list", "verify"}) {
        const ProgramRun gone = Quillonc({call, disk.Path("gone")});
        EXPECT_EQ(gone.exitCode, 3);
        EXPECT_EQ(gone.err, "Katalogen '" + WindowsPath(disk.Path("gone")) + "' finns inte.\n");
    }
    const ProgramRun list = Quillonc({"list", out});
    EXPECT_EQ(list.exitCode, 3);
    EXPECT_THAT(list.err, HasSubstr("FILELIST.INF saknas."));
    const ProgramRun verify = Quillonc({"verify", out});
    EXPECT_EQ(verify.exitCode, 1);
    EXPECT_THAT(verify.out, HasSubstr("QNSETUP.INF saknas.\n"));
}

TEST_F(BadInput, ADamagedPackage)
{
    Create(SaveProjectOf({"a.txt", "Data\\b.txt"}), {"--no-compress"});
    std::string bytes = disk.Get("out/FILEDATA.DAT");
    const std::size_t place = bytes.find("more text");
    ASSERT_NE(place, std::string::npos);
    bytes[place] = 'M';
    disk.Put("out/FILEDATA.DAT", bytes);
    const ProgramRun run = Quillonc({"verify", out});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "FILEDATA.DAT: posten 'data/b.txt' (F2): innehållet är skadat "
                       "(kontrollsumman (CRC) stämmer inte).\n"
                       "'FILEDATA.DAT' är inte längre som när paketet skapades "
                       "(PACKAGE.SHA256).\n");
    EXPECT_EQ(ObjectOf(Quillonc({"verify", out, "--json"}))["isWhole"], false);
}

} // namespace
} // namespace quillon::test
