// quillonc as a whole program: packages made on every medium, listed and verified.
#include "workshop.h"

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// Bytes that no compression makes fewer.
std::string Noise(std::size_t size)
{
    std::string bytes(size, '\0');
    std::uint32_t state = 12345;
    for (char& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    return bytes;
}

class Packages : public Workshop {
protected:
    Packages()
    {
        disk.Put("src/Prog.exe", std::string(5000, 'p'));
        disk.Put("src/Data/Läs mig.txt", "text");
        project = SaveProjectOf({"Prog.exe", "Data\\Läs mig.txt", "Tom\\"});
    }

    std::string project;
};

TEST_F(Packages, ACompressedCdIsMadeListedAndVerified)
{
    const std::string before = disk.Get("p.qnp");
    const ProgramRun create = Create(project);
    EXPECT_EQ(create.exitCode, 0);
    EXPECT_EQ(create.err, "");
    EXPECT_EQ(create.out, "** Skapar 32 bitars installationsuppsättning för CD (komprimerat) **\n"
                          "Kopierar SETUP.EXE\n"
                          "Kopierar QNS32X.EXE  (Small Version)\n"
                          "Kopierar DUNZIP32.DLL\n"
                          "Skapar FILELIST.INF\n"
                          "Skapar QNSETUP.INF\n"
                          "Kopierar SWEDISH.LNG\n"
                          "Öppnar DESOBJ.DAT\n"
                          "Kopierar och komprimerar filer\n"
                          "Stänger DESOBJ.DAT\n"
                          "Inga skärmobjekt kopierade - raderar DESOBJ.DAT\n"
                          "Öppnar FILEDATA.DAT\n"
                          "Adderar 'Prog.exe'\n"
                          "Adderar 'Läs mig.txt'\n"
                          "Kopierar och komprimerar filer\n"
                          "Skriver filtabell\n"
                          "Stänger FILEDATA.DAT\n"
                          "Antal filer som adderats till FILEDATA.DTA: 3 st\n"
                          "Färdig!\n");
    EXPECT_THAT(Names("out"),
                ElementsAre("DUNZIP32.DLL", "FILEDATA.DAT", "FILELIST.INF", "PACKAGE.SHA256",
                            "QNS32X.BIN", "QNSETUP.INF", "SETUP.EXE", "SWEDISH.LNG"));
    EXPECT_EQ(disk.Get("p.qnp"), before);

    const ProgramRun verify = Quillonc({"verify", out});
    EXPECT_EQ(verify.out, "Installationen är hel: 3 rader.\n");
    EXPECT_EQ(verify.exitCode, 0);
    EXPECT_EQ(verify.err, "");

    const ProgramRun list = Quillonc({"list", out});
    EXPECT_EQ(list.exitCode, 0);
    EXPECT_THAT(list.out, HasSubstr("Rad  Namn         Destination   Storlek  Packad  CRC"));
    EXPECT_THAT(list.out, HasSubstr("F2   Läs mig.txt  %DESTDIR            4       4  3B8BA7C7  "
                                    "data/läs mig.txt\n"));
}

TEST_F(Packages, AListAsAnObjectTellsWhatServesEachRow)
{
    Create(project);
    const Json object = ObjectOf(Quillonc({"list", out, "--json"}));
    EXPECT_EQ(object["faults"].size(), 0U);
    ASSERT_EQ(object["rows"].size(), 3U);
    const Json& file = object["rows"][0];
    EXPECT_EQ(file["row"], "F1");
    EXPECT_EQ(file["name"], "Prog.exe");
    EXPECT_EQ(file["place"], "container");
    EXPECT_EQ(file["entry"], "prog.exe");
    EXPECT_EQ(file["size"], 5000);
    EXPECT_EQ(file["entrySize"], 5000);
    EXPECT_LT(file["packedSize"], 100);
    EXPECT_EQ(file["crc"].get<std::string>().size(), 8U);
    EXPECT_EQ(object["rows"][2]["place"], "none");
    EXPECT_FALSE(object["rows"][2].contains("entry"));
}

TEST_F(Packages, AVerifiedPackageAsAnObject)
{
    Create(project);
    const Json object = ObjectOf(Quillonc({"verify", out, "--json"}));
    EXPECT_EQ(object["isWhole"], true);
    EXPECT_EQ(object["rows"], 3);
    EXPECT_EQ(object["faults"].size(), 0U);
}

TEST_F(Packages, TheProjectsOwnValuesHoldWithoutOptions)
{
    Project own = MakeProject({"Prog.exe"});
    own.LastDirectories.CreatationDestDir = "S:\\package";
    own.Media.TargetMedia = 3;
    disk.PutFolder("src/package");
    const ProgramRun run = Quillonc({"create", Save(own, "own.qnp")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("för CD (träd, okomprimerat) **"));
    EXPECT_TRUE(disk.Has("src/package/FILELIST.INF"));
}

TEST_F(Packages, ATreeHoldsNoFilesOfTheProject)
{
    const ProgramRun run = Create(project, {"--medium", "tree"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_FALSE(disk.Has("out/FILEDATA.DAT"));
    EXPECT_TRUE(disk.Has("out/QNSETUP.INF"));
}

TEST_F(Packages, SeparateFilesLieInAFolderOfTheirOwn)
{
    const ProgramRun run = Create(project, {"--medium", "cd", "--separate"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(Names("out/SetupFiles"), ElementsAre("Läs mig.txt_", "Prog.exe_"));
    EXPECT_EQ(disk.Get("out/SetupFiles/Prog.exe_"), std::string(5000, 'p'));
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
    const Json rows = ObjectOf(Quillonc({"list", out, "--json"}))["rows"];
    EXPECT_EQ(rows[0]["place"], "file");
}

TEST_F(Packages, NothingIsCompressedWhereThatIsAskedFor)
{
    Create(project, {"--no-compress"});
    const Json rows = ObjectOf(Quillonc({"list", out, "--json"}))["rows"];
    EXPECT_EQ(rows[0]["packedSize"], 5000);
}

TEST_F(Packages, AreSmallWhereThatIsAskedFor)
{
    const ProgramRun run = Create(project, {"--medium", "cd", "--small"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(disk.Get("out/DUNZIP32.DLL"), "runtime: Solid/DUNZIP32.DLL");
    const std::string container = disk.Get("out/FILEDATA.DAT");
    EXPECT_EQ(container.substr(container.size() - 72, 8), "QNSMALL\x1A");
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
    const Json rows = ObjectOf(Quillonc({"list", out, "--json"}))["rows"];
    EXPECT_EQ(rows[0]["place"], "container");
    EXPECT_EQ(rows[0]["entrySize"], 5000);
    EXPECT_TRUE(rows[0]["packedSize"].is_null());
    EXPECT_TRUE(rows[0]["crc"].is_null());
    EXPECT_THAT(Quillonc({"list", out}).out, HasSubstr("5000       -  -    "));
    disk.PutFolder("unpacked");
    const ProgramRun extract = Quillonc({"extract", out, "--to", disk.Path("unpacked")});
    EXPECT_EQ(extract.exitCode, 0) << extract.err;
    EXPECT_EQ(disk.Get("unpacked/DESTDIR/Prog.exe"), std::string(5000, 'p'));
}

TEST_F(Packages, AreNotSmallWhereTheyCannotBe)
{
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"--medium", "floppy", "--small"}, "--small gäller bara mediet cd, inte floppy."},
        {{"--medium", "tree", "--small"}, "--small gäller bara mediet cd, inte tree."},
        {{"--medium", "internet", "--small"}, "--small gäller bara mediet cd, inte internet."},
        {{"--medium", "cd", "--no-compress", "--small"},
         "--small och --no-compress utesluter varandra."},
        {{"--medium", "cd", "--separate", "--small"}, "--small och --separate utesluter varandra."},
    };
    for (const auto& [switches, words] : cases) {
        const ProgramRun run = Create(project, switches);
        EXPECT_EQ(run.exitCode, 2) << words;
        EXPECT_THAT(run.err, HasSubstr(words));
        EXPECT_FALSE(disk.Has("out/QNSETUP.INF"));
    }
}

TEST_F(Packages, AreSmallWhereTheProjectSaysSo)
{
    ASSERT_EQ(Quillonc({"set", project, "Compression.SmallContainer=1"}).exitCode, 0);
    EXPECT_EQ(Create(project, {"--medium", "cd"}).exitCode, 0);
    EXPECT_EQ(disk.Get("out/DUNZIP32.DLL"), "runtime: Solid/DUNZIP32.DLL");
    EXPECT_EQ(Create(project, {"--medium", "tree"}).exitCode, 0);
    EXPECT_EQ(disk.Get("out/DUNZIP32.DLL"), "runtime: DUNZIP32.DLL");
}

TEST_F(Packages, TheTargetSystemDecidesWhichSystemFilesAreLeftOut)
{
    disk.Put("src/msvcrt.dll", "system file");
    Project systems = MakeProject({"Prog.exe", "msvcrt.dll"});
    systems.Files.rows[1][Destination] = "%SYSDIR";
    const std::string saved = Save(systems);
    Create(saved, {"--os", "all"});
    EXPECT_EQ(ObjectOf(Quillonc({"list", out, "--json"}))["rows"].size(), 2U);
    Create(saved, {"--os", "new"});
    EXPECT_EQ(ObjectOf(Quillonc({"list", out, "--json"}))["rows"].size(), 1U);
}

TEST_F(Packages, ARunAsAnObjectPrintsNothingElse)
{
    const ProgramRun run = Create(project, {"--json"});
    const Json object = ObjectOf(run);
    EXPECT_EQ(object["result"], "done");
    EXPECT_EQ(object["medium"], "cd");
    EXPECT_EQ(object["files"], 3);
    EXPECT_EQ(object["status"].back(), "Färdig!");
    EXPECT_EQ(object["boxes"].size(), 0U);
}

TEST_F(Packages, TheInternetMediumIsOneProgram)
{
    const ProgramRun run = Create(project, {"--medium", "internet"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("\nSkapar SELF.EXE (självuppackande installationsprogram)\n"
                                   "Raderar temporära filer\nFärdig!\n"));
    EXPECT_EQ(Names("out"), std::vector<std::string>{"self.exe"});
    const std::string first = disk.Get("out/self.exe");

    // Once more, and the bytes are the same.
    const Json object = ObjectOf(Create(project, {"--medium", "internet", "--json"}));
    EXPECT_EQ(object["result"], "done");
    EXPECT_EQ(object["medium"], "internet");
    EXPECT_TRUE(disk.Get("out/self.exe") == first);
}

TEST_F(Packages, AnInternetPackageWithoutItsExtractorIsToldWithTheFile)
{
    std::filesystem::remove(disk.Path("tool/Release/QNSELFX.EXE"));
    const ProgramRun run = Create(project, {"--medium", "internet"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out,
                HasSubstr("Fel #53 inträffade när en självuppackande installation skulle skapas!\n"
                          "Kan ej skapa SELF.EXE!\n"));
    EXPECT_THAT(run.err, HasSubstr("QNSELFX.EXE"));
}

TEST_F(Packages, AQuestionStopsUnlessToldToGoOn)
{
    out = disk.Path("ny/katalog");
    const Text folder = "Z:" + ReplaceAll(out, "/", "\\");
    const Text box = "Katalogen existerar inte: Katalogen '" + folder +
                     "' existerar inte på hårddisken! Vill du skapa den nu?\n";
    const ProgramRun stopped = Create(project);
    EXPECT_EQ(stopped.exitCode, 1);
    EXPECT_EQ(stopped.err, box);
    EXPECT_EQ(stopped.out, "");
    EXPECT_FALSE(disk.Has("ny"));

    const ProgramRun wentOn = Create(project, {"--continue"});
    EXPECT_EQ(wentOn.exitCode, 0);
    EXPECT_EQ(wentOn.err, box);
    EXPECT_TRUE(disk.Has("ny/katalog/SETUP.EXE"));

    out = disk.Path("tredje");
    const Json object = ObjectOf(Create(project, {"--json"}));
    EXPECT_EQ(object["result"], "stopped");
    EXPECT_EQ(object["boxes"][0]["title"], "Katalogen existerar inte");
    EXPECT_EQ(object["boxes"][0]["answer"], false);
}

TEST_F(Packages, AnAnswerThatStopsMayBeYes)
{
    disk.Put("src/shdocvw.dll", "system file");
    const std::string saved = SaveProjectOf({"shdocvw.dll"});
    const ProgramRun stopped = Create(saved);
    EXPECT_EQ(stopped.exitCode, 1);
    EXPECT_THAT(stopped.err, testing::StartsWith("Olämplig systemfil: "));
    EXPECT_EQ(Names("out"), std::vector<std::string>{});
    EXPECT_EQ(Create(saved, {"--continue"}).exitCode, 0);
}

class Floppies : public Packages {
protected:
    static constexpr std::uintmax_t kDisk = 1457664;

    std::uintmax_t SizeOf(const std::string& file) const
    {
        return std::filesystem::file_size(disk.Path(file));
    }
    std::uintmax_t UsedOnFirstDisk() const
    {
        std::uintmax_t used = 0;
        for (const auto& entry : std::filesystem::directory_iterator(out))
            used += entry.is_regular_file() ? (entry.file_size() + 511) / 512 * 512 : 0;
        return used;
    }
};

TEST_F(Floppies, AskForTheFirstDisk)
{
    const ProgramRun run = Create(project, {"--medium", "floppy"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "Diskett: Stoppa in diskett nr 1!\n");
    EXPECT_EQ(Names("out"), std::vector<std::string>{});
}

TEST_F(Floppies, FillOneDiskAfterTheOther)
{
    disk.Put("src/big.bin", Noise(3500000));
    const std::string saved = SaveProjectOf({"big.bin"});
    // The second time finds the disks of the first, and makes the same of them.
    for (int time = 1; time <= 2; ++time) {
        const ProgramRun run = Create(saved, {"--medium", "floppy", "--continue"});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_THAT(run.out, HasSubstr("Antal skapade installationsdisketter: 3 st\nFärdig!\n"));
        EXPECT_LE(UsedOnFirstDisk(), kDisk);
        EXPECT_GT(UsedOnFirstDisk(), kDisk - 4096) << "room for the manifest";
        EXPECT_THAT(Names("out/disk2"), ElementsAre("FILEDATA.DAT"));
        EXPECT_EQ(SizeOf("out/disk2/FILEDATA.DAT"), kDisk);
        EXPECT_LT(SizeOf("out/disk3/FILEDATA.DAT"), kDisk);
        EXPECT_FALSE(disk.Has("out/disk4"));
        EXPECT_THAT(disk.Get("out/QNSETUP.INF"), testing::ContainsRegex("Floppies *= *3"));
        const ProgramRun verify = Quillonc({"verify", out});
        EXPECT_EQ(verify.exitCode, 0) << verify.out;
    }
    std::filesystem::remove(disk.Path("out/disk2/FILEDATA.DAT"));
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 1);

    disk.Put("src/big.bin", Noise(2000000));
    EXPECT_EQ(Create(saved, {"--medium", "floppy", "--continue"}).exitCode, 0);
    EXPECT_TRUE(disk.Has("out/disk2"));
    EXPECT_FALSE(disk.Has("out/disk3"));
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
}

TEST_F(Floppies, TheRootOfADriveIsADiskOfItsOwnSize)
{
    disk.Put("src/big.bin", Noise(3500000));
    environment["QUILLON_DRIVES"] += ";A=" + disk.Path("out");
    const ProgramRun run =
        Quillonc({"create", SaveProjectOf({"big.bin"}), "--medium", "floppy", "--continue"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("Antal skapade installationsdisketter: 1 st"));
    EXPECT_GT(SizeOf("out/FILEDATA.DAT"), 3500000U);
}

TEST_F(Floppies, EndInAClearErrorWhereTheNextDiskCannotBeMade)
{
    disk.Put("src/big.bin", Noise(3500000));
    disk.Put("out/disk2", "a file stands in the way");
    const ProgramRun run = Create(SaveProjectOf({"big.bin"}), {"--medium", "floppy", "--continue"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr(" DynaZip rapporterade fel #14!\n"));
    EXPECT_THAT(run.out, HasSubstr("Processen avbruten!\n"));
    EXPECT_EQ(run.err, "Diskett: Stoppa in diskett nr 1!\nNästa diskett saknas.\n");
    EXPECT_THAT(run.out, Not(HasSubstr("Färdig!")));
}

} // namespace
} // namespace quillon::test
