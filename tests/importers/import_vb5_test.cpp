#include "importers/import_vb5.h"

#include "import_context.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const ExpectedBox kDone{
    BoxKind::Inform, "Info",
    "Allt är nu klart! Importen gick bra! Alla filer som kan hittas i Visual Basic 5.0 "
    "projekt-filen har nu adderats till fillistan. Anropar du funktioner i DLL-filer från "
    "tredjeparts-tillverkare måste dessa läggas in manuellt till fillistan. Samma sak gäller om du "
    "använder ActiveX:er som i sin tur är beroende av andra DLL-filer. Dessa DLL.er måste också "
    "läggas in manuellt i fillistan."};

const Text kKit = "C:\\VB\\setupkit\\kitfil32\\sys32";

class ImportVb5 : public ImportContext {
protected:
    ImportVb5()
    {
        PutAll(kKit, {"asycfilt.dll", "comcat.dll", "ctl3d32.dll", "oleaut32.dll", "olepro32.dll",
                      "stdole2.tlb"});
        PutAll(kSystem, {"msvbvm50.dll", "shdocvw.dll", "grid32.ocx", "mfc42.dll", "msvcrt.dll"});
        machine.files.Put(kVbp, "Type=Exe\r\n");
        choices.sVBPfile = kVbp;
        choices.sEXEfile = kExe;
        choices.tVBDirectory = kVbFolder;
        choices.cAddIcon = false;
    }

    ImportResult Run(std::deque<ExpectedBox> boxes)
    {
        ScriptedAsk ask(std::move(boxes));
        const ImportResult result = ImportVb5Project(Work(ask), choices);
        EXPECT_FALSE(ask.busyPointer);
        return result;
    }

    Vb5Choices choices;
};

} // namespace

TEST_F(ImportVb5, AddsItsListsInOrder)
{
    machine.files.Put(kVbp, "Object={EAB22AC0}#1.1#0; shdocvw.dll\r\nObject={1}; Grid32.ocx\r\n");
    choices.cImportActiveXSysFiles = true;
    EXPECT_EQ(Run({kDone}).end, ImportEnd::Done);
    EXPECT_THAT(Rows(), ElementsAre("MSVBVM50.dll %SYSDIR VRAW", "AsycFilt.dll %SYSDIR VAWE",
                                    "ComCat.dll %SYSDIR VRAW", "Ctl3d32.dll %SYSDIR VAWE",
                                    "OleAut32.dll %SYSDIR VRAW", "OlePro32.dll %SYSDIR VRAW",
                                    "StdOle2.tlb %SYSDIR DAW", "Mfc42.dll %SYSDIR VRAW",
                                    "Msvcrt.dll %SYSDIR VA", "shdocvw.dll %SYSDIR VRAW",
                                    "Grid32.ocx %SYSDIR VRAW", "Kund.exe %DESTDIR\\Bin D"));
    EXPECT_EQ(Row("ComCat.dll")[Source], LowerCase(kKit) + "\\comcat.dll");
    EXPECT_THAT(user.steps, ElementsAre("hide", "status", "destination", "status"));
}

TEST_F(ImportVb5, AddsDao35)
{
    PutAll(kSystem, {"msjter35.dll", "msjint35.dll", "msvcrt40.dll", "msjet35.dll", "vbajet32.dll",
                     "vb5db.dll", "msrd2x35.dll", "msrepl35.dll", "odbcjt32.dll", "odbcji32.dll",
                     "odbctl32.dll"});
    PutAll("C:\\DAO", {"dao350.dll", "dao2535.tlb"});
    Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO350", "Path", "C:\\DAO\\DAO350.DLL");
    choices.cImportDAO35 = true;
    Run({kDone});
    const auto rows = Rows();
    EXPECT_THAT(
        std::vector<Text>(rows.begin() + 7, rows.end() - 1),
        ElementsAre("MSJtEr35.dll %SYSDIR VA", "MSJInt35.dll %SYSDIR VA", "MSVCRT40.dll %SYSDIR VA",
                    "MSJet35.dll %SYSDIR VRAW", "VBAJet32.dll %SYSDIR VA", "VB5DB.dll %SYSDIR VA",
                    "MSRD2x35.dll %SYSDIR VRAW", "MsRepl35.dll %SYSDIR VA",
                    "ODBCJt32.dll %SYSDIR VA", "ODBCJI32.dll %SYSDIR VA", "ODBCTL32.dll %SYSDIR VA",
                    "DAO2535.tlb %DAODIR DS", "DAO350.dll %DAODIR VRS"));
    EXPECT_EQ(Row("MSVCRT40.dll")[Source], LowerCase(kSystem) + "\\msvcrt40.dll");
}

// Version 5 knows neither dependency files nor data controls nor what a control is built with.
TEST_F(ImportVb5, TakesItsControlsForNoMoreThanTheyAre)
{
    PutAll(kSystem, {"msadodc.ocx", "msrdc20.ocx", "msstdfmt.dll", "rdocurs.dll", "helper.dll"});
    machine.files.Put(kSystem + "\\own.ocx",
                      MakeLinkedProgram({.isLibrary = true, .imports = {"MFC42.DLL"}}));
    machine.files.Put(kSystem + "\\own.dep", "[own.ocx]\r\nUses1=helper.dll\r\n");
    machine.files.Put(kVbp, "Object={1}; MSADODC.OCX\r\nObject={2}; MSRDC20.OCX\r\n"
                            "Object={3}; own.ocx\r\nObject={4}; grid32.ocx\r\n");
    Run({kDone});
    const auto rows = Rows();
    EXPECT_THAT(std::vector<Text>(rows.begin() + 7, rows.end()),
                ElementsAre("Msadodc.ocx %SYSDIR VRAW", "Msrdc20.ocx %SYSDIR VRAW",
                            "own.ocx %SYSDIR VRAW", "grid32.ocx %SYSDIR VRAW",
                            "Kund.exe %DESTDIR\\Bin D"));
    EXPECT_FALSE(choices.cImportActiveXSysFiles);
}

