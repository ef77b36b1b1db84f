#include "importers/import_vb6.h"

#include "filelist/list_builder.h"
#include "import_context.h"
#include "importers/vb_project.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

const ExpectedBox kDone{
    BoxKind::Inform, "Importen är klar",
    "Importen är nu klar! Alla filer som kan erhållas via Visual Basic 6.0 projektfilen har "
    "adderats till fillistan. Anropar du funktioner i DLL-filer från tredjeparts-tillverkare måste "
    "dessa läggas in manuellt till fillistan."};
const ExpectedBox kControlElsewhere{
    BoxKind::Inform, "Info",
    "Alla ActiveX-filer som ingår i ett Visual Basic projekt måste vara placerade i "
    "systemkatalogen, ifall dessa ska importeras automatiskt till fillistan! Är ActiveX-filen "
    "placerad i en annan katalog måste den adderas manuellt till fillistan."};
const ExpectedBox kDataAccess{
    BoxKind::YesNo, "Microsoft Data Access",
    "Vill du att Microsoft Data Access komponenter ska installeras på din användarens dator? Ifall "
    "du svarar 'Ja' kommer även filen 'MDAC_TYP.EXE' att inkluderas i installationsprojektet. Vet "
    "du att din slutanvändare har samma version av Microsoft Data Access komponenter som du kan du "
    "svara 'Nej' här för att spara utrymme. Filen 'MDAC_TYP.EXE' utökar installationsdatamängden "
    "med ca 6 MB. Se hjälpen för mer information.",
    Answer::No};

ExpectedBox NotInSystemFolder(const Text& name)
{
    return {BoxKind::Critical, "Kan ej addera en fil",
            "Filen '" + name +
                "' existerar inte i systemkatalogen! Kan ej addera den till fillistan!"};
}

class ImportVb6 : public ImportContext {
protected:
    ImportVb6()
    {
        PutAll(kRedist, {"asycfilt.dll", "comcat.dll", "olepro32.dll", "oleaut32.dll",
                         "stdole2.tlb", "msvcrt40.dll"});
        PutAll(kSystem, {"msvbvm60.dll", "comdlg32.ocx", "msadodc.ocx", "msrdc20.ocx",
                         "msstdfmt.dll", "rdocurs.dll", "mfc42.dll", "msvcrt.dll"});
        choices.sVBPfile = kVbp;
        choices.sEXEfile = kExe;
        choices.tVBDirectory = kVbFolder;
        choices.cAddIcon = false;
        data.Add("[Controls]\nGRID32.OCX\n[Modules]\nbasSetup1=VB6STKIT.DLL\n"
                 "TOOLS.BAS=One.dll\nTOOLS.BAS=Two.dll\n");
    }

    void PutProject(const std::string& lines) { machine.files.Put(kVbp, "Type=Exe\r\n" + lines); }

    ImportResult Run(std::deque<ExpectedBox> boxes)
    {
        ScriptedAsk ask(std::move(boxes));
        ImportResult result = ImportVb6Project(Work(ask), data, choices);
        EXPECT_FALSE(ask.busyPointer);
        shown = ask.shown;
        return result;
    }
    void Scan(std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        ScanVb6Project(machine.host, ask, data, choices);
    }

    ImportData data;
    Vb6Choices choices;
    std::vector<ExpectedBox> shown;
};

} // namespace

TEST_F(ImportVb6, AddsRunTimeControlsAndProgram)
{
    PutProject("Object={F9043C88}#1.2#0; COMDLG32.OCX\r\nForm=frmMain.frm\r\n");
    const ImportResult result = Run({kDone});
    EXPECT_EQ(result.end, ImportEnd::Done);
    EXPECT_THAT(Rows(), ElementsAre("ASYCFILT.dll %SYSDIR VAWE", "COMCAT.dll %SYSDIR VRAW",
                                    "OLEPRO32.dll %SYSDIR VRAW", "OLEAUT32.dll %SYSDIR VRAW",
                                    "STDOLE2.tlb %SYSDIR VAW", "MSVBVM60.dll %SYSDIR VRAW",
                                    "Comdlg32.ocx %SYSDIR VRAW", "Kund.exe %DESTDIR\\Bin D"));
    EXPECT_EQ(Row("ASYCFILT.dll")[Source], LowerCase(kRedist) + "\\asycfilt.dll");
    EXPECT_EQ(Row("MSVBVM60.dll")[Source], LowerCase(kSystem) + "\\msvbvm60.dll");
    EXPECT_EQ(Row("Kund.exe")[Source], LowerCase(kExe));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    EXPECT_EQ(result.places.size(), 8U);
    EXPECT_THAT(Missed(result), IsEmpty());
}

TEST_F(ImportVb6, HidesItsDialogAndAsksForTheProgramsFolder)
{
    PutProject("");
    Run({kDone});
    EXPECT_THAT(user.steps, ElementsAre("hide", "status", "destination", "status"));
    EXPECT_EQ(user.asked.caption, "Välj destinationskatalog för Kund.exe");
    EXPECT_EQ(user.asked.frameCaption, "Destinationskatalog");
    EXPECT_EQ(user.asked.destination.folder, "%DESTDIR");
    EXPECT_EQ(user.asked.destination.place, DestinationQuestion::Place::User);
}

