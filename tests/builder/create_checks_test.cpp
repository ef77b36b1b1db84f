#include "builder/create_checks.h"

#include "create_desk.h"
#include "filelist/adding/redist_folder.h"

#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::CreateDesk;
using test::ExpectedBox;
using test::Row;

namespace {

constexpr Medium kAnyMedium{};
const Text kSystemFolder = "c:\\windows\\system32\\";

// A way in which Create is stopped before it begins, and the box that reports it. Cases of one
// check are in its own order of questions.
struct Refusal {
    const char* name;
    int check;
    Medium medium;
    void (*spoil)(CreateDesk&);
    std::vector<ExpectedBox> boxes;
};

void PutOntoCd(CreateDesk& desk)
{
    desk.machine.files.driveKinds["e:\\"] = DriveKind::Cd;
    desk.form.tDestinationDir = "E:\\Ut";
}

const std::vector<Refusal>& Refusals()
{
    static const std::vector<Refusal> refusals = {
        {"no files",
         1,
         kAnyMedium,
         [](CreateDesk& desk) { desk.project.Files.rows.clear(); },
         {{BoxKind::Inform, "Fel", "Kan ej skapa! Det finns inga filer i fillistan!"}}},
        {"no main folder",
         1,
         kAnyMedium,
         [](CreateDesk& desk) { desk.project.InstallDirectories.DestinationDirectory.clear(); },
         {{BoxKind::Inform, "Fel", "Kan ej skapa! Filerna i fillistan saknar en huvudkatalog!"}}},
        {"no project name",
         1,
         kAnyMedium,
         [](CreateDesk& desk) { desk.project.ProjectName.ProjectName.clear(); },
         {{BoxKind::Inform, "Fel", "Kan ej skapa! Du måste ange ett projektnamn först!"}}},
        {"system file elsewhere",
         2,
         kAnyMedium,
         [](CreateDesk& desk) { desk.AddFile("mfc42.dll"); },
         {{BoxKind::YesNo, "Olämplig destinationskatalog",
           "Du har angett en annan katalog än systemkatalogen (%SYSDIR) för systemfilen "
           "'mfc42.dll'. Systemfiler bör alltid kopieras till Windows systemkatalog, annars kan "
           "det medföra problem för andra program eller ditt program så småningom. Vill du "
           "fortsätta att skapa ändå?",
           Answer::No}}},
        {"no destination",
         3,
         kAnyMedium,
         [](CreateDesk& desk) { desk.form.tDestinationDir.clear(); },
         {{BoxKind::Inform, "Destinationskatalog saknas",
           "Du måste ange en destinationskatalog dit dina installationsfiler ska kopieras först! "
           "Du kan trycka på knappen 'Bläddra' i dialogrutan för att leta efter en befintlig "
           "katalog."}}},
        {"system file of one system",
         4,
         kAnyMedium,
         [](CreateDesk& desk) { desk.AddFile("Shdocvw.dll"); },
         {{BoxKind::YesNo, "Olämplig systemfil",
           "Du har lagt in filen 'SHDOCVW.DLL' i fillistan. Denna fil är normalt systemspecifik "
           "och bör inte distribueras till andra operativsystem. Vill du avbryta?",
           Answer::Yes}}},
        {"file from XP's system folder",
         4,
         kAnyMedium,
         [](CreateDesk& desk) {
             desk.machine.machine.windowsXP = true;
             desk.project.Files.rows.push_back(
                 Row("Comcat.dll", "%SYSDIR", kSystemFolder + "comcat.dll"));
         },
         {{BoxKind::YesNo, "Olämplig systemfil",
           "Du har adderat filen 'Comcat.dll' från Windows systemmapp till fillistan. Denna fil är "
           "specifik för Windows XP och bör inte distribueras till andra operativsystem. Vill du "
           "avbryta?",
           Answer::Yes}}},
        {"uninstall icon alone",
         5,
         kAnyMedium,
         [](CreateDesk& desk) {
             desk.project.InstallOptions.UninstallSupport = kOn;
             desk.project.InstallOptions.CreateUninstallIcon = kOn;
         },
         {{BoxKind::Critical, "Felaktig kombination",
           "Kan ej skapa! Du har valt att en avinstallations-ikon ska skapas, men du saknar ikoner "
           "för andra filer i fillistan! Använder du en avinstallations-ikon måste minst en fil i "
           "fillistan ha en ikon. Att skapa en programgrupp med endast en avinstallations-ikon är "
           "inte tillåtet. Du kan dock ha avinstallationsmöjligheter på en grupp filer utan "
           "ikoner, ifall du endast kryssar för 'Stöd för avinstallation' i gruppen "
           "'Avinstallation' i dialogrutan 'Inställningar för installationsprogram'."}}},
        {"onto a CD",
         6,
         Medium::CompressedCd,
         PutOntoCd,
         {{BoxKind::Critical, "Fel",
           "Du kan ej skapa direkt på en CD eller DVD-skiva från Quillon. Du måste först skapa på "
           "hårddisken och sen bränna installationen med ett CD eller DVD-brännarprogram."}}},
        {"a tree onto a CD",
         6,
         Medium::CdTree,
         PutOntoCd,
         {{BoxKind::Critical, "Fel",
           "Du kan ej skapa direkt på en CD eller DVD-skiva från Quillon. Du måste först skapa på "
           "hårddisken och sen bränna installationen med ett CD eller DVD-brännarprogram."}}},
        {"no icon",
         7,
         Medium::Internet,
         [](CreateDesk& desk) {
             desk.project.InstallOptionsInternet.SelfExtractIconFilename = "C:\\saknas.ico";
         },
         {{BoxKind::Critical, "Ikon saknas",
           "Den externa ikonen som ska användas till den självuppackande installationen saknas "
           "eller så kan den ej öppnas! Kontrollera att ikonen verkligen existerar vid angiven "
           "katalog eller välj en ny."}}},
        {"one name for two programs",
         7,
         Medium::Internet,
         [](CreateDesk& desk) {
             desk.project.InstallOptionsInternet.SelfExtractFilename = "Setup.exe";
             desk.project.InstallOptions.SetupName = "SETUP.EXE";
         },
         {{BoxKind::Critical, "Ogiltigt filnamn",
           "Filnamnet på den självuppackande Internet-installationen får ej vara detsamma som "
           "filnamnet på Setup-filen! Du måste välja ett annat filnamn än 'Setup.exe'! Tryck på "
           "knappen 'Inställningar' för att ändra."}}},
        {"the standard name for two programs",
         7,
         Medium::Internet,
         [](CreateDesk& desk) {
             desk.project.InstallOptionsInternet.SelfExtractFilename = "";
             desk.project.InstallOptions.SetupName = "Self.exe";
         },
         {{BoxKind::Critical, "Ogiltigt filnamn",
           "Filnamnet på den självuppackande Internet-installationen får ej vara detsamma som "
           "filnamnet på Setup-filen! Du måste välja ett annat filnamn än 'SELF.EXE'! Tryck på "
           "knappen 'Inställningar' för att ändra."}}},
        {"program outside the folder",
         7,
         Medium::Internet,
         [](CreateDesk& desk) {
             desk.project.InstallOptionsInternet.SelfExtractFilename = "..\\self.exe";
         },
         {{BoxKind::Critical, "Ogiltigt filnamn",
           "Filnamnet på den självuppackande Internet-installationen fungerar inte "
           "('..\\self.exe'): tecknen \\ / : * ? \" < > | får inte ingå i ett namn. Tryck på "
           "knappen 'Inställningar' för att ändra."}}},
        {"program with the name of a packed file",
         7,
         Medium::Internet,
         [](CreateDesk& desk) {
             desk.project.InstallOptionsInternet.SelfExtractFilename = "Install.zip";
         },
         {{BoxKind::Critical, "Ogiltigt filnamn",
           "Filnamnet på den självuppackande Internet-installationen fungerar inte "
           "('Install.zip'): paketet har en annan fil med det namnet. Tryck på knappen "
           "'Inställningar' för att ändra."}}},
        {"first program with the name of the self-extracting one",
         7,
         Medium::Internet,
         [](CreateDesk& desk) { desk.project.RunAppSelfX.ProgramFilename = "C:\\Data\\SELF.EXE"; },
         {{BoxKind::Critical, "Ogiltigt filnamn",
           "Programmet 'C:\\Data\\SELF.EXE', som ska köras i den självuppackande "
           "installationen, har samma filnamn som en av installationens egna filer! Döp om "
           "programmet och välj det på nytt."}}},
        {"first program with the name of the starter",
         7,
         Medium::Internet,
         [](CreateDesk& desk) { desk.project.RunAppSelfX.ProgramFilename = "C:\\Data\\setup.exe"; },
         {{BoxKind::Critical, "Ogiltigt filnamn"}}},
        {"first program with the name of a packed file",
         7,
         Medium::Internet,
         [](CreateDesk& desk) {
             desk.project.RunAppSelfX.ProgramFilename = "C:\\Data\\qns32x.bin";
         },
         {{BoxKind::Critical, "Ogiltigt filnamn"}}},
        {"reserved name",
         8,
         Medium::CompressedCd,
         [](CreateDesk& desk) {
             desk.form.KeepCompressedFilesOneAndOne = 1;
             desk.options.PlaceCompressedFilesInFolderSetupFiles = kOff;
             desk.AddFile("qnsetup.inf");
         },
         {{BoxKind::Critical, "Reserverat filnamn hittades",
           "Filen 'qnsetup.inf' som ingår i fillistan har ett filnamn som är reserverat av "
           "Quillons egna installationsfiler. För att denna fil ska kunna ingå i fillistan måste "
           "de filer som ska installeras placeras i underkatalogen '\\SetupFiles'. Du kan ange "
           "detta i dialogrutan 'Alternativ'. Alternativt kan du döpa om filen till ett annat "
           "filnamn."}}},
        {"starter outside the package",
         9,
         kAnyMedium,
         [](CreateDesk& desk) { desk.project.InstallOptions.SetupName = "..\\viktig.doc"; },
         {{BoxKind::Critical, "Ogiltigt filnamn",
           "Installationsprogrammets filnamn '..\\viktig.doc' fungerar inte: tecknen \\ / : * ? \" "
           "< "
           "> | får inte ingå i ett namn."}}},
        {"starter with the name of another file",
         9,
         kAnyMedium,
         [](CreateDesk& desk) { desk.project.InstallOptions.SetupName = "FileData.dat"; },
         {{BoxKind::Critical, "Ogiltigt filnamn",
           "Installationsprogrammets filnamn 'FileData.dat' fungerar inte: paketet har en annan "
           "fil med det namnet."}}},
        {"group outside the start menu",
         9,
         kAnyMedium,
         [](CreateDesk& desk) { desk.project.ProgramGroup.ProgramGroup = "..\\Startup"; },
         {{BoxKind::Critical, "Ogiltig programgrupp",
           "Programgruppen '..\\Startup' fungerar inte: '..' får inte ingå."}}},
        {"no first floppy",
         10,
         Medium::Floppy,
         [](CreateDesk&) {},
         {{BoxKind::OkCancel, "Diskett", "Stoppa in diskett nr 1!", Answer::No}}},
        {"no folder wanted",
         11,
         kAnyMedium,
         [](CreateDesk& desk) { desk.form.tDestinationDir = "C:\\Saknas"; },
         {{BoxKind::YesNo, "Katalogen existerar inte",
           "Katalogen 'C:\\Saknas' existerar inte på hårddisken! Vill du skapa den nu?",
           Answer::No}}},
        {"no folder possible",
         11,
         kAnyMedium,
         [](CreateDesk& desk) {
             desk.form.tDestinationDir = "C:\\Saknas";
             desk.machine.files.refuseFolders = true;
         },
         {{BoxKind::YesNo, "Katalogen existerar inte", "", Answer::Yes},
          {BoxKind::Inform, "Kan ej skapa katalog", "Kan ej skapa katalogen C:\\Saknas!"}}},
    };
    return refusals;
}

void ExpectRefused(CreateDesk& desk, const Refusal& refusal)
{
    const auto nodes = desk.machine.files.nodes.size();
    EXPECT_EQ(desk.Create({refusal.boxes.begin(), refusal.boxes.end()}), CreateResult::Stopped)
        << refusal.name;
    EXPECT_TRUE(desk.statusLines.empty()) << refusal.name;
    EXPECT_EQ(desk.machine.files.nodes.size(), nodes) << refusal.name;
    EXPECT_TRUE(desk.form.isCmdCreateEnabled);
    EXPECT_EQ(desk.beeps, 0);
}

} // namespace

