#include "builder/create.h"

#include "archive/zip_reader.h"
#include "create_desk.h"
#include "formats/install_row.h"
#include "formats/package_manifest.h"
#include "formats/setup_information.h"
#include "support/golden.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::CreateDesk;
using test::ExpectedBox;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::UnorderedElementsAre;

namespace {

const ExpectedBox kFirstDisk{BoxKind::OkCancel, "Diskett", "Stoppa in diskett nr 1!"};
const ExpectedBox kCannotWrite{BoxKind::Critical, "Fel",
                               "Fel! Kan ej skriva till destinationsenheten!"};

// A project that takes every step of the pipeline.
void AskForEverything(CreateDesk& desk)
{
    desk.project.InstallOptions.UninstallSupport = kOn;
    desk.project.InstallOptions.CreateAutorunFile = kOn;
    desk.project.Files.rows[0][CopyOptions] = "VRA";
    desk.project.DialogBoxes.LicenseInfoRtfDlg = 1;
    desk.project.DialogBoxData.LicenseFilenameRtf = "C:\\Data\\licens.rtf";
    desk.machine.files.Put("C:\\Data\\licens.rtf", "{\\rtf1}");
    desk.project.DesBackground.PictureFilename = "C:\\Bilder\\Bakgrund.JPG";
    desk.machine.files.Put("C:\\Bilder\\Bakgrund.JPG", "jpeg");
    desk.AddFile("b.txt");
    FileListRow folder;
    folder[Filename] = kEmptyFolderName;
    folder[Destination] = "%DESTDIR\\Tom";
    desk.project.Files.rows.push_back(folder);
}

const std::vector<Text> kEveryRuntimeLine = {
    "Kopierar SETUP.EXE",     "Kopierar QNS32X.EXE  (Full Version)",
    "Kopierar DUNZIP32.DLL",  "Kopierar QNREG32.EXE",
    "Kopierar QNXREG2.EXE",   "Kopierar QNXUNIN.EXE",
    "Kopierar LICENSE.RTF",   "Skapar AUTORUN.INF",
    "Skapar FILELIST.INF",    "Skapar QNSETUP.INF",
    "Kopierar SWEDISH.LNG",   "Öppnar DESOBJ.DAT",
    "Adderar 'Bakgrund.JPG'", "Kopierar och komprimerar filer",
    "Stänger DESOBJ.DAT"};

std::vector<Text> Lines(std::initializer_list<std::vector<Text>> parts)
{
    std::vector<Text> lines;
    for (const std::vector<Text>& part : parts)
        lines.insert(lines.end(), part.begin(), part.end());
    return lines;
}

} // namespace

TEST(RunCreate, TellsEveryStepOfACompressedCd)
{
    CreateDesk desk;
    AskForEverything(desk);
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(desk.statusLines,
                ElementsAreArray(Lines(
                    {{"** Skapar 32 bitars installationsuppsättning för CD (komprimerat) **"},
                     kEveryRuntimeLine,
                     {"Öppnar FILEDATA.DAT", "Adderar 'a.txt'", "Adderar 'b.txt'",
                      "Kopierar och komprimerar filer", "Skriver filtabell", "Stänger FILEDATA.DAT",
                      "Antal filer som adderats till FILEDATA.DTA: 3 st", "Färdig!"}})));
    EXPECT_EQ(desk.beeps, 1);
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
    EXPECT_TRUE(desk.form.isCmdOptionsEnabled);
    EXPECT_THAT(desk.Package(),
                UnorderedElementsAre("SETUP.EXE", "QNS32X.BIN", "DUNZIP32.DLL", "QNREG32.BIN",
                                     "QNXREG2.BIN", "QNXUNIN.BIN", "LICENSE.RTF", "AUTORUN.INF",
                                     "FILELIST.INF", "QNSETUP.INF", "SWEDISH.LNG", "DESOBJ.DAT",
                                     "FILEDATA.DAT", "PACKAGE.SHA256"));
}