TEST_F(ImportVb6, EndsWithoutAWordWhereTheDestinationIsCancelled)
{
    PutProject("");
    choices.cAddIcon = true;
    user.destination.reset();
    EXPECT_EQ(Run({}).end, ImportEnd::Cancelled);
    EXPECT_EQ(project.Files.rows.size(), 6U) << "the rows so far stay";
    EXPECT_THAT(user.steps, ElementsAre("hide", "status", "destination"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

struct CheckCase {
    Text vbp;
    Text exe;
    Text folder;
    ExpectedBox box;
};

TEST_F(ImportVb6, StopsAtTheFirstCheckThatFails)
{
    const CheckCase kCases[] = {
        {"",
         "",
         "",
         {BoxKind::Inform, "Info",
          "Du måste välja en projektfil (.VBP) och tillhörande programfil (.EXE) först!"}},
        {kVbp,
         "",
         "",
         {BoxKind::Inform, "Info",
          "Du måste välja den programfil (.EXE) som ditt Visual basic-projekt skapar vid "
          "kompilering först! Du väljer en programfil genom att trycka på knappen 'Välj "
          "programfil...'."}},
        {"",
         kExe,
         "",
         {BoxKind::Inform, "Info", "Du måste välja en Visual Basic projektfil (.VBP) först !"}},
        {kVbp,
         kExe,
         "",
         {BoxKind::Inform, "Info",
          "Fältet 'Visual Basic 6.0 katalog' måste innehålla en sökväg till Visual Basic 6.0 "
          "filer!"}},
        {kVbp,
         kExe,
         "C:\\Nej",
         {BoxKind::Critical, "Fel",
          "Katalogen som anges vid 'Visual Basic 6.0 katalog' existerar inte! Kan ej importera! "
          "Kontrollera sökvägen!"}},
    };
    PutProject("");
    for (const CheckCase& test : kCases) {
        choices.sVBPfile = test.vbp;
        choices.sEXEfile = test.exe;
        choices.tVBDirectory = test.folder;
        EXPECT_EQ(Run({test.box}).end, ImportEnd::Refused) << test.box.text;
    }
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_THAT(user.steps, IsEmpty());
    EXPECT_EQ(state.ProjectIsDirty, kOff);
}

TEST_F(ImportVb6, StopsWhereThisMachineHasNoSystemFolder)
{
    PutProject("");
    for (const Text& path : {Text("kernel32.dll"), Text("msvbvm60.dll"), Text("comdlg32.ocx"),
                             Text("msadodc.ocx"), Text("msrdc20.ocx"), Text("msstdfmt.dll"),
                             Text("rdocurs.dll"), Text("mfc42.dll"), Text("msvcrt.dll")})
        machine.files.RemoveFile(kSystem + "\\" + path);
    EXPECT_EQ(Run({{BoxKind::Critical, "Systemkatalogen saknas",
                    "Systemkatalogen 'C:\\WINDOWS\\SYSTEM32' finns inte eller är tom, så Visual "
                    "Basics filer kan ej hämtas. Kopiera systemkatalogen från en dator med Windows "
                    "och Visual Basic dit, eller låt QUILLON_DRIVE_C ange en katalog där den "
                    "finns."}})
                  .end,
              ImportEnd::Refused);
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ImportVb6, TellsEachMissingFileAndGoesOn)
{
    machine.files.RemoveFile(kSystem + "\\msvbvm60.dll");
    machine.files.RemoveFile(kRedist + "\\comcat.dll");
    PutProject("Object={1}; Nej.ocx\r\nObject={2}; ..\\Bin\\Own.ocx\r\n"
               "Object={3}; COMDLG32.OCX\r\n");
    const ImportResult result =
        Run({{BoxKind::Critical, "Fel",
              "Filen 'COMCAT.dll' kan ej adderas till fillistan. Filen existerar inte vid "
              "källsökvägen '" +
                  kRedist + "\\COMCAT.dll'!"},
             NotInSystemFolder("MSVBVM60.dll"),
             NotInSystemFolder("Nej.ocx"),
             kControlElsewhere,
             NotInSystemFolder("..\\Bin\\Own.ocx"),
             kControlElsewhere,
             kDone});
    EXPECT_THAT(Missed(result), ElementsAre("COMCAT.dll: finns inte vid källsökvägen",
                                            "MSVBVM60.dll: finns inte i systemkatalogen",
                                            "Nej.ocx: finns inte i systemkatalogen",
                                            "..\\Bin\\Own.ocx: ligger utanför systemkatalogen"));
    EXPECT_THAT(Rows(), Contains("Comdlg32.ocx %SYSDIR VRAW"));
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("Own.ocx"))));
}

// A file that an import could not find does not count as added, nor as present in the next import.
TEST_F(ImportVb6, TriesAMissingFileAgainInTheNextImport)
{
    machine.files.RemoveFile(kSystem + "\\msvbvm60.dll");
    machine.files.RemoveFile(kRedist + "\\comcat.dll");
    PutProject("");
    const std::deque<ExpectedBox> boxes{
        {BoxKind::Critical, "Fel",
         "Filen 'COMCAT.dll' kan ej adderas till fillistan. Filen existerar inte vid källsökvägen "
         "'" +
             kRedist + "\\COMCAT.dll'!"},
        NotInSystemFolder("MSVBVM60.dll"),
        kDone};
    const auto missing = ElementsAre("COMCAT.dll: finns inte vid källsökvägen",
                                     "MSVBVM60.dll: finns inte i systemkatalogen");
    ImportResult result = Run(boxes);
    EXPECT_THAT(Missed(result), missing);
    EXPECT_THAT(result.added, ElementsAre(0, 2, 3, 4, 6)) << "not the rows without a file";
    std::deque<ExpectedBox> again = boxes;
    result = Run(again);
    EXPECT_THAT(Missed(result), IsSupersetOf({"COMCAT.dll: finns inte vid källsökvägen",
                                              "MSVBVM60.dll: finns inte i systemkatalogen"}));
    const auto rows = Rows();
    EXPECT_EQ(std::ranges::count(rows, "COMCAT.dll %SYSDIR VRAW"), 1);
    EXPECT_EQ(std::ranges::count(rows, "MSVBVM60.dll %SYSDIR "), 1);

    machine.files.Put(kSystem + "\\msvbvm60.dll", "x");
    machine.files.Put(kRedist + "\\comcat.dll", "x");
    result = Run({kDone});
    EXPECT_THAT(Missed(result), ElementsAre("Kund.exe: finns redan i fillistan"));
    EXPECT_EQ(Rows()[1], "COMCAT.dll %SYSDIR VRAW");
    EXPECT_EQ(Rows()[5], "MSVBVM60.dll %SYSDIR VRAW");
    EXPECT_EQ(Row("MSVBVM60.dll")[Source], LowerCase(kSystem) + "\\msvbvm60.dll");
    EXPECT_EQ(Row("COMCAT.dll")[Source], LowerCase(kRedist) + "\\comcat.dll");
    EXPECT_THAT(result.added, IsSupersetOf({1U, 5U}));
}