TEST(Checks, StopEachAlone)
{
    for (const Refusal& refusal : Refusals()) {
        CreateDesk desk;
        if (refusal.medium != kAnyMedium)
            desk.Choose(refusal.medium);
        refusal.spoil(desk);
        ExpectRefused(desk, refusal);
    }
}

TEST(Checks, LetTheFirstRefusalWin)
{
    const std::vector<Refusal>& refusals = Refusals();
    int pairs = 0;
    for (std::size_t i = 0; i < refusals.size(); ++i)
        for (std::size_t j = i + 1; j < refusals.size(); ++j) {
            const Refusal& first = refusals[i];
            const Refusal& second = refusals[j];
            const bool sameMedium = first.medium == kAnyMedium || second.medium == kAnyMedium ||
                                    first.medium == second.medium;
            if (!sameMedium || first.check == second.check)
                continue;
            CreateDesk desk;
            const Medium medium = std::max(first.medium, second.medium);
            if (medium != kAnyMedium)
                desk.Choose(medium);
            second.spoil(desk);
            first.spoil(desk);
            SCOPED_TRACE(second.name);
            ExpectRefused(desk, first);
            ++pairs;
        }
    EXPECT_GT(pairs, 60);
}

TEST(ValidateProjectForAction, AsksInItsOrderAndNamesTheAction)
{
    Project project;
    {
        test::ScriptedAsk ask{
            {{BoxKind::Inform, "Fel", "Kan ej simulera! Det finns inga filer i fillistan!"}}};
        EXPECT_EQ(ValidateProjectForAction(project, ask, "simulera"), Check::Stopped);
    }
    project.Files.rows.push_back(Row("a", "b", "c"));
    {
        test::ScriptedAsk ask{{{BoxKind::Inform, "Fel",
                                "Kan ej simulera! Filerna i fillistan saknar en huvudkatalog!"}}};
        EXPECT_EQ(ValidateProjectForAction(project, ask, "simulera"), Check::Stopped);
    }
    project.InstallDirectories.DestinationDirectory = "%PROGDIR";
    {
        test::ScriptedAsk ask{
            {{BoxKind::Inform, "Fel", "Kan ej simulera! Du måste ange ett projektnamn först!"}}};
        EXPECT_EQ(ValidateProjectForAction(project, ask, "simulera"), Check::Stopped);
    }
    project.ProjectName.ProjectName = "Demo";
    test::ScriptedAsk ask;
    EXPECT_EQ(ValidateProjectForAction(project, ask, "simulera"), Check::Passed);
}