TEST(RunCreate, TellsEveryStepOfATree)
{
    CreateDesk desk;
    AskForEverything(desk);
    desk.Choose(Medium::CdTree);
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_THAT(
        desk.statusLines,
        ElementsAreArray(
            Lines({{"** Skapar 32 bitars installationsuppsättning för CD (träd, okomprimerat) **"},
                   kEveryRuntimeLine,
                   {"Färdig!"}})));
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
    EXPECT_TRUE(desk.Has("DESOBJ.DAT"));
    EXPECT_TRUE(desk.Has("FILELIST.INF"));
    EXPECT_TRUE(desk.Has("QNSETUP.INF"));
}

TEST(RunCreate, TellsEveryStepOfFloppies)
{
    CreateDesk desk;
    AskForEverything(desk);
    desk.Choose(Medium::Floppy);
    EXPECT_EQ(desk.Create({kFirstDisk}), CreateResult::Done);
    EXPECT_THAT(
        desk.statusLines,
        ElementsAreArray(Lines({{"** Skapar 32 bitars installationsuppsättning för diskett **"},
                                kEveryRuntimeLine,
                                {"Öppnar FILEDATA.DAT", "Adderar 'a.txt'", "Adderar 'b.txt'",
                                 "Kopierar och komprimerar filer", "Stänger FILEDATA.DAT",
                                 "Antal filer som adderats till FILEDATA.DTA: 3 st",
                                 "Uppdaterar QNSETUP.INF med diskettinformation",
                                 "Antal skapade installationsdisketter: 1 st", "Färdig!"}})));
    const std::string written = desk.Get("QNSETUP.INF");
    EXPECT_NE(written.find("TargetMedia = 1\r\nFloppies=1\r\n\r\n[Compression]"), Text::npos);
    EXPECT_EQ(ReadSetupInformation(written).Floppies, 1);
}

TEST(RunCreate, ClearsTheInternetFolderAndAsksForTheRest)
{
    CreateDesk desk;
    desk.Choose(Medium::Internet);
    for (const char* name : {"INSTALL.ZIP", "INSTALL.ADX", "self.exe", "kvar.txt"})
        desk.machine.files.Put(Text("C:\\Ut\\") + name, "old");
    desk.machine.files.Put("C:\\Ut\\INSTALL.ADX", "Quillon self-extracting program 1\r\n");
    const ExpectedBox notEmpty{
        BoxKind::YesNo, "Katalogen är ej tom",
        "Katalogen 'C:\\Ut', där den självuppackande installationsfilen ska skapas i är ej tom! "
        "Katalogen bör vara tom eftersom samtliga filer i denna katalog kommer att adderas till "
        "den självuppackande filen, varvid det finns risk att oönskade filer kommer ingå i "
        "installationsprogrammet! Vill du fortsätta?",
        Answer::No};
    EXPECT_EQ(desk.Create({notEmpty}), CreateResult::Stopped);
    // The program of an earlier run is kept: it comes back where no new one is made.
    EXPECT_THAT(desk.Package(), ElementsAre("kvar.txt", "self.exe"));
    EXPECT_THAT(
        desk.statusLines,
        ElementsAre("** Skapar 32 bitars installationsuppsättning för Internet **", "Avbryter!"));
    EXPECT_EQ(desk.stops, std::vector(1, Ask::Stops::OnNo));
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
    EXPECT_TRUE(desk.form.isCmdOptionsEnabled);
    EXPECT_EQ(desk.beeps, 0);
}

TEST(RunCreate, DoesNotAskForAnInternetFolderThatHoldsFoldersAlone)
{
    CreateDesk desk;
    desk.Choose(Medium::Internet);
    desk.machine.files.PutFolder("C:\\Ut\\mapp");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
}