TEST_F(ImportVb6, TriesAProgramAgainThatWasMissing)
{
    PutProject("");
    machine.files.RemoveFile(kExe);
    const ImportResult result =
        Run({{BoxKind::Critical, "Fel", "Filen 'C:\\Proj\\Kund.exe' finns inte."}});
    EXPECT_EQ(result.end, ImportEnd::Failed);
    EXPECT_THAT(Missed(result), ElementsAre("Kund.exe: finns inte vid källsökvägen"));
    machine.files.Put(kExe, "MZ");
    const ImportResult again = Run({kDone});
    ASSERT_TRUE(again.newProgram);
    EXPECT_EQ(project.Files.rows[*again.newProgram][Source], LowerCase(kExe));
    EXPECT_EQ(std::ranges::count(Rows(), "Kund.exe %DESTDIR\\Bin D"), 1);
}

TEST_F(ImportVb6, TellsAFileOnceThatSeveralListsMiss)
{
    machine.files.RemoveFile(kSystem + "\\msstdfmt.dll");
    PutProject("Object={1}; MSADODC.OCX\r\nObject={2}; MSRDC20.OCX\r\n");
    choices.cImportADO = choices.cImportRDO = true;
    EXPECT_THAT(Missed(Run({NotInSystemFolder("MSSTDFMT.DLL"), kDataAccess, kDone})),
                ElementsAre("MSSTDFMT.DLL: finns inte i systemkatalogen"));
}

TEST_F(ImportVb6, NeverAddsTheBrowser)
{
    PutAll(kSystem, {"shdocvw.dll"});
    for (const std::string name : {"shdocvw.dll", "SHDOCVW.DLL", "ShDocVw.dll"}) {
        PutProject("Object={EAB22AC0}#1.1#0; " + name + "\r\n");
        project.Files.rows.clear();
        EXPECT_THAT(Missed(Run({kDone})),
                    ElementsAre(name + ": hör till Windows och läggs aldrig in"));
        EXPECT_EQ(project.Files.rows.size(), 7U);
    }
}

TEST_F(ImportVb6, IgnoresALineThatNamesNoFile)
{
    PutProject("Object={F9043C88}#1.2#0;COMDLG32.OCX\r\nObject=*\\AOwn.vbp\r\n");
    Run({kDone});
    EXPECT_EQ(project.Files.rows.size(), 7U);
}