TEST(CheckSystemFileDestinations, AsksForEachSystemFileThatLiesElsewhere)
{
    CreateDesk desk;
    for (const char* name : {"OLEPRO32.DLL", "oleaut32.dll", "MFC42.dll", "msvcrt.dll",
                             "Comcat.dll", "stdole2.tlb", "asycfilt.dll"})
        desk.AddFile(name);
    desk.AddFile("MSVCRT.DLL", "x", "%SYSDIR");
    desk.AddFile("MSVCRT.DLL", "x", "%SYSDIR\\");
    const ExpectedBox goOn{BoxKind::YesNo, "Olämplig destinationskatalog", "", Answer::Yes};
    const auto check = [](CreateRun& run) { return CheckSystemFileDestinations(run); };
    EXPECT_EQ(desk.With(check, {goOn, goOn, goOn, goOn, goOn, goOn}), Check::Passed);
    EXPECT_EQ(desk.stops, std::vector(6, Ask::Stops::OnNo));

    ExpectedBox stop = goOn;
    stop.answer = Answer::No;
    EXPECT_EQ(desk.With(check, {goOn, stop}), Check::Stopped);
}

TEST(CheckSystemSpecificFiles, GoesOnWithTheNextRowAfterANo)
{
    CreateDesk desk;
    desk.AddFile("SHDOCVW.DLL");
    desk.AddFile("shdocvw.dll");
    const ExpectedBox goOn{BoxKind::YesNo, "Olämplig systemfil", "", Answer::No};
    const auto check = [](CreateRun& run) { return CheckSystemSpecificFiles(run); };
    EXPECT_EQ(desk.With(check, {goOn, goOn}), Check::Passed);
    EXPECT_EQ(desk.stops, std::vector(2, Ask::Stops::OnYes));
}