TEST(RunCreate, TellsTheToolsOptions)
{
    CreateDesk desk;
    desk.options.CreateZipLogFile = kOn;
    desk.options.UseTempZipPath = kOn;
    desk.machine.files.PutFolder("C:\\Quillon\\TEMP");
    desk.machine.files.Put("C:\\WINDOWS\\DYNAZIP.LOG", "left over");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.statusLines[1], "- Loggning av komprimeringsprocessen är påkopplad");
    EXPECT_EQ(desk.statusLines[2], "- Temporär komprimeringskatalog används");
    const std::string log = desk.machine.files.Get("C:\\WINDOWS\\DYNAZIP.LOG");
    EXPECT_FALSE(log.empty());
    EXPECT_EQ(log.find("left over"), Text::npos);
}

TEST(RunCreate, LeavesTheLogOfAnEarlierRunWithoutLogging)
{
    CreateDesk desk;
    desk.machine.files.Put("C:\\WINDOWS\\DYNAZIP.LOG", "left over");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.machine.files.Get("C:\\WINDOWS\\DYNAZIP.LOG"), "left over");
}

TEST(RunCreate, ClearsTheStatusListWhenItBegins)
{
    CreateDesk desk;
    desk.With([](CreateRun& run) {
        run.ask.AddStatusLine("of an earlier run");
        return RunCreate(run);
    });
    EXPECT_EQ(desk.statusLines.front(),
              "** Skapar 32 bitars installationsuppsättning för CD (komprimerat) **");
}

TEST(RunCreate, WritesAutorunOnEveryMedium)
{
    for (const Medium medium :
         {Medium::Floppy, Medium::CompressedCd, Medium::CdTree, Medium::Internet}) {
        CreateDesk desk;
        desk.Choose(medium);
        desk.project.InstallOptions.CreateAutorunFile = kOn;
        desk.project.InstallOptions.SetupName = "INSTALL.EXE";
        if (medium == Medium::Floppy)
            (void)desk.Create({kFirstDisk});
        else
            (void)desk.Create();
        EXPECT_TRUE(
            test::SameBytes(desk.Get("AUTORUN.INF"), test::GoldenFile("builder/AUTORUN.INF")));
    }
}

TEST(RunCreate, KeepsWhatTheFormChose)
{
    CreateDesk desk;
    desk.Choose(Medium::CdTree);
    desk.form.cbOS = 1;
    desk.form.UseCompression = 0;
    desk.project.InstallOptions.DontInstallSysFilesOnNewWin = kOff;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.project.Media.TargetMedia, Integer(Medium::CdTree));
    EXPECT_EQ(desk.project.OperatingSystem.TargetOperatingSystem, 1);
    EXPECT_EQ(desk.project.InstallOptions.DontInstallSysFilesOnNewWin, kOn);
    EXPECT_EQ(desk.project.Compression.CompressFiles, kOff);
    EXPECT_EQ(desk.project.ProgramGroup.ProgramGroup, "Demo");
}

TEST(RunCreate, ChangesTheProjectsMediumOnlyBehindTheRuntimeFiles)
{
    CreateDesk desk;
    desk.project.Media.TargetMedia = Integer(Medium::Floppy);
    desk.machine.files.RemoveFile("C:\\Quillon\\Release\\DUNZIP32.DLL");
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.project.Media.TargetMedia, Integer(Medium::Floppy));
    desk.machine.files.Put("C:\\Quillon\\Release\\DUNZIP32.DLL", "x");
    desk.project.Files.rows[0][Source] = "c:\\data\\saknas.txt";
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Fil saknas"}}), CreateResult::Failed);
    EXPECT_EQ(desk.project.Media.TargetMedia, Integer(Medium::CompressedCd));
}

// Kept: choosing new systems turns it on, and choosing all systems again leaves it on.
TEST(RunCreate, LeavesDontInstallSysFilesOnNewWinOn)
{
    CreateDesk desk;
    desk.project.InstallOptions.DontInstallSysFilesOnNewWin = kOff;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.project.InstallOptions.DontInstallSysFilesOnNewWin, kOff);
    desk.form.cbOS = 1;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    desk.form.cbOS = 0;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.project.InstallOptions.DontInstallSysFilesOnNewWin, kOn);
}