TEST_F(ImportVb6, AddsTheFilesOfMfcLast)
{
    choices.cImportActiveXSysFiles = true;
    PutAll(kSystem, {"vb6stkit.dll"});
    PutProject("Module=basSetup1; Setup1.bas\r\n");
    Run({kDone});
    EXPECT_THAT(RowsFrom(6), ElementsAre("Mfc42.dll %SYSDIR VRAW", "Msvcrt.dll %SYSDIR VA",
                                         "Vb6stkit.dll %SYSDIR VA", "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVb6, TicksMfcForAControlThatTheScanDidNotSee)
{
    PutAll(kSystem, {"grid32.ocx"});
    PutProject("Object={1}; grid32.ocx\r\n");
    Run({kDone});
    EXPECT_TRUE(choices.cImportActiveXSysFiles);
    EXPECT_THAT(Rows(), IsSupersetOf({"Mfc42.dll %SYSDIR VRAW", "Msvcrt.dll %SYSDIR VA"}));
}

TEST_F(ImportVb6, AddsEachLibraryOfAModule)
{
    PutAll(kSystem, {"one.dll", "two.dll"});
    PutProject("Module=basTools; ..\\Common\\tools.bas\r\nModule=basToolsX; MyTools.bas\r\n");
    Run({kDone});
    EXPECT_THAT(RowsFrom(6), ElementsAre("One.dll %SYSDIR VA", "Two.dll %SYSDIR VA",
                                         "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVb6, ScansWhatTheProjectNeeds)
{
    PutProject("Object={1}; COMDLG32.OCX\r\n");
    Scan();
    EXPECT_FALSE(choices.cImportActiveXSysFiles || choices.cImportADO || choices.cImportRDO);
    PutProject("Object={1}; Grid32.ocx\r\n");
    Scan();
    EXPECT_TRUE(choices.cImportActiveXSysFiles);
    EXPECT_FALSE(choices.cImportADO || choices.cImportRDO);
    PutProject("Object={1}; msadodc.ocx\r\n");
    Scan();
    EXPECT_TRUE(choices.cImportADO);
    PutProject("Object={1}; MSRDC20.OCX\r\n");
    Scan();
    EXPECT_TRUE(choices.cImportRDO);
    EXPECT_FALSE(choices.cImportDAO35 || choices.cImportDAO36 || choices.cInstallMDA);
}

TEST_F(ImportVb6, ScansTheControlsThemselvesForMfc)
{
    machine.files.Put(kSystem + "\\own.ocx",
                      MakeLinkedProgram({.isLibrary = true, .imports = {"MFC42.DLL"}}));
    machine.files.Put(kSystem + "\\plain.ocx",
                      MakeLinkedProgram({.isLibrary = true, .imports = {"MSVCRT.dll"}}));
    PutProject("Object={1}; plain.ocx\r\n");
    Scan();
    EXPECT_FALSE(choices.cImportActiveXSysFiles);
    PutProject("Object={1}; OWN.OCX\r\n");
    Scan();
    EXPECT_TRUE(choices.cImportActiveXSysFiles);
}

TEST_F(ImportVb6, KeepsWhatWasTickedWhereTheScanFails)
{
    choices.cImportRDO = true;
    choices.sVBPfile = "C:\\Proj\\gone.vbp";
    Scan({{BoxKind::Critical, "Fel inträffade", "Filen 'C:\\Proj\\gone.vbp' finns inte."}});
    EXPECT_TRUE(choices.cImportRDO);
    choices.sVBPfile = kVbp;
    machine.files.Put(kVbp, std::string("Object={1}; MSADODC.OCX\r\n\0\r\n", 28));
    Scan({{BoxKind::Critical, "Fel inträffade",
           "Projektfilen 'C:\\Proj\\Kund.vbp' är skadad: raden 2 har nolltecken eller är längre än "
           "4096 tecken och är överhoppad."}});
    EXPECT_TRUE(choices.cImportADO);
}

TEST_F(ImportVb6, TellsAProjectThatCannotBeReadOncePerReading)
{
    const ExpectedBox fault{BoxKind::Critical, "Fel inträffade",
                            "Filen 'C:\\Proj\\Kund.vbp' finns inte."};
    EXPECT_EQ(Run({fault, fault, kDone}).end, ImportEnd::Done);
    EXPECT_EQ(project.Files.rows.size(), 7U);
}

// The ActiveX walk adds the files of a data control by itself and asks nothing.
TEST_F(ImportVb6, AsksForDataAccessOnlyWhereABoxIsTicked)
{
    PutProject("Object={1}; MSADODC.OCX\r\n");
    Run({kDone});
    EXPECT_THAT(Rows(), IsSupersetOf({"Msadodc.ocx %SYSDIR VRAW", "Msstdfmt.dll %SYSDIR VRAW"}));
    EXPECT_EQ(project.Files.rows.size(), 9U) << "none of them twice";
}

TEST_F(ImportVb6, AsksForDataAccessOnceWhereTheScanHasTickedTheControl)
{
    PutProject("Object={1}; MSADODC.OCX\r\n");
    Scan();
    EXPECT_TRUE(choices.cImportADO);
    EXPECT_FALSE(choices.cImportRDO || choices.cInstallMDA);
    Run({kDataAccess, kDone});
    EXPECT_THAT(shown, testing::SizeIs(2)) << "the question, and the end";
    EXPECT_TRUE(choices.MDAQuestionAsked);
    EXPECT_THAT(RowsFrom(6), ElementsAre("Msadodc.ocx %SYSDIR VRAW", "Msstdfmt.dll %SYSDIR VRAW",
                                         "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVb6, AsksForDataAccessOnce)
{
    PutProject("Object={1}; MSADODC.OCX\r\nObject={2}; MSRDC20.OCX\r\n");
    choices.cImportADO = choices.cImportRDO = true;
    Run({kDataAccess, kDone});
    EXPECT_TRUE(choices.MDAQuestionAsked);
    EXPECT_FALSE(choices.cInstallMDA);
    EXPECT_THAT(RowsFrom(6), ElementsAre("Msadodc.ocx %SYSDIR VRAW", "Msstdfmt.dll %SYSDIR VRAW",
                                         "Msrdc20.ocx %SYSDIR VRAW", "Rdocurs.dll %SYSDIR VA",
                                         "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVb6, AddsThePackageThatTheUserWants)
{
    PutProject("");
    machine.files.Put(kRedist + "\\MDAC_TYP.EXE", "package");
    choices.cImportRDO = true;
    ExpectedBox yes = kDataAccess;
    yes.answer = Answer::Yes;
    Run({yes, kDone});
    EXPECT_TRUE(choices.cInstallMDA);
    EXPECT_THAT(Rows(), Contains("MDAC_TYP.ZIP %DESTDIR W"));
    EXPECT_EQ(Row("MDAC_TYP.ZIP")[Source], "c:\\own\\temp\\mda\\mdac_typ.zip");
    EXPECT_EQ(machine.files.Get("C:\\Own\\Temp\\Mda\\MDAC_TYP.ZIP"), "package");
}

TEST_F(ImportVb6, AddsThePackageOnceWhereTheWalkHasAddedItToo)
{
    PutProject("Object={1}; MSADODC.OCX\r\n");
    machine.files.Put(kRedist + "\\MDAC_TYP.EXE", "package");
    machine.files.Put("C:\\Own\\Temp\\Mda\\MDAC_TYP.ZIP", "an older one");
    choices.cInstallMDA = true;
    Run({kDone});
    EXPECT_EQ(std::ranges::count(Rows(), "MDAC_TYP.ZIP %DESTDIR W"), 1);
    EXPECT_EQ(machine.files.Get("C:\\Own\\Temp\\Mda\\MDAC_TYP.ZIP"), "package");
}

TEST_F(ImportVb6, TellsAMissingPackage)
{
    PutProject("");
    choices.cInstallMDA = true;
    Run({{BoxKind::Critical, "Fel",
          "Kan ej hitta filen 'MDAC_TYP.EXE' på din hårddisk! Denna fil krävs för installation av "
          "Microsoft Data Objects!"},
         kDone});
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("MDAC"))));
}

TEST_F(ImportVb6, CopiesThePackageOnceForAllDataControls)
{
    PutProject("Object={1}; MSADODC.OCX\r\nObject={2}; MSADODC.OCX\r\nObject={3}; MSRDC20.OCX\r\n");
    choices.cInstallMDA = true;
    Run({{BoxKind::Critical, "Fel"}, kDone}); // it is missing, which is reported once
    machine.files.Put(kRedist + "\\MDAC_TYP.EXE", "package");
    machine.files.FailFromWrite(2, 61);
    Run({kDone});
    EXPECT_THAT(Rows(), Contains("MDAC_TYP.ZIP %DESTDIR W"));
}

TEST_F(ImportVb6, TellsAPackageThatCannotBeCopied)
{
    PutProject("");
    machine.files.Put(kRedist + "\\MDAC_TYP.EXE", "package");
    machine.files.FailFromWrite(1, 61);
    choices.cInstallMDA = true;
    Run({{BoxKind::Critical, "Fel inträffade"}, kDone});
    EXPECT_THAT(shown[0].text, HasSubstr("Disken är full"));
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("MDAC"))));
}

TEST_F(ImportVb6, TellsAProjectThatNamesTooManyControls)
{
    std::string lines;
    for (std::size_t i = 0; i < kMaxReferences; ++i)
        lines += "Object={1}; COMDLG32.OCX\r\n";
    PutProject(lines + "Object={2}; MSADODC.OCX\r\n");
    const ExpectedBox tooMany{BoxKind::Critical, "Fel inträffade",
                              "Projektfilen 'C:\\Proj\\Kund.vbp' anger fler än 1000 "
                              "ActiveX-filer. Endast de första 1000 är lästa."};
    Scan({tooMany});
    EXPECT_FALSE(choices.cImportADO);
    Run({tooMany, kDone});
    EXPECT_THAT(Rows(), Contains("Comdlg32.ocx %SYSDIR VRAW"));
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("Msadodc"))));
}

// Every kind of line that such a project has, written as different versions of the tool did.
TEST_F(ImportVb6, ReadsAProjectOfEveryFormOfLine)
{
    PutAll(kSystem, {"grid32.ocx", "tabctl32.ocx", "one.dll", "two.dll", "vb6stkit.dll"});
    PutProject("Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#..\\..\\WINDOWS\\"
               "SYSTEM32\\STDOLE2.TLB#OLE Automation\r\n"
               "Reference=*\\A..\\Lib\\Lib.vbp\r\n"
               "Object={F9043C88-F6F2-101A-A3C9-08002B2F49FB}#1.2#0; COMDLG32.OCX\r\n"
               "Object={BDC217C8-ED16-11CD-956C-0000C04E4C0A}; TABCTL32.OCX\r\n"
               "Object=\"{A8B3B723-0B5A-101B-B22E-00AA0037B2FC}#1.0#0\"; \"GRID32.OCX\"\r\n"
               "Object=*\\A..\\Control\\Own.vbp\r\n"
               "Object={0}#1.0#0;tight.ocx\r\n"
               "Module=basMain; Main.bas\r\n"
               "Module=basSetup1; ..\\Setup1\\Setup1.bas\r\n"
               "Module=\"basTools; C:\\My Files\\Tools.bas\"\r\n"
               "Class=clsRow; ..\\Common\\Row.cls\r\n"
               "Class=\"clsQuoted; Quoted.cls\"\r\n"
               "Form=frmMain.frm\r\nForm=\"..\\Forms\\frm Quoted.frm\"\r\n"
               "UserControl=ctlGrid.ctl\r\nUserControl=\"..\\ctl\\ctlOther.ctl\"\r\n"
               "Designer=dsrReport.Dsr\r\nRelatedDoc=readme.txt\r\n"
               "Startup=\"frmMain\"\r\nTitle=\"Kund; register\"\r\n"
               "[MS Transaction Server]\r\nAutoRefresh=1\r\n");
    Run({kDone});
    EXPECT_THAT(RowsFrom(6), ElementsAre("Comdlg32.ocx %SYSDIR VRAW", "Tabctl32.ocx %SYSDIR VRAW",
                                         "Grid32.ocx %SYSDIR VRAW", "Mfc42.dll %SYSDIR VRAW",
                                         "Msvcrt.dll %SYSDIR VA", "Vb6stkit.dll %SYSDIR VA",
                                         "One.dll %SYSDIR VA", "Two.dll %SYSDIR VA",
                                         "Kund.exe %DESTDIR\\Bin D"));
}

class ImportVb6Dao : public ImportVb6 {
protected:
    ImportVb6Dao()
    {
        PutAll(kSystem, {"vb5db.dll", "msrepl35.dll", "msrd2x35.dll", "expsrv.dll", "vbajet32.dll",
                         "msjint35.dll", "msjter35.dll", "msjet35.dll", "msjtes40.dll",
                         "msrepl40.dll", "msrd3x40.dll", "msrd2x40.dll", "mswdat10.dll",
                         "mswstr10.dll", "msjint40.dll", "msjter40.dll", "msjet40.dll"});
        PutAll("C:\\DAO", {"dao350.dll", "dao2535.tlb", "dao360.dll"});
        PutProject("");
    }

    /// The rows between the run-time files and the program.
    std::vector<Text> DaoRows() const
    {
        const auto rows = Rows();
        return {rows.begin() + 6, rows.end() - 1};
    }
};

TEST_F(ImportVb6Dao, AddsDao35)
{
    choices.cImportDAO35 = true;
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO350.DLL", "Path", "C:\\DAO\\DAO350.DLL");
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO2535.TLB", "Path", "C:\\DAO\\DAO2535.TLB");
    Run({kDone});
    EXPECT_THAT(DaoRows(), ElementsAre("VB5DB.dll %SYSDIR VA", "MsRepl35.dll %SYSDIR VA",
                                       "MSRD2x35.dll %SYSDIR VRAW", "EXPSRV.dll %SYSDIR VA",
                                       "VBAJet32.dll %SYSDIR VA", "MSJInt35.dll %SYSDIR VA",
                                       "MSJtEr35.dll %SYSDIR VA", "MSJet35.dll %SYSDIR VRAW",
                                       "DAO350.dll %DAODIR VRS", "DAO2535.tlb %DAODIR DS",
                                       "MSVCRT40.dll %SYSDIR VAW"));
    EXPECT_EQ(Row("DAO2535.tlb")[Source], "c:\\dao\\dao2535.tlb");
    EXPECT_EQ(Row("MSVCRT40.dll")[Source], LowerCase(kRedist) + "\\msvcrt40.dll");
}

// A library's own key goes before the common one, which is there as well.
TEST_F(ImportVb6Dao, TakesEachFileOfDao35FromItsOwnKeyFirst)
{
    const Text shared = "SOFTWARE\\Microsoft\\Shared Tools\\";
    choices.cImportDAO35 = true;
    PutAll("C:\\Lib", {"dao350.dll", "dao2535.tlb"});
    PutAll("C:\\Typ", {"dao350.dll", "dao2535.tlb"});
    Register(shared + "DAO350", "Path", "C:\\DAO\\DAO350.DLL");
    Register(shared + "DAO350.DLL", "Path", "C:\\Lib\\DAO350.DLL");
    Run({kDone});
    EXPECT_EQ(Row("DAO350.dll")[Source], "c:\\lib\\dao350.dll");
    EXPECT_EQ(Row("DAO2535.tlb")[Source], "c:\\dao\\dao2535.tlb")
        << "the types have the common key, not that of the library";
    project.Files.rows.clear();
    Register(shared + "DAO2535.TLB", "Path", "C:\\Typ\\DAO2535.TLB");
    Run({kDone});
    EXPECT_EQ(Row("DAO350.dll")[Source], "c:\\lib\\dao350.dll");
    EXPECT_EQ(Row("DAO2535.tlb")[Source], "c:\\typ\\dao2535.tlb");
}

TEST_F(ImportVb6Dao, TakesDao36FromItsOwnKeyFirst)
{
    choices.cImportDAO36 = true;
    PutAll("C:\\Common\\DAO", {"dao360.dll"});
    Register("SOFTWARE\\Microsoft\\Shared Tools", "SharedFilesDir", "C:\\Common\\");
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO360.DLL", "Path", "C:\\DAO\\DAO360.DLL");
    Run({kDone});
    EXPECT_EQ(Row("DAO360.dll")[Source], "c:\\dao\\dao360.dll");
}

// Kept: the order in which a project gets its lists.
TEST_F(ImportVb6Dao, AddsAllItsListsInOrder)
{
    choices.cImportDAO35 = choices.cImportDAO36 = choices.cImportADO = choices.cImportRDO =
        choices.cInstallMDA = choices.cImportActiveXSysFiles = choices.MDAQuestionAsked = true;
    PutAll(kSystem, {"vb6stkit.dll"});
    machine.files.Put(kRedist + "\\MDAC_TYP.EXE", "package");
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO350", "Path", "C:\\DAO\\DAO350.DLL");
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO360.DLL", "Path", "C:\\DAO\\DAO360.DLL");
    PutProject("Module=basSetup1; Setup1.bas\r\nObject={1}; COMDLG32.OCX\r\n");
    Run({kDone});
    EXPECT_THAT(NamesOf(project.Files),
                ElementsAre("ASYCFILT.dll", "COMCAT.dll", "OLEPRO32.dll", "OLEAUT32.dll",
                            "STDOLE2.tlb", "MSVBVM60.dll", "Comdlg32.ocx",
                            // DAO 3.5
                            "VB5DB.dll", "MsRepl35.dll", "MSRD2x35.dll", "EXPSRV.dll",
                            "VBAJet32.dll", "MSJInt35.dll", "MSJtEr35.dll", "MSJet35.dll",
                            "DAO350.dll", "DAO2535.tlb", "MSVCRT40.dll",
                            // DAO 3.6
                            "msjtes40.dll", "msrepl40.dll", "msrd3x40.dll", "msrd2x40.dll",
                            "mswdat10.dll", "mswstr10.dll", "msjint40.dll", "msjter40.dll",
                            "msjet40.dll", "DAO360.dll",
                            // ADO, RDO, their package, MFC, the modules
                            "Msstdfmt.dll", "Msadodc.ocx", "Rdocurs.dll", "Msrdc20.ocx",
                            "MDAC_TYP.ZIP", "Mfc42.dll", "Msvcrt.dll", "Vb6stkit.dll", "Kund.exe"));
}

TEST_F(ImportVb6, AddsThePackageAmongTheControlsWhereADataControlComes)
{
    PutProject("Object={1}; MSADODC.OCX\r\nObject={2}; COMDLG32.OCX\r\n");
    machine.files.Put(kRedist + "\\MDAC_TYP.EXE", "package");
    choices.cInstallMDA = true;
    Run({kDone});
    EXPECT_THAT(RowsFrom(6), ElementsAre("Msadodc.ocx %SYSDIR VRAW", "Msstdfmt.dll %SYSDIR VRAW",
                                         "MDAC_TYP.ZIP %DESTDIR W", "Comdlg32.ocx %SYSDIR VRAW",
                                         "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVb6Dao, FindsDao35ByItsCommonKey)
{
    choices.cImportDAO35 = true;
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO350", "Path", "C:\\DAO\\DAO350.DLL");
    Run({kDone});
    EXPECT_EQ(Row("DAO350.dll")[Source], "c:\\dao\\dao350.dll");
    EXPECT_EQ(Row("DAO2535.tlb")[Source], "c:\\dao\\dao2535.tlb");
}

ExpectedBox Dao35Missing(const Text& name)
{
    return {BoxKind::Critical, "Fel vid hämtning av DAO-filer",
            "Kan ej hitta information om filen '" + name +
                "' i Registry! Denna information ska normalt finnas vid "
                "'HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools\\" +
                name +
                " :: Path' i Registry, men denna information saknas. Antingen är DAO inte "
                "installerad på din dator eller så skedde något fel under installationen. Du kan "
                "prova att installera DAO på nytt. Om felet kvarstår kan du kontakta oss."};
}

TEST_F(ImportVb6Dao, AddsNeitherFileOfDao35WhereOneIsNotRegistered)
{
    choices.cImportDAO35 = true;
    Run({Dao35Missing("dao350.dll"), kDone});
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("%DAODIR"))));
    EXPECT_THAT(Rows(), Contains("MSVCRT40.dll %SYSDIR VAW")) << "the rest goes on";
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO350.DLL", "Path", "C:\\DAO\\DAO350.DLL");
    project.Files.rows.clear();
    Run({Dao35Missing("dao2535.tlb"), kDone});
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("%DAODIR"))));
}