class ProtectedFiles : public testing::Test {
protected:
    ProtectedFiles()
    {
        desk.machine.machine.windowsXP = true;
        for (const char* name :
             {"OLEAUT32.DLL", "olepro32.dll", "Comcat.dll", "ASYCFILT.DLL", "STDOLE2.TLB"})
            desk.project.Files.rows.push_back(
                Row(name, "%SYSDIR", kSystemFolder + LowerCase(name)));
    }
    Check Run(std::deque<ExpectedBox> script = {})
    {
        return desk.With([](CreateRun& run) { return CheckSystemSpecificFiles(run); },
                         std::move(script));
    }
    void RegisterDevelopmentSystem()
    {
        desk.machine.machine.registry[{RegistryRoot::ClassesRoot,
                                       "VisualBasic.Project\\shell\\open\\command", ""}] =
            "\"C:\\Program\\VB98\\VB6.EXE\" \"%1\"";
    }

    CreateDesk desk;
};

TEST_F(ProtectedFiles, AreTakenFromTheFolderForRedistribution)
{
    RegisterDevelopmentSystem();
    EXPECT_EQ(Run(), Check::Passed);
    const Text folder = "c:\\program\\vb98\\wizards\\pdwizard\\redist\\";
    std::vector<Text> sources;
    for (const FileListRow& row : desk.project.Files.rows)
        sources.push_back(row[Source]);
    EXPECT_EQ(sources, (std::vector<Text>{"c:\\data\\a.txt", folder + "oleaut32.dll",
                                          folder + "olepro32.dll", folder + "comcat.dll",
                                          folder + "asycfilt.dll", folder + "stdole2.tlb"}));
    EXPECT_EQ(desk.state.ProjectIsDirty, kOn);
}

