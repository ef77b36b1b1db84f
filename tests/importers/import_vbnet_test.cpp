#include "importers/import_vbnet.h"

#include "import_context.h"
#include "importers/vb_project.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kVbproj = "C:\\Proj\\Kund.vbproj";
const Text kNetExe = "C:\\Proj\\bin\\Kund.exe";

const ExpectedBox kDone{
    BoxKind::Inform, "Importen är klar",
    "Importen är nu klar! Alla filer som kan erhållas via Visual Basic .NET projektfilen har "
    "adderats till fillistan. Anropar du funktioner i DLL-filer från tredjeparts-tillverkare måste "
    "dessa läggas in manuellt till fillistan."};
const ExpectedBox kNoReferences{
    BoxKind::Critical, "Fel inträffade",
    "Kan ej hitta referenser i projektfilen! Projektfilen är sannolikt inte en giltig .NET "
    "projektfil."};

std::string Reference(const std::string& guid, const std::string& major, const std::string& minor)
{
    return "<Reference\r\nGuid = \"{" + guid + "}\"\r\nVersionMajor = \"" + major +
           "\"\r\nVersionMinor = \"" + minor + "\"\r\n/>\r\n";
}

class ImportVbNet : public ImportContext {
protected:
    ImportVbNet()
    {
        machine.files.Put(kNetExe, "MZ");
        choices.sVBPfile = kVbproj;
        choices.sEXEfile = kNetExe;
        data.Add("[Wrappers]\nQNHELP.VB=QnHelp.dll\nTools.vb=Tools.dll\n");
    }

    void PutProject(const std::string& references, const std::string& more = "")
    {
        machine.files.Put(kVbproj, "<VisualStudioProject>\r\n<References>\r\n" + references +
                                       "</References>\r\n" + more);
    }
    ImportResult Run(std::deque<ExpectedBox> boxes)
    {
        ScriptedAsk ask(std::move(boxes));
        ImportResult result = ImportVbNetProject(Work(ask), data, choices);
        EXPECT_FALSE(ask.busyPointer);
        return result;
    }

    ImportData data;
    VbNetChoices choices;
};

} // namespace

TEST_F(ImportVbNet, AddsComponentsProgramAndTheLibrariesBesideIt)
{
    PutAll(kSystem, {"mscomctl.ocx", "msxml3.dll", "stdole2.tlb"});
    PutAll("C:\\Proj\\bin", {"AxInterop.MSComctlLib.dll", "Kund.pdb", "Other.DLL"});
    RegisterTypes("{A}\\2.0", kSystem + "\\MSCOMCTL.OCX");
    RegisterTypes("{B}\\3.0", "c:\\windows\\system32\\msxml3.dll");
    RegisterTypes("{C}\\2.0", kSystem + "\\STDOLE2.TLB");
    RegisterTypes("{D}\\1.0", "C:\\Program\\Own\\own.ocx");
    PutProject(Reference("A", "2", "0") + Reference("B", "3", "0") + Reference("C", "2", "0") +
               Reference("D", "1", "0") + Reference("E", "1", "0"));
    const ImportResult result = Run({kDone});
    EXPECT_EQ(result.end, ImportEnd::Done);
    EXPECT_THAT(Rows(),
                ElementsAre("Mscomctl.ocx %SYSDIR VRAW", "msxml3.dll %SYSDIR VA",
                            "Kund.exe %DESTDIR\\Bin D", "AxInterop.MSComctlLib.dll %DESTDIR DA",
                            "Other.DLL %DESTDIR DA"));
    EXPECT_THAT(Missed(result),
                ElementsAre("STDOLE2.TLB: hör till Windows och läggs aldrig in",
                            "C:\\Program\\Own\\own.ocx: ligger utanför systemkatalogen",
                            "{E}: saknas i registry"));
    EXPECT_THAT(user.steps,
                ElementsAre("hide", "status", "destination", "status", "status", "icon"));
}

TEST_F(ImportVbNet, CallsAnUnregisteredReferenceAsTheProjectDoes)
{
    PutProject("<Reference\r\nName = \"MSComctlLib\"\r\nGuid = \"{A}\"\r\n"
               "VersionMajor = \"2\"\r\nVersionMinor = \"0\"\r\n/>\r\n" +
               Reference("B", "1", "0"));
    EXPECT_THAT(Missed(Run({kDone})),
                ElementsAre("MSComctlLib ({A}): saknas i registry", "{B}: saknas i registry"));
}