TEST_F(ImportVb5, TakesTheFolderOfDaoWhereTheRegistryNamesItAlone)
{
    PutAll(kSystem, {"msjter35.dll", "msjint35.dll", "msvcrt40.dll", "msjet35.dll", "vbajet32.dll",
                     "vb5db.dll", "msrd2x35.dll", "msrepl35.dll", "odbcjt32.dll", "odbcji32.dll",
                     "odbctl32.dll"});
    PutAll("C:\\DAO", {"dao350.dll", "dao2535.tlb"});
    PutAll("C:\\DAO.3", {"dao350.dll", "dao2535.tlb"});
    choices.cImportDAO35 = true;
    for (const Text& folder : {Text("C:\\DAO"), Text("C:\\DAO.3")}) {
        project.Files.rows.clear();
        Register("SOFTWARE\\Microsoft\\Shared Tools\\DAO350", "Path", folder + "\\");
        Run({kDone});
        EXPECT_EQ(Row("DAO350.dll")[Source], LowerCase(folder) + "\\dao350.dll");
        EXPECT_EQ(Row("DAO2535.tlb")[Source], LowerCase(folder) + "\\dao2535.tlb");
    }
}

TEST_F(ImportVb5, TellsThatDaoIsNotRegistered)
{
    PutAll(kSystem, {"msjter35.dll", "msjint35.dll", "msvcrt40.dll", "msjet35.dll", "vbajet32.dll",
                     "vb5db.dll", "msrd2x35.dll", "msrepl35.dll", "odbcjt32.dll", "odbcji32.dll",
                     "odbctl32.dll"});
    choices.cImportDAO35 = true;
    EXPECT_THAT(
        Missed(Run({{BoxKind::Critical, "Fel",
                     "Kan ej hitta DAO-filerna 'DAO2535.tlb' och 'DAO350.dll' på din hårddisk!"},
                    kDone})),
        ElementsAre("DAO2535.tlb: saknas i registry", "DAO350.dll: saknas i registry"));
}

TEST_F(ImportVb5, TellsNothingOfDaoOnceItIsStopped)
{
    choices.cImportDAO35 = true;
    user.stopAfter = 7;
    EXPECT_EQ(Run({{BoxKind::Inform, "Importen är avbruten"}}).end, ImportEnd::Stopped);
    EXPECT_EQ(project.Files.rows.size(), 7U);
}

TEST_F(ImportVb5, TellsAControlOutsideTheSystemFolder)
{
    machine.files.Put(kVbp, "Object={1}; own.ocx\r\nObject={2}; own.ocx\r\n");
    const ExpectedBox elsewhere{
        BoxKind::Inform, "Info",
        "Alla ActiveX-filer som ingår i ett Visual Basic projekt måste vara placerade i "
        "systemkatalogen, ifall dessa ska importeras automatiskt till fillistan! Är ActiveX-filen "
        "placerad i en annan katalog måste den adderas manuellt till fillistan."};
    Run({{BoxKind::Critical, "Kan ej addera en fil"}, elsewhere, kDone});
}

TEST_F(ImportVb5, HasItsOwnTextsForTheFolder)
{
    choices.tVBDirectory = "";
    EXPECT_EQ(Run({{BoxKind::Inform, "Info",
                    "Fältet 'Visual Basic 5.0 katalog' måste innehålla en sökväg till Visual Basic "
                    "5.0 filer!"}})
                  .end,
              ImportEnd::Refused);
    choices.tVBDirectory = "C:\\Nej";
    EXPECT_EQ(Run({{BoxKind::Critical, "Fel",
                    "Katalogen som anges vid 'Visual Basic 5.0 katalog' existerar inte! Kan ej "
                    "importera! Kontrollera sökvägen!"}})
                  .end,
              ImportEnd::Refused);
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ImportVb5, EndsWhereTheDestinationIsCancelled)
{
    user.destination.reset();
    EXPECT_EQ(Run({}).end, ImportEnd::Cancelled);
    EXPECT_EQ(project.Files.rows.size(), 7U);
}

TEST_F(ImportVb5, AsksForTheIconWhereItIsWanted)
{
    choices.cAddIcon = true;
    user.iconDescription = "Kund";
    Run({kDone});
    EXPECT_EQ(Row("Kund.exe")[IconDesc], "Kund");
}

TEST(FindVb5Directory, IsTheRegisteredOne)
{
    MemoryHost machine;
    EXPECT_EQ(FindVb5Directory(machine.machine), "");
    machine.machine.registry[{RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft\\Visual Basic\\5.0",
                              "InstallDir"}] = Text("C:\\VB5\0x", 8);
    EXPECT_EQ(FindVb5Directory(machine.machine), "C:\\VB5");
}

TEST(FindVb5Directory, HasNoMoreThanTheBufferHolds)
{
    MemoryHost machine;
    Text& folder = machine.machine.registry[{
        RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft\\Visual Basic\\5.0", "InstallDir"}];
    const Text longest = "C:\\" + Text(508, 'x');
    folder = longest;
    EXPECT_EQ(FindVb5Directory(machine.machine), longest) << "511 characters, and a NUL";
    folder = longest + "y";
    EXPECT_EQ(FindVb5Directory(machine.machine), longest);
}

} // namespace quillon::test