TEST_F(ProtectedFiles, AreAskedForWithoutADevelopmentSystem)
{
    const ExpectedBox goOn{BoxKind::YesNo, "Olämplig systemfil", "", Answer::No};
    EXPECT_EQ(Run({goOn, goOn, goOn, goOn, goOn}), Check::Passed);
    EXPECT_EQ(desk.project.Files.rows[1][Source], kSystemFolder + "oleaut32.dll");
    EXPECT_EQ(desk.state.ProjectIsDirty, kOff);
}

TEST_F(ProtectedFiles, PassFromAnotherFolder)
{
    for (FileListRow& row : desk.project.Files.rows)
        row[Source] = "c:\\data\\" + LowerCase(row[Filename]);
    EXPECT_EQ(Run(), Check::Passed);
    EXPECT_EQ(desk.project.Files.rows[1][Source], "c:\\data\\oleaut32.dll");
}

TEST_F(ProtectedFiles, PassOnAnyOtherSystem)
{
    RegisterDevelopmentSystem();
    desk.machine.machine.windowsXP = false;
    EXPECT_EQ(Run(), Check::Passed);
    EXPECT_EQ(desk.project.Files.rows[1][Source], kSystemFolder + "oleaut32.dll");
}

TEST(RedistFolder, LiesBesideTheRegisteredProgram)
{
    const std::pair<const char*, const char*> cases[] = {
        {"\"C:\\VB98\\VB6.EXE\" \"%1\"", "C:\\VB98\\Wizards\\PDWizard\\Redist"},
        {"C:\\Program Files\\VB98\\vb6.exe %1",
         "C:\\Program Files\\VB98\\Wizards\\PDWizard\\Redist"},
        {"C:\\VB98\\VB6.EXE /run \"C:\\x\\%1\"", "C:\\VB98\\Wizards\\PDWizard\\Redist"},
        {"C:\\VB6.EXE", "C:\\Wizards\\PDWizard\\Redist"},
        {"", ""}};
    for (const auto& [command, folder] : cases) {
        test::FixedMachine machine;
        machine.registry[{RegistryRoot::ClassesRoot, "VisualBasic.Project\\shell\\open\\command",
                          ""}] = command;
        EXPECT_EQ(RedistFolder(machine), folder) << command;
    }
    EXPECT_EQ(RedistFolder(test::FixedMachine()), "");
}

TEST(CheckUninstallIconCombination, TakesAnyIconOfAnyRow)
{
    CreateDesk desk;
    desk.project.InstallOptions.UninstallSupport = kOn;
    desk.project.InstallOptions.CreateUninstallIcon = kOn;
    const auto check = [](CreateRun& run) { return CheckUninstallIconCombination(run); };
    for (const char* marker : {"Ikon", "IkonD", "ikons", "ICON", "iconP"}) {
        desk.project.Files.rows.back()[IconMarker] = marker;
        EXPECT_EQ(desk.With(check), Check::Passed) << marker;
    }
    for (const char* marker : {"", "xIkon", "Iko"}) {
        desk.project.Files.rows.back()[IconMarker] = marker;
        EXPECT_EQ(desk.With(check, {{BoxKind::Critical, "Felaktig kombination"}}), Check::Stopped);
    }
    desk.project.InstallOptions.CreateUninstallIcon = kOff;
    EXPECT_EQ(desk.With(check), Check::Passed);
    desk.project.InstallOptions.CreateUninstallIcon = kOn;
    desk.project.Files.rows.clear();
    EXPECT_EQ(desk.With(check), Check::Passed);
}