TEST(RunCreate, ChangesTheProjectAlsoWhenACheckStopsIt)
{
    CreateDesk desk;
    desk.form.cbOS = 1;
    desk.form.KeepCompressedFilesOneAndOne = 1;
    desk.project.ProjectName.ProjectName.clear();
    EXPECT_EQ(desk.Create({{BoxKind::Inform, "Fel"}}), CreateResult::Stopped);
    EXPECT_EQ(desk.project.OperatingSystem.TargetOperatingSystem, 1);
    EXPECT_EQ(desk.project.InstallOptions.DontInstallSysFilesOnNewWin, kOn);
    EXPECT_EQ(desk.project.Compression.KeepCompressedFilesOneAndOne, 1);
    EXPECT_EQ(desk.project.Compression.CompressFiles, kOff);
}

TEST(RunCreate, LeavesSevenSystemFilesOutForNewWindows)
{
    CreateDesk desk;
    desk.form.cbOS = 1;
    for (const char* name : {"OLEAUT32.DLL", "OLEPRO32.DLL", "ASYCFILT.DLL", "COMCAT.DLL",
                             "MSVCRT.DLL", "MFC42.DLL", "STDOLE2.TLB"})
        desk.AddFile(name, "x", "%SYSDIR");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(ReadInstallFileList(desk.Get("FILELIST.INF")).rows.size(), 1u);
    EXPECT_EQ(desk.statusLines[desk.statusLines.size() - 2],
              "Antal filer som adderats till FILEDATA.DTA: 1 st");
    EXPECT_EQ(ReadSetupInformation(desk.Get("QNSETUP.INF")).Files, 1);
}

class ManyFiles : public testing::TestWithParam<std::size_t> {
protected:
    ManyFiles()
    {
        desk.project.Files.rows.clear();
        const FileListRow row = desk.AddFile("a.txt", "x", "%DESTDIR\\b");
        desk.project.Files.rows.assign(GetParam() - 1, row);
        desk.AddFile("first.txt", "x", "%DESTDIR\\A");
    }

    CreateDesk desk;
};

TEST_P(ManyFiles, AreSortedByFolderForTheUninstallerFrom1000On)
{
    const bool sorts = GetParam() >= 1000;
    desk.project.InstallOptions.UninstallSupport = kOn;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.statusLines[1] == "Sorterar fillista efter destinationskatalog", sorts);
    EXPECT_EQ(desk.project.Files.rows.front()[Filename], sorts ? "first.txt" : "a.txt");
    EXPECT_EQ(desk.project.Files.sortKey, sorts ? Destination : Filename);
    EXPECT_FALSE(desk.project.Files.sortDescending);
    const InstallFileList written = ReadInstallFileList(desk.Get("FILELIST.INF"));
    ASSERT_EQ(written.rows.size(), GetParam());
    EXPECT_EQ(written.rows.front().name, sorts ? "first.txt" : "a.txt");
}

TEST_P(ManyFiles, KeepTheUsersOrderWithoutUninstaller)
{
    desk.Choose(Medium::CdTree);
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.project.Files.rows.front()[Filename], "a.txt");
    EXPECT_EQ(desk.statusLines[1], "Kopierar SETUP.EXE");
}

INSTANTIATE_TEST_SUITE_P(RunCreate, ManyFiles, testing::Values(999, 1000));

TEST(RunCreate, EndsAtAMissingSource)
{
    CreateDesk desk;
    desk.machine.files.Put("C:\\Ut\\QNSETUP.INF", "of an earlier run");
    desk.project.Files.rows.push_back(test::Row("x.txt", "%DESTDIR", "c:\\data\\x.txt"));
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Fil saknas",
                            "En eller flera filer har försvunnit från källkatalogen sedan du lade "
                            "in dessa i fillistan! Välj menyalternativet 'Lista'-'Uppdatera Lista' "
                            "för att lokalisera de saknade filerna i fillistan."}}),
              CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Fil saknas! Avbryter processen.");
    EXPECT_EQ(desk.failure->Path(), "c:\\data\\x.txt");
    EXPECT_EQ(desk.beeps, 1);
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
    EXPECT_FALSE(desk.Has("QNSETUP.INF"));
    EXPECT_TRUE(
        desk.Get("FILELIST.INF").ends_with("F1=a.txt;%DESTDIR;5;data; ;D ;0; ; ; ; ;0;\r\n"));
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
}