TEST_F(ImportVb6Dao, TakesAFolderOfDaoWithAPointInItsName)
{
    choices.cImportDAO35 = choices.cImportDAO36 = true;
    PutAll("C:\\DAO.3", {"dao350.dll", "dao2535.tlb", "dao360.dll"});
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO350", "Path", "C:\\DAO.3");
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO360.DLL", "Path", "C:\\DAO.3\\");
    Run({kDone});
    EXPECT_EQ(Row("DAO350.dll")[Source], "c:\\dao.3\\dao350.dll");
    EXPECT_EQ(Row("DAO2535.tlb")[Source], "c:\\dao.3\\dao2535.tlb");
    EXPECT_EQ(Row("DAO360.dll")[Source], "c:\\dao.3\\dao360.dll");
}

// The remaining steps ask no questions and report no faults.
TEST_F(ImportVb6Dao, AsksAndTellsNothingMoreOnceItIsStopped)
{
    const ExpectedBox stopped{BoxKind::Inform, "Importen är avbruten",
                              "Importen har stoppats. De filer som redan har adderats ligger kvar "
                              "i fillistan."};
    choices.cImportDAO35 = choices.cImportDAO36 = choices.cImportADO = choices.cImportRDO =
        choices.cInstallMDA = true;
    for (const std::size_t place : {7U, 13U}) {
        project.Files.rows.clear();
        user.seen.clear();
        user.stopAfter = place;
        EXPECT_EQ(Run({stopped}).end, ImportEnd::Stopped) << place;
        EXPECT_EQ(project.Files.rows.size(), place);
    }
}