TEST(CheckSmallContainer, RefusesAPassword)
{
    CreateDesk desk;
    desk.Choose(Medium::CompressedCd);
    desk.form.SmallContainer = 1;
    desk.project.DialogBoxData.CorrectPassword = "Hemlig7";
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    desk.project.DialogBoxes.PasswordDlg = 1;
    EXPECT_EQ(desk.Create({{BoxKind::Critical, "Felaktig kombination",
                            "Kan ej skapa! Du har valt 'Minsta möjliga storlek' i dialogrutan "
                            "'Komprimering' och ett lösenord för installationen. En sådan "
                            "FILEDATA.DAT kan ej krypteras. Ta bort lösenordet eller välj den "
                            "vanliga komprimeringen."}}),
              CreateResult::Stopped);
    // Without a solid container the package can be encrypted.
    desk.Choose(Medium::Internet);
    desk.form.UseCompression = 1;
    desk.form.TargetMedia = Medium::CompressedCd;
    desk.form.SmallContainer = 0;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
}

TEST(FindReservedFilename, KnowsEachFileOfThePackage)
{
    for (const char* name :
         {"SETUP.EXE", "setup.exe", "qns32x.exe", "QNS32X.BIN", "QnSetup.inf", "filelist.inf",
          "swedish.lng", "dunzip32.dll", "filedata.dat", "desobj.dat", "qnxreg2.exe", "qnxreg2.bin",
          "qnreg32.exe", "qnreg32.bin", "qnxunin.exe", "qnxunin.bin"}) {
        Project project;
        project.Files.rows = {Row("a.txt", "", ""), Row(name, "", "")};
        EXPECT_EQ(FindReservedFilename(project), name);
    }
}

TEST(FindReservedFilename, FindsTheFirstInTheList)
{
    Project project;
    project.Files.rows = {Row("filedata.dat", "", ""), Row("setup.exe", "", "")};
    EXPECT_EQ(FindReservedFilename(project), "filedata.dat");
    project.Files.rows = {Row("autorun.inf", "", ""), Row("license.rtf", "", "")};
    EXPECT_EQ(FindReservedFilename(project), "");
}

TEST(FindReservedFilename, ComparesTheProjectsOwnNamesAsTheyStand)
{
    Project project;
    project.InstallOptions.SetupName = "Setup.exe";
    project.Language.LanguageFile = "swedish.lng";
    project.Files.rows = {Row("Setup.exe", "", ""), Row("swedish.lng", "", "")};
    EXPECT_EQ(FindReservedFilename(project), "");
}

TEST(Checks, TakeReservedNamesWhereFilesLieInAFolderOfTheirOwn)
{
    CreateDesk desk;
    desk.form.KeepCompressedFilesOneAndOne = 1;
    desk.AddFile("setup.exe");
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_TRUE(desk.Has("SetupFiles\\setup.exe_"));
}

TEST(Checks, NeverQuestionTheRootOfADrive)
{
    CreateDesk desk;
    desk.form.TargetMedia = Medium::CdTree;
    desk.form.tDestinationDir = "C:\\";
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    EXPECT_TRUE(desk.machine.files.FileExists("C:\\QNSETUP.INF"));
}

TEST(Checks, MakeTheDestinationOnAYes)
{
    CreateDesk desk;
    desk.form.tDestinationDir = "C:\\Ny\\Mapp\\";
    EXPECT_EQ(desk.Create({{BoxKind::YesNo, "Katalogen existerar inte",
                            "Katalogen 'C:\\Ny\\Mapp\\' existerar inte på hårddisken! Vill du "
                            "skapa den nu?"}}),
              CreateResult::Done);
    EXPECT_EQ(desk.stops, std::vector(1, Ask::Stops::OnNo));
    EXPECT_TRUE(desk.machine.files.FileExists("C:\\Ny\\Mapp\\FILEDATA.DAT"));
}

TEST(Checks, AskADriveForItsKindOnCdMediaAlone)
{
    CreateDesk desk;
    desk.machine.files.driveKinds["c:\\"] = DriveKind::Cd;
    desk.Choose(Medium::Floppy);
    EXPECT_EQ(desk.Create({{BoxKind::OkCancel, "Diskett", "Stoppa in diskett nr 1!"}}),
              CreateResult::Done);
}

} // namespace quillon