TEST_F(ImportVbNet, NeverAddsTheBrowser)
{
    PutAll(kSystem, {"shdocvw.dll"});
    RegisterTypes("{A}\\1.1", kSystem + "\\ShDocVw.dll");
    PutProject(Reference("A", "1", "1"));
    EXPECT_THAT(Missed(Run({kDone})),
                ElementsAre("ShDocVw.dll: hör till Windows och läggs aldrig in"));
    EXPECT_THAT(Rows(), ElementsAre("Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVbNet, GivesTheIconToTheProgram)
{
    PutAll("C:\\Proj\\bin", {"Other.dll"});
    PutProject("");
    user.iconDescription = "Kund";
    Run({kDone});
    EXPECT_EQ(user.iconTitle, "Skriv in ikon-uppgifter för Kund.exe");
    EXPECT_EQ(Row("Kund.exe")[IconDesc], "Kund");
    EXPECT_EQ(Row("Other.dll")[IconMarker], "");
}

TEST_F(ImportVbNet, SkipsAComponentThatAnyRowHasByName)
{
    PutAll(kSystem, {"mscomctl.ocx"});
    RegisterTypes("{A}\\2.0", kSystem + "\\mscomctl.ocx");
    PutProject(Reference("A", "2", "0"));
    FileListRow& row = project.Files.rows.emplace_back();
    row[Filename] = "MSComCtl.ocx";
    row[Source] = "c:\\other\\mscomctl.ocx";
    row[Destination] = "%DESTDIR";
    EXPECT_THAT(Missed(Run({kDone})), ElementsAre("mscomctl.ocx: finns redan i fillistan"));
}

TEST_F(ImportVbNet, FollowsTheDependencyFilesOfControlsAlone)
{
    PutAll(kSystem, {"grid.ocx", "lib.dll", "grid_needs.dll", "lib_needs.dll"});
    machine.files.Put(kSystem + "\\grid.dep", "[grid.ocx]\r\nUses1=grid_needs.dll\r\n");
    machine.files.Put(kSystem + "\\lib.dep", "[lib.dll]\r\nUses1=lib_needs.dll\r\n");
    RegisterTypes("{A}\\1.0", kSystem + "\\grid.ocx");
    RegisterTypes("{B}\\1.0", kSystem + "\\lib.dll");
    PutProject(Reference("A", "1", "0") + Reference("B", "1", "0"));
    Run({kDone});
    EXPECT_THAT(Rows(), ElementsAre("grid.ocx %SYSDIR VRAW", "grid_needs.dll %SYSDIR DA",
                                    "lib.dll %SYSDIR VA", "Kund.exe %DESTDIR\\Bin D"));
    project.Files.rows.clear();
    choices.cUseDepFile = 2;
    Run({kDone});
    EXPECT_THAT(Rows(), ElementsAre("grid.ocx %SYSDIR VRAW", "lib.dll %SYSDIR VA",
                                    "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVbNet, AddsTheLibrariesOfIncludedWrappers)
{
    PutAll(kSystem, {"qnhelp.dll", "tools.dll"});
    PutProject("", "RelPath = \"tools.vb\"\r\n<Files>\r\n<Include>\r\n<File\r\n"
                   "RelPath = \"..\\Lib\\QnHelp.vb\"\r\nRelPath = \"Form1.vb\"\r\n");
    Run({kDone});
    EXPECT_THAT(Rows(), ElementsAre("QnHelp.dll %SYSDIR VA", "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVbNet, StopsAtTheFirstCheckThatFails)
{
    PutProject("");
    choices.sVBPfile = choices.sEXEfile = "";
    EXPECT_EQ(Run({{BoxKind::Inform, "Info",
                    "Du måste välja en projektfil och tillhörande programfil först!"}})
                  .end,
              ImportEnd::Refused);
    choices.sVBPfile = kVbproj;
    EXPECT_EQ(Run({{BoxKind::Inform, "Info",
                    "Du måste välja den programfil som ditt Visual basic-projekt skapar vid "
                    "kompilering först! Du väljer en programfil genom att trycka på knappen 'Välj "
                    "programfil...'."}})
                  .end,
              ImportEnd::Refused);
    choices.sVBPfile = "";
    choices.sEXEfile = kNetExe;
    EXPECT_EQ(
        Run({{BoxKind::Inform, "Info", "Du måste välja en Visual Basic projektfil först !"}}).end,
        ImportEnd::Refused);
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ImportVbNet, TellsAFileWithoutReferencesAndGoesOn)
{
    machine.files.Put(kVbproj, "<VisualStudioProject>\r\n");
    EXPECT_EQ(Run({kNoReferences, kDone}).end, ImportEnd::Done);
    EXPECT_THAT(Rows(), ElementsAre("Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVbNet, TellsAFileThatCannotBeReadAndGoesOn)
{
    EXPECT_EQ(Run({{BoxKind::Critical, "Fel inträffade",
                    "Kan ej öppna eller läsa Visual Basic projektfil!"},
                   kDone})
                  .end,
              ImportEnd::Done);
}

TEST_F(ImportVbNet, NamesTheImportThatProjectsOfLaterYearsNeed)
{
    machine.files.Put(kVbproj, "<Project Sdk=\"Microsoft.NET.Sdk\">\n</Project>\n");
    EXPECT_EQ(
        Run({{BoxKind::Critical, "Fel inträffade",
              "Projektfilen är av det nyare slag som Visual Studio 2005 och senare skapar, "
              "och anger inte vilka filer programmet behöver. Bygg eller publicera programmet "
              "och använd i stället 'Importera programkatalog...' i menyn Arkiv (quillonc "
              "import-folder) på den katalog där programmet hamnar."}})
            .end,
        ImportEnd::Refused);
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ImportVbNet, ReadsWhatADamagedFileStillHolds)
{
    PutAll(kSystem, {"grid.ocx"});
    RegisterTypes("{A}\\1.0", kSystem + "\\grid.ocx");
    machine.files.Put(kVbproj,
                      std::string("\0\r\n", 3) + "<References>\r\n" + Reference("A", "1", "0"));
    Run({{BoxKind::Critical, "Fel inträffade"}, kDone});
    EXPECT_EQ(project.Files.rows.size(), 2U);
}

TEST_F(ImportVbNet, EndsWhereTheDestinationIsCancelled)
{
    PutAll("C:\\Proj\\bin", {"Other.dll"});
    PutProject("");
    user.destination.reset();
    EXPECT_EQ(Run({}).end, ImportEnd::Cancelled);
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ImportVbNet, PassesOverLibrariesThatCannotBeRead)
{
    PutAll("C:\\Proj\\bin", {"shut.dll", "zopen.dll"});
    machine.files.At("C:\\Proj\\bin\\shut.dll").unreadable = true;
    PutProject("");
    const ImportResult result = Run({kDone});
    EXPECT_THAT(Rows(), ElementsAre("Kund.exe %DESTDIR\\Bin D", "zopen.dll %DESTDIR DA"));
    EXPECT_THAT(Missed(result),
                ElementsAre("shut.dll: är dold eller skyddad av Windows, kan ej läsas eller har "
                            "ett otillåtet namn"))
        << "listed, not lost";
}

TEST_F(ImportVbNet, ListsAProgramFolderThatCannotBeRead)
{
    PutAll("C:\\Proj\\bin", {"Other.dll"});
    machine.files.PutFolder("C:\\Proj\\bin");
    machine.files.At("C:\\Proj\\bin").unreadable = true;
    PutProject("");
    EXPECT_THAT(Missed(Run({kDone})),
                ElementsAre("C:\\Proj\\bin: är dold eller skyddad av Windows, kan ej läsas eller "
                            "har ett otillåtet namn"));
    EXPECT_THAT(Rows(), ElementsAre("Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVbNet, TellsWhatToSetWhereComponentsNeedASystemFolderThatIsNotThere)
{
    machine.files.RemoveFile(kSystem + "\\kernel32.dll");
    const ExpectedBox noFolder{
        BoxKind::Critical, "Systemkatalogen saknas",
        "Systemkatalogen 'C:\\WINDOWS\\SYSTEM32' finns inte eller är tom, så projektets "
        "COM-komponenter kan ej hämtas. Kopiera systemkatalogen från en dator med Windows och "
        "Visual Basic dit, eller låt QUILLON_DRIVE_C ange en katalog där den finns."};
    RegisterTypes("{A}\\2.0", kSystem + "\\mscomctl.ocx");
    PutProject(Reference("E", "1", "0") + Reference("A", "2", "0"));
    const ImportResult refused = Run({noFolder});
    EXPECT_EQ(refused.end, ImportEnd::Refused);
    EXPECT_THAT(Missed(refused), IsEmpty()) << "nothing was looked for";
    PutProject("", "<Include>\r\nRelPath = \"Tools.vb\"\r\n");
    EXPECT_EQ(Run({noFolder}).end, ImportEnd::Refused);
    EXPECT_THAT(Rows(), IsEmpty());
    PutProject("");
    EXPECT_EQ(Run({kDone}).end, ImportEnd::Done) << "nothing of it is needed";
}

TEST_F(ImportVbNet, NeedsNoSystemFolderForComponentsThatItPassesOver)
{
    machine.files.RemoveFile(kSystem + "\\kernel32.dll");
    RegisterTypes("{C}\\2.0", kSystem + "\\STDOLE2.TLB");
    RegisterTypes("{D}\\1.0", "C:\\Program\\Own\\own.ocx");
    RegisterTypes("{F}\\1.0", "");
    PutProject(Reference("C", "2", "0") + Reference("D", "1", "0") + Reference("E", "1", "0") +
               Reference("F", "1", "0"));
    const ImportResult result = Run({kDone});
    EXPECT_EQ(result.end, ImportEnd::Done);
    EXPECT_THAT(Missed(result), ElementsAre("STDOLE2.TLB: hör till Windows och läggs aldrig in",
                                            "C:\\Program\\Own\\own.ocx: ligger utanför "
                                            "systemkatalogen",
                                            "{E}: saknas i registry", "{F}: saknas i registry"));
    EXPECT_THAT(Rows(), ElementsAre("Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVbNet, TellsAProjectThatNamesTooManyComponents)
{
    PutAll(kSystem, {"grid.ocx", "last.ocx"});
    RegisterTypes("{A}\\1.0", kSystem + "\\grid.ocx");
    RegisterTypes("{B}\\1.0", kSystem + "\\last.ocx");
    std::string references;
    for (std::size_t i = 0; i < kMaxReferences; ++i)
        references += Reference("A", "1", "0");
    PutProject(references + Reference("B", "1", "0"));
    Run({{BoxKind::Critical, "Fel inträffade",
          "Projektfilen 'C:\\Proj\\Kund.vbproj' anger fler än 1000 referenser. Endast de första "
          "1000 är lästa."},
         kDone});
    EXPECT_THAT(Rows(), ElementsAre("grid.ocx %SYSDIR VRAW", "Kund.exe %DESTDIR\\Bin D"));
}

TEST_F(ImportVbNet, ShowsItsProgressAmongManyLibrariesAndStopsThere)
{
    for (int i = 0; i < 30; ++i)
        PutAll("C:\\Proj\\bin", {"lib" + std::to_string(10 + i) + ".dll"});
    PutProject("");
    Run({kDone});
    EXPECT_EQ(project.Files.rows.size(), 31U);
    EXPECT_THAT(user.steps, ElementsAre("hide", "status", "destination", "status", "show", "hide",
                                        "status", "icon"));
    EXPECT_EQ(user.seen.back(), "lib39.dll");
    project.Files.rows.clear();
    user.seen.clear();
    user.stopAfter = 6;
    EXPECT_EQ(Run({{BoxKind::Inform, "Importen är avbruten"}}).end, ImportEnd::Stopped);
    EXPECT_EQ(project.Files.rows.size(), 6U);
    EXPECT_EQ(user.seen.size(), 7U) << "it asks no more behind a no";
}

TEST(ProgramFolderOf, IsBesideTheProject)
{
    EXPECT_EQ(ProgramFolderOf("C:\\Proj\\Kund.vbproj"), "C:\\Proj\\bin");
    EXPECT_EQ(ProgramFolderOf("C:\\Kund.vbproj"), "C:\\bin");
}

} // namespace quillon::test