TEST_F(ImportVb6Dao, AddsDao36)
{
    choices.cImportDAO36 = true;
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO360.DLL", "Path", "C:\\DAO\\DAO360.DLL");
    Run({kDone});
    EXPECT_THAT(DaoRows(), ElementsAre("VB5DB.dll %SYSDIR VA", "msjtes40.dll %SYSDIR VRAW",
                                       "msrepl40.dll %SYSDIR VA", "msrd3x40.dll %SYSDIR VRAW",
                                       "msrd2x40.dll %SYSDIR VRAW", "mswdat10.dll %SYSDIR VA",
                                       "mswstr10.dll %SYSDIR VA", "ExpSrv.dll %SYSDIR VA",
                                       "VBAJET32.dll %SYSDIR VA", "msjint40.dll %SYSDIR VA",
                                       "msjter40.dll %SYSDIR VA", "msjet40.dll %SYSDIR VRAW",
                                       "DAO360.dll %DAODIR VRS"));
}

TEST_F(ImportVb6Dao, FindsDao36BelowTheSharedFiles)
{
    choices.cImportDAO36 = true;
    PutAll("C:\\Common\\DAO", {"dao360.dll"});
    Register("SOFTWARE\\Microsoft\\Shared Tools", "SharedFilesDir", "C:\\Common\\");
    Run({kDone});
    EXPECT_EQ(Row("DAO360.dll")[Source], "c:\\common\\dao\\dao360.dll");
}