TEST(RunCreate, EndsAtAMissingSourceFolder)
{
    CreateDesk desk;
    desk.project.Files.rows[0][Source] = "c:\\borta\\a.txt";
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Källkatalog existerar inte",
                            "En källkatalog till en fil i fillistan existerar inte på hårddisken "
                            "längre! Antagligen har katalogen tagits bort eller så har den fått "
                            "ett nytt namn sedan du lade in filen till fillistan. Välj "
                            "menyalternativet 'Lista'-'Uppdatera Lista' för att lokalisera de "
                            "berörda filerna."}}),
              CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Källkatalog existerar inte! Avbryter processen.");
    EXPECT_FALSE(desk.Has("QNSETUP.INF"));
    EXPECT_TRUE(desk.Has("FILELIST.INF"));
}

TEST(RunCreate, TellsAnyOtherFailureOfTheFileListByItsNumber)
{
    for (const int number : {61, 70, 75}) {
        CreateDesk desk;
        desk.machine.files.Put("C:\\Ut\\QNSETUP.INF", "of an earlier run");
        desk.machine.files.RefuseOutput("C:\\Ut\\FILELIST.INF", number);
        EXPECT_EQ(desk.Create(), CreateResult::Failed);
        EXPECT_EQ(desk.statusLines.back(),
                  "Fel #" + NumberText(number) + " inträffade när FILELIST.INF skulle skapas.");
        EXPECT_TRUE(desk.Has("QNSETUP.INF"));
        EXPECT_EQ(desk.beeps, 1);
    }
}

TEST(RunCreate, TellsAFailureOfTheSetupInformationByItsNumber)
{
    for (const int number : {53, 61, 76}) {
        CreateDesk desk;
        desk.machine.files.RefuseOutput("C:\\Ut\\QNSETUP.INF", number);
        EXPECT_EQ(desk.Create(), CreateResult::Failed);
        EXPECT_EQ(desk.statusLines.back(),
                  "Fel #" + NumberText(number) + " inträffade när QNSETUP.INF skulle skapas.");
        EXPECT_EQ(desk.beeps, 1);
        EXPECT_FALSE(desk.Has("SWEDISH.LNG"));
    }
}

TEST(RunCreate, LeavesTheButtonsDisabledAfterAFailureThatNoStepHandles)
{
    CreateDesk desk;
    desk.project.Language.LanguageFile = "SAKNAS.LNG";
    EXPECT_EQ(desk.Create({kCannotWrite}), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines[desk.statusLines.size() - 2], "Kopierar SAKNAS.LNG");
    EXPECT_EQ(desk.statusLines.back(), "Kan ej skapa!");
    EXPECT_EQ(desk.failure->Path(), "C:\\Quillon\\Language\\SAKNAS.LNG");
    EXPECT_FALSE(desk.form.isCmdCreateEnabled);
    EXPECT_FALSE(desk.form.isCmdOptionsEnabled);
    EXPECT_EQ(desk.beeps, 0);
    EXPECT_TRUE(desk.Has("QNSETUP.INF"));
}

TEST(RunCreate, TakesNoLanguageFileFromOutsideItsFolder)
{
    for (const char* name : {"", "..\\QUILLON.INI", "..\\..\\SECRET.TXT", "../../SECRET.TXT",
                             "C:\\SECRET.TXT", "C:X"}) {
        CreateDesk desk;
        desk.machine.files.Put("C:\\SECRET.TXT", "secret");
        desk.machine.files.Put("C:\\Quillon\\QUILLON.INI", "settings");
        desk.project.Language.LanguageFile = name;
        EXPECT_EQ(desk.Create({kCannotWrite}), CreateResult::Failed) << name;
        ASSERT_TRUE(desk.failure) << name;
        EXPECT_EQ(desk.failure->Number(), ErrorNumber::kBadFileName);
        EXPECT_EQ(desk.failure->Path(), Text("C:\\Quillon\\Language\\") + name);
        EXPECT_FALSE(desk.machine.files.FileExists("C:\\QUILLON.INI")) << name;
    }
}