TEST_F(ImportVb6Dao, TellsThatDao36IsNotRegistered)
{
    choices.cImportDAO36 = true;
    Run({{BoxKind::Critical, "Fel vid hämtning av DAO-filer",
          "Kan ej hitta information om filen 'dao360.dll' i Registry! Denna information ska "
          "normalt finnas vid 'HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools' i Registry, "
          "men denna information saknas. Antingen är DAO 3.6 inte installerad på din dator eller "
          "så skedde något fel under installationen. Du kan prova att installera DAO på nytt. Om "
          "felet kvarstår kan du kontakta oss."},
         kDone});
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("%DAODIR"))));
}

TEST_F(ImportVb6, FollowsDependencyFilesWhereTheBoxIsTicked)
{
    PutProject("Object={1}; COMDLG32.OCX\r\n");
    PutAll(kSystem, {"helper.dll"});
    machine.files.Put(kSystem + "\\comdlg32.DEP", "[COMDLG32.OCX]\r\nUses1=helper.dll\r\n");
    choices.cUseDepFile = 2;
    Run({kDone});
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("helper.dll")))) << "grey is not ticked";
    choices.cUseDepFile = 1;
    project.Files.rows.clear();
    Run({kDone});
    EXPECT_THAT(Rows(), Contains("helper.dll %SYSDIR DA"));
}

// Neither its dependency file nor the control itself is one of the system folder.
TEST_F(ImportVb6, FollowsNoControlThatIsNamedWithAFolder)
{
    PutAll(kSystem + "\\Proj", {"helper.dll"});
    PutAll(kSystem, {"helper.dll"});
    machine.files.Put(kSystem + "\\Proj\\own.ocx",
                      MakeLinkedProgram({.isLibrary = true, .imports = {"MFC42.DLL"}}));
    machine.files.Put(kSystem + "\\Proj\\own.dep", "[Proj\\own.ocx]\r\nUses1=helper.dll\r\n");
    PutProject("Object={1}; Proj\\own.ocx\r\n");
    Scan();
    EXPECT_FALSE(choices.cImportActiveXSysFiles);
    EXPECT_THAT(Missed(Run({NotInSystemFolder("Proj\\own.ocx"), kControlElsewhere, kDone})),
                ElementsAre("Proj\\own.ocx: ligger utanför systemkatalogen"));
    EXPECT_FALSE(choices.cImportActiveXSysFiles);
    EXPECT_THAT(Rows(), Not(Contains(HasSubstr("helper.dll"))));
}

TEST_F(ImportVb6, ShowsTheFilesOfDependencyFilesAndStopsAmongThem)
{
    PutProject("Object={1}; COMDLG32.OCX\r\n");
    PutAll(kSystem, {"a.dll", "b.dll", "c.dll"});
    machine.files.Put(kSystem + "\\comdlg32.DEP",
                      "[COMDLG32.OCX]\r\nUses1=a.dll\r\nUses2=b.dll\r\nUses3=c.dll\r\n"
                      "[a.dll]\r\nUses1=c.dll\r\n");
    Run({kDone});
    EXPECT_THAT(user.seen, IsSupersetOf({"a.dll", "b.dll", "c.dll"}));
    project.Files.rows.clear();
    user.seen.clear();
    user.stopAfter = 8; // a.dll
    EXPECT_EQ(Run({{BoxKind::Inform, "Importen är avbruten"}}).end, ImportEnd::Stopped);
    EXPECT_THAT(RowsFrom(6), ElementsAre("Comdlg32.ocx %SYSDIR VRAW", "a.dll %SYSDIR DA"));
    EXPECT_EQ(user.seen.back(), "c.dll");
}

TEST_F(ImportVb6, TellsWhatADependencyFileNamesAndIsNotAdded)
{
    PutProject("Object={1}; COMDLG32.OCX\r\n");
    PutAll(kSystem, {"a.dll", "c.dll", "shdocvw.dll"});
    FileListRow& row = project.Files.rows.emplace_back();
    row[Filename] = "a.dll";
    row[Destination] = "%SYSDIR";
    row[Source] = "c:\\other\\a.dll";
    machine.files.Put(kSystem + "\\comdlg32.DEP",
                      "[COMDLG32.OCX]\r\nUses1=a.dll\r\nUses2=shdocvw.dll\r\n"
                      "Uses3=gone.dll\r\nUses4=c.dll\r\n");
    const ImportResult result = Run({{BoxKind::Critical, "Fel"}, kDone});
    EXPECT_THAT(Missed(result),
                ElementsAre("a.dll: finns redan i fillistan",
                            "shdocvw.dll: hör till Windows och läggs aldrig in",
                            "gone.dll: finns inte vid källsökvägen",
                            "COMDLG32.DEP: är ej läst till slutet, eftersom en fil i den inte "
                            "kunde adderas"));
}

// Neither of the two files is cut because the other one has told of what both name.
TEST_F(ImportVb6, TellsAFileOnceThatTwoDependencyFilesMiss)
{
    PutProject("Object={1}; A.OCX\r\nObject={2}; B.OCX\r\n");
    PutAll(kSystem, {"a.ocx", "b.ocx", "x.dll"});
    machine.files.Put(kSystem + "\\a.dep", "[A.OCX]\r\nUses1=gone.dll\r\n");
    machine.files.Put(kSystem + "\\b.dep", "[B.OCX]\r\nUses1=gone.dll\r\nUses2=x.dll\r\n");
    const ExpectedBox gone{BoxKind::Critical, "Fel",
                           "Filen 'c:\\windows\\system32\\gone.dll' finns inte."};
    for (const bool isAgain : {false, true}) {
        const ImportResult result = Run({gone, kDone});
        EXPECT_THAT(Rows(), Contains("x.dll %SYSDIR DA")) << isAgain;
        EXPECT_THAT(Missed(result),
                    IsSupersetOf({"gone.dll: finns inte vid källsökvägen",
                                  "A.DEP: är ej läst till slutet, eftersom en fil i den inte kunde "
                                  "adderas"}));
        EXPECT_THAT(Missed(result), Not(Contains(HasSubstr("B.DEP"))));
        EXPECT_EQ(std::ranges::count(Rows(), "gone.dll %SYSDIR "), 1);
        // The next import tries its row once again.
        std::erase_if(project.Files.rows,
                      [](const FileListRow& row) { return row[Filename] == "x.dll"; });
    }
}

TEST_F(ImportVb6, AsksForTheIconOfTheProgram)
{
    PutProject("");
    choices.cAddIcon = true;
    user.iconDescription = "Kundregister";
    Run({kDone});
    EXPECT_EQ(user.iconTitle, "Skriv in ikon-uppgifter för Kund.exe");
    EXPECT_EQ(user.rowAtIcon[IconMarker], "Ikon");
    EXPECT_EQ(user.rowAtIcon[IconDocReader], "<Ingen>");
    EXPECT_EQ(Row("Kund.exe")[IconMarker], "Ikon");
    EXPECT_EQ(Row("Kund.exe")[IconDesc], "Kundregister");
    EXPECT_EQ(Row("Kund.exe")[IconDocReader], "<Ingen>");
}

TEST_F(ImportVb6, TakesTheIconBackWhereTheUserCancels)
{
    PutProject("");
    choices.cAddIcon = true;
    Run({kDone});
    EXPECT_EQ(Row("Kund.exe")[IconMarker], "");
    EXPECT_EQ(Row("Kund.exe")[IconDocReader], "");
}

// The last row is another file then; the icon still goes to the program.
TEST_F(ImportVb6, KeepsTheIconOfAProgramThatIsInTheListAlready)
{
    PutProject("");
    choices.cAddIcon = true;
    FileListRow& row = project.Files.rows.emplace_back();
    row[Filename] = "KUND.EXE";
    row[Destination] = "%DESTDIR";
    row[Source] = LowerCase(kExe);
    row[IconMarker] = "IkonD";
    row[IconDesc] = "Kund";
    const ImportResult result = Run({kDone});
    EXPECT_FALSE(result.newProgram);
    EXPECT_EQ(user.rowAtIcon[Filename], "KUND.EXE");
    EXPECT_EQ(project.Files.rows[0][IconMarker], "IkonD");
    EXPECT_EQ(project.Files.rows[0][IconDesc], "Kund");
    EXPECT_EQ(project.Files.rows.back()[IconMarker], "");
    EXPECT_THAT(Missed(result), ElementsAre("Kund.exe: finns redan i fillistan"));
    EXPECT_EQ(result.places.size(), 7U);
}

TEST_F(ImportVb6, StopsWhereItsUserWantsIt)
{
    PutProject("Object={1}; COMDLG32.OCX\r\n");
    user.stopAfter = 3;
    EXPECT_EQ(Run({{BoxKind::Inform, "Importen är avbruten",
                    "Importen har stoppats. De filer som redan har adderats ligger kvar i "
                    "fillistan."}})
                  .end,
              ImportEnd::Stopped);
    EXPECT_EQ(project.Files.rows.size(), 3U);
    EXPECT_THAT(user.steps, IsEmpty());
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(ImportVb6, TellsAProgramThatIsGone)
{
    PutProject("");
    choices.sEXEfile = "C:\\Proj\\gone.exe";
    EXPECT_EQ(Run({{BoxKind::Critical, "Fel", "Filen 'C:\\Proj\\gone.exe' finns inte."}}).end,
              ImportEnd::Failed);
    EXPECT_THAT(user.steps, ElementsAre("hide", "status", "destination"));
}

TEST_F(ImportVb6, SortsAListThatIsKeptInOrder)
{
    project.Files.sorted = true;
    FileListRow& row = project.Files.rows.emplace_back();
    row[Filename] = "m.txt";
    PutProject("");
    const ImportResult result = Run({kDone});
    EXPECT_EQ(project.Files.rows[result.places[0]][Filename], "m.txt");
    ASSERT_TRUE(result.newProgram);
    EXPECT_EQ(project.Files.rows[*result.newProgram][Filename], "Kund.exe");
    EXPECT_EQ(project.Files.rows.front()[Filename], "ASYCFILT.dll");
}

TEST_F(ImportVb6, WritesNothingOnADryRun)
{
    PutProject("");
    machine.files.Put(kRedist + "\\MDAC_TYP.EXE", "package");
    choices.cInstallMDA = true;
    ScriptedAsk ask{{kDone}};
    ImportWork work = Work(ask);
    work.isDryRun = true;
    ImportVb6Project(work, data, choices);
    EXPECT_THAT(Rows(), Contains("MDAC_TYP.ZIP %DESTDIR W"));
    EXPECT_FALSE(machine.files.DirExists("C:\\Own"));
}

TEST_F(ImportVb6, TakesRunTimeFilesFromTheRedistributionFolderOnWindowsXP)
{
    PutProject("");
    machine.machine.windowsXP = true;
    Run({kDone});
    EXPECT_EQ(project.Files.rows.size(), 7U);
}

TEST(FindVb6Directory, TakesTheFolderOfTheRegisteredCommand)
{
    MemoryHost machine;
    Text& command =
        machine.machine
            .registry[{RegistryRoot::ClassesRoot, "VisualBasic.Project\\shell\\open\\command", ""}];
    EXPECT_EQ(FindVb6Directory(machine.machine), "");
    command = "\"C:\\Program Files\\VB98\\VB6.EXE\" \"%1\"";
    EXPECT_EQ(FindVb6Directory(machine.machine), "C:\\Program Files\\VB98");
    command = "D:\\VB98\\VB6.EXE %1";
    EXPECT_EQ(FindVb6Directory(machine.machine), "D:\\VB98");
    command = Text("C:\\VB98\\VB6.EXE\0 \\x", 19);
    EXPECT_EQ(FindVb6Directory(machine.machine), "C:\\VB98");
    command = "C:\\" + Text(600, 'x') + "\\VB6.EXE";
    EXPECT_EQ(FindVb6Directory(machine.machine), "C:") << "no more than the buffer holds";
    command = "VB6.EXE";
    EXPECT_EQ(FindVb6Directory(machine.machine), "");
}

} // namespace quillon::test