TEST(RunCreate, TakesARefusedAutorunFileForSuchAFailure)
{
    CreateDesk desk;
    desk.project.InstallOptions.CreateAutorunFile = kOn;
    desk.machine.files.RefuseOutput("C:\\Ut\\AUTORUN.INF", 75);
    EXPECT_EQ(desk.Create({kCannotWrite}), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Kan ej skapa!");
}

TEST(RunCreate, EndsWithTheDesignContainer)
{
    CreateDesk desk;
    desk.project.DesSound.BackSoundFilename = "C:\\Bilder\\saknas.wav";
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Hittar inte objekt"}}), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Processen avbruten!");
    EXPECT_EQ(desk.beeps, 1);
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
}

TEST(RunCreate, SaysThatAFailedCompressionBrokeItOff)
{
    CreateDesk desk;
    desk.machine.files.At("C:\\Data\\a.txt").unreadable = true;
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Processen avbruten!");
    EXPECT_EQ(desk.beeps, 1);
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
}

TEST(RunCreate, TellsNoFloppyCountAfterAFailedCompression)
{
    CreateDesk desk;
    desk.Choose(Medium::Floppy);
    desk.machine.files.At("C:\\Data\\a.txt").unreadable = true;
    EXPECT_EQ(desk.Create({kFirstDisk}), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines[desk.statusLines.size() - 2],
              "Uppdaterar QNSETUP.INF med diskettinformation");
    EXPECT_EQ(desk.statusLines.back(), "Processen avbruten!");
}

TEST(RunCreate, OverwritesThePackageOfAnEarlierRun)
{
    CreateDesk desk;
    AskForEverything(desk);
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const std::string first = desk.Get("FILEDATA.DAT");
    for (const Text& name : desk.Package())
        desk.machine.files.Put("C:\\Ut\\" + name, std::string(100'000, 'x'));
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_TRUE(test::SameBytes(desk.Get("FILEDATA.DAT"), first));
    for (const Text& name : desk.Package())
        EXPECT_EQ(desk.Get(name).find("xxxx"), Text::npos) << name;
}

TEST(RunCreate, EndsAtANameThatTheCodePageLacks)
{
    CreateDesk desk;
    desk.AddFile("смета.txt");
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Fel #52 inträffade när FILELIST.INF skulle skapas.");
    EXPECT_EQ(desk.failure->Path(), "смета.txt");
    EXPECT_FALSE(desk.Has("FILEDATA.DAT"));
}

TEST(RunCreate, EndsAtADestinationThatIsReadOnly)
{
    CreateDesk desk;
    AskForEverything(desk);
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    const std::vector<Text> before = desk.Package();
    for (const Text& name : before)
        desk.machine.files.RefuseOutput("C:\\Ut\\" + name, 75);
    desk.machine.files.refuseFolders = true;
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_THAT(desk.statusLines,
                ElementsAre("** Skapar 32 bitars installationsuppsättning för CD (komprimerat) **",
                            "Kopierar SETUP.EXE", "Fel! Kan ej kopiera SETUP.EXE!"));
    EXPECT_EQ(desk.failure->Number(), 75);
    EXPECT_THAT(desk.Package(), ElementsAreArray(before));
}

TEST(RunCreate, EndsAtAFullFloppy)
{
    CreateDesk desk;
    desk.Choose(Medium::Floppy);
    desk.form.tDestinationDir = "A:\\";
    desk.machine.files.capacities["a:\\"] = 0;
    EXPECT_EQ(desk.Create({kFirstDisk}), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Fel! Kan ej kopiera SETUP.EXE!");
    EXPECT_EQ(desk.failure->Number(), 61);
}

TEST(RunCreate, StoresOneSourceOfTwoRowsOnce)
{
    CreateDesk desk;
    desk.project.Files.rows.push_back(
        test::Row("kopia.txt", "%DESTDIR\\Doc", "c:\\data\\..\\data\\a.txt"));
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    const ZipReader container(desk.machine.files.OpenInput("C:\\Ut\\FILEDATA.DAT"));
    ASSERT_EQ(container.Entries().size(), 1u);
    EXPECT_EQ(container.Entries()[0].comment, "F1 F2");
}

TEST(RunCreate, WritesAManifestOverEveryFileLast)
{
    for (const Medium medium : {Medium::CompressedCd, Medium::CdTree}) {
        CreateDesk desk;
        AskForEverything(desk);
        desk.Choose(medium);
        ASSERT_EQ(desk.Create(), CreateResult::Done);
        const PackageManifest manifest = ReadPackageManifest(desk.machine.files, "C:\\Ut");
        EXPECT_EQ(manifest.state, PackageManifest::State::Whole);
        std::vector<Text> names;
        for (const ManifestLine& line : manifest.lines) {
            names.push_back(line.name);
            const bool isLaidOutByHand =
                medium == Medium::CdTree && line.name.find('\\') != Text::npos;
            EXPECT_EQ(CompareFile(desk.machine.files, isLaidOutByHand ? "C:" : "C:\\Ut", line),
                      FileFault::None)
                << line.name;
        }
        std::vector<Text> expected = desk.Package();
        std::erase(expected, "PACKAGE.SHA256");
        if (medium == Medium::CdTree)
            expected.insert(expected.end(), {"data\\a.txt", "data\\b.txt"});
        EXPECT_THAT(names, testing::UnorderedElementsAreArray(expected));
    }
}

TEST(RunCreate, LeavesAnEmptyManifestAfterAFailure)
{
    CreateDesk desk;
    desk.machine.files.At("C:\\Data\\a.txt").unreadable = true;
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.Get("PACKAGE.SHA256"), "");
}

TEST(RunCreate, TakesASourceOfATreeThatCannotBeReadForAFailure)
{
    CreateDesk desk;
    desk.Choose(Medium::CdTree);
    desk.machine.files.At("C:\\Data\\a.txt").unreadable = true;
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.statusLines.back(), "Processen avbruten!");
    EXPECT_EQ(desk.failure->Path(), "c:\\data\\a.txt");
    EXPECT_EQ(desk.Get("PACKAGE.SHA256"), "");
}

std::map<Text, std::string> FilesOf(const CreateDesk& desk)
{
    std::map<Text, std::string> files;
    for (const Text& name : desk.Package())
        files[name] = desk.Get(name);
    return files;
}

TEST(RunCreate, LeavesAnOlderPackageAsItWasWhereItFails)
{
    for (const Medium medium : {Medium::CompressedCd, Medium::CdTree}) {
        CreateDesk desk;
        desk.Choose(medium);
        ASSERT_EQ(desk.Create(), CreateResult::Done);
        const auto older = FilesOf(desk);
        desk.AddFile("b.txt");
        desk.machine.files.At("C:\\Data\\b.txt").unreadable = true;
        EXPECT_EQ(desk.Create(), CreateResult::Failed);
        EXPECT_EQ(FilesOf(desk), older);
        desk.project.Language.LanguageFile = "SAKNAS.LNG";
        EXPECT_EQ(desk.Create({kCannotWrite}), CreateResult::Failed);
        EXPECT_EQ(FilesOf(desk), older);
        EXPECT_FALSE(desk.machine.files.DirExists("C:\\Ut\\PACKAGE.NEW"));
    }
}

TEST(RunCreate, WritesOverAnOlderPackageWhereTheDiskHasNoRoomForTwo)
{
    CreateDesk desk;
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    desk.machine.files.capacities["c:\\"] = 1'000'000;
    desk.AddFile("b.txt");
    desk.machine.files.At("C:\\Data\\b.txt").unreadable = true;
    EXPECT_EQ(desk.Create(), CreateResult::Failed);
    EXPECT_EQ(desk.Get("PACKAGE.SHA256"), "");
    EXPECT_EQ(ReadInstallFileList(desk.Get("FILELIST.INF")).rows.size(), 2u);
}

TEST(RunCreate, TakesAwayThePicturesOfAnOlderPackage)
{
    CreateDesk desk;
    AskForEverything(desk);
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    ASSERT_TRUE(desk.Has("DESOBJ.DAT"));
    desk.project.DesBackground.PictureFilename.clear();
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_FALSE(desk.Has("DESOBJ.DAT"));
}

TEST(RunCreate, ClearsAwayWhatAKilledRunHasLeft)
{
    CreateDesk desk;
    desk.machine.files.Put("C:\\Ut\\PACKAGE.NEW\\PACKAGE.SHA256", "");
    desk.machine.files.Put("C:\\Ut\\PACKAGE.NEW\\SetupFiles\\a.txt_", "half");
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_FALSE(desk.machine.files.DirExists("C:\\Ut\\PACKAGE.NEW"));
    // A folder of that name that was not made by Create stays.
    desk.machine.files.Put("C:\\Ut\\PACKAGE.NEW\\brev.txt", "the user's own");
    ASSERT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_EQ(desk.Get("PACKAGE.NEW\\brev.txt"), "the user's own");
}

// Each write of a run fails once, from the first to the last: the run ends as a failure, reports
// it, and asks no further questions.
class FullDisk : public testing::TestWithParam<Medium> {};

TEST_P(FullDisk, EndsEveryRunAsAFailure)
{
    int writes = 0;
    for (CreateResult result = CreateResult::Failed; result != CreateResult::Done;) {
        ++writes;
        ASSERT_LT(writes, 200);
        CreateDesk desk;
        AskForEverything(desk);
        desk.Choose(GetParam());
        desk.machine.files.FailFromWrite(writes, 61);
        result = desk.With([](CreateRun& run) {
            struct AnyBox : test::ScriptedAsk {
                bool OkCancel(const Text&, const Text&) override { return true; }
                void Critical(const Text& title, const Text& text) override
                {
                    EXPECT_EQ(title, kCannotWrite.title);
                    EXPECT_EQ(text, kCannotWrite.text);
                    ++criticals;
                }
                int criticals = 0;
            } ask;
            CreateRun own{.project = run.project,
                          .state = run.state,
                          .form = run.form,
                          .options = run.options,
                          .host = run.host,
                          .ask = ask,
                          .compression = run.compression};
            const CreateResult ended = RunCreate(own);
            const Text last = ask.statusLines.back();
            EXPECT_EQ(last == "Kan ej skapa!", ask.criticals == 1) << last;
            const bool isIncomplete = own.isIncomplete && last == "Färdig!";
            EXPECT_EQ(ended == CreateResult::Done, last == "Färdig!" && !isIncomplete) << last;
            return ended;
        });
    }
    EXPECT_GT(writes, 10);
}

INSTANTIATE_TEST_SUITE_P(RunCreate, FullDisk,
                         testing::Values(Medium::Floppy, Medium::CompressedCd, Medium::CdTree));

TEST(RunCreate, GivesTheSamePackageTwiceButForTheScrambledPassword)
{
    CreateDesk first;
    CreateDesk second;
    for (CreateDesk* desk : {&first, &second}) {
        AskForEverything(*desk);
        desk->project.DialogBoxData.CorrectPassword = "Hemligt1";
    }
    second.machine.machine.now.second = 59;
    ASSERT_EQ(first.Create(), CreateResult::Done);
    ASSERT_EQ(second.Create(), CreateResult::Done);
    for (const Text& name : first.Package())
        EXPECT_EQ(first.Get(name) == second.Get(name),
                  name != "QNSETUP.INF" && name != "PACKAGE.SHA256")
            << name;
}

} // namespace quillon
