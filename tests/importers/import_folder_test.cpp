#include "importers/import_folder.h"

#include "import_context.h"
#include "support/program_file.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const Text kOut = "C:\\Out\\Kund";

const ExpectedBox kDone{
    BoxKind::Inform, "Importen är klar",
    "Importen är nu klar! Alla filer i programkatalogen har adderats till fillistan. Filer som "
    "saknas enligt listan över katalogens innehåll måste läggas in manuellt eller finnas hos "
    "mottagaren."};

class ImportFolderTest : public ImportContext {
protected:
    ImportFolderTest()
    {
        data.Add("[Windows]\nkernel32.dll\nmscoree.dll\napi-ms-win-*\n");
        choices.cAddIcon = false;
    }

    void PutProgram(const Text& name, const LinkedProgramParts& parts, std::size_t more = 0)
    {
        std::string padding;
        padding.assign(more, '\0');
        machine.files.Put(kOut + "\\" + name, MakeLinkedProgram(parts) + padding);
    }
    ProgramFolder Read()
    {
        return ReadProgramFolder(machine.files, kOut, [](const Text&) { return true; });
    }
    std::vector<Text> Programs()
    {
        std::vector<Text> names;
        const ProgramFolder folder = Read();
        for (const std::size_t place : folder.programs)
            names.push_back(folder.files[place].RelativePath());
        return names;
    }
    ProgramFindings Find()
    {
        const ProgramFolder folder = Read();
        return FindingsOf(machine.files, folder, folder.files[folder.programs.at(0)], data);
    }
    ImportResult Run(std::deque<ExpectedBox> boxes)
    {
        ScriptedAsk ask(std::move(boxes));
        const ProgramFolder folder = Read();
        return ImportProgramFolder(Work(ask), folder, folder.programs.at(0), Find(), choices);
    }

    ImportData data;
    FolderChoices choices;
};

} // namespace

TEST_F(ImportFolderTest, FindsTheProgramThatUsersStart)
{
    PutProgram("crashpad_handler.exe", {}, 9000);
    PutProgram("tools\\big.exe", {}, 90000);
    PutProgram("b.exe", {}, 10);
    PutProgram("a.exe", {}, 20);
    EXPECT_THAT(Programs(),
                ElementsAre("a.exe", "b.exe", "tools\\big.exe", "crashpad_handler.exe"));
    PutProgram("kund.exe", {});
    EXPECT_EQ(Programs()[0], "kund.exe") << "called as the folder";
    machine.files.RemoveFile(kOut + "\\kund.exe");
    machine.files.Put(kOut + "\\b.runtimeconfig.json", "{}");
    EXPECT_EQ(Programs()[0], "b.exe");
}

TEST_F(ImportFolderTest, TakesNoLibraryAndNoOtherFileForAProgram)
{
    machine.files.Put(kOut + "\\text.exe", "no program");
    PutProgram("lib.exe", {.isLibrary = true});
    PutProgram("a.dll", {.isLibrary = true});
    EXPECT_THAT(Programs(), IsEmpty());
    ScriptedAsk ask{{{BoxKind::Inform, "Info",
                      "Katalogen 'C:\\Out\\Kund' har inget Windows-program (.EXE). En katalog utan "
                      "program adderas med 'Addera träd...' i menyn Lista."},
                     {BoxKind::Inform, "Info", "Du måste välja en programkatalog först!"}}};
    EXPECT_FALSE(HasProgram(Read(), ask));
    EXPECT_FALSE(HasProgram({}, ask));
}

TEST_F(ImportFolderTest, ListsWhatIsNeitherHereNorInWindows)
{
    PutProgram("Kund.exe", {.imports = {"KERNEL32.dll", "Qt6Core.dll", "MSVCP140.dll",
                                        "api-ms-win-crt-heap-l1-1-0.dll"}});
    PutProgram("Qt6Core.dll", {.isLibrary = true, .imports = {"msvcp140.dll", "zlib1.dll"}});
    PutProgram("plugins\\p.dll",
               {.isLibrary = true, .imports = {"Qt6Core.dll"}, .delayedImports = {"opengl.dll"}});
    const ProgramFindings findings = Find();
    ASSERT_EQ(findings.missing.size(), 3U);
    EXPECT_EQ(findings.missing[0].name, "MSVCP140.dll");
    EXPECT_THAT(findings.missing[0].neededBy, ElementsAre("Kund.exe", "Qt6Core.dll"));
    EXPECT_FALSE(findings.missing[0].isDelayed);
    EXPECT_EQ(findings.missing[1].name, "opengl.dll");
    EXPECT_TRUE(findings.missing[1].isDelayed);
    EXPECT_EQ(findings.missing[2].name, "zlib1.dll");
    EXPECT_THAT(FindingsText(findings),
                ElementsAre("Programmet är för 32 bitar.",
                            "Saknas: MSVCP140.dll (behövs av Kund.exe, Qt6Core.dll)",
                            "Saknas: opengl.dll (behövs av plugins\\p.dll; laddas först när det "
                            "används)",
                            "Saknas: zlib1.dll (behövs av Qt6Core.dll)"));
}

TEST_F(ImportFolderTest, NamesThreeThatNeedALibrary)
{
    for (const char* const name : {"Kund.exe", "a.dll", "b.dll", "c.dll", "d.dll"})
        PutProgram(name, {.isLibrary = name[1] == '.', .imports = {"x.dll"}});
    EXPECT_THAT(FindingsText(Find()),
                Contains("Saknas: x.dll (behövs av Kund.exe, a.dll, b.dll m.fl.)"));
}

TEST_F(ImportFolderTest, TellsLibrariesForAnotherMachine)
{
    PutProgram("Kund.exe", {.is64Bit = true});
    PutProgram("old.dll", {.isLibrary = true});
    PutProgram("managed.dll", {.isLibrary = true, .clrVersion = "v4.0.30319"});
    PutProgram("helper.exe", {});
    PutProgram("runtimes\\win-x86\\native\\n.dll", {.isLibrary = true});
    const ProgramFindings findings = Find();
    ASSERT_EQ(findings.mixed.size(), 1U);
    EXPECT_EQ(findings.mixed[0].file, "old.dll");
    EXPECT_THAT(FindingsText(findings), ElementsAre("Programmet är för 64 bitar.",
                                                    "Fel processor: old.dll är för 32 bitar."));
}

TEST_F(ImportFolderTest, TellsWhereAProgramForAnyMachineCanRun)
{
    PutProgram("Kund.exe", {.clrVersion = "v4.0.30319"});
    PutProgram("managed.dll", {.isLibrary = true, .clrVersion = "v4.0.30319"});
    PutProgram("x64\\sqlite.dll", {.is64Bit = true, .isLibrary = true});
    PutProgram("x86\\sqlite.dll", {.isLibrary = true});
    EXPECT_TRUE(Find().isForAnyMachine);
    EXPECT_FALSE(Find().onlyFor) << "it takes the one that is right";
    EXPECT_THAT(FindingsText(Find()), Contains("Programmet är för valfri processor."));
    PutProgram("old.dll", {.isLibrary = true});
    EXPECT_THAT(Find().mixed, IsEmpty());
    EXPECT_THAT(FindingsText(Find()),
                Contains("Programmet är för valfri processor, men 'old.dll' är för 32 bitar."));
    PutProgram("new.dll", {.is64Bit = true, .isLibrary = true});
    EXPECT_EQ(Find().mixed.size(), 2U);
    EXPECT_THAT(FindingsText(Find()), Contains("Olika processorer: new.dll är för 64 bitar."));
    EXPECT_THAT(FindingsText(Find()), Contains("Olika processorer: old.dll är för 32 bitar."));
}

// The fonts in a program's folder are its own; the font folder is for those of all programs.
TEST_F(ImportFolderTest, LeavesFontsInTheProgramsFolder)
{
    PutProgram("Kund.exe", {});
    machine.files.Put(kOut + "\\fonts\\icons.ttf", "font");
    machine.files.Put(kOut + "\\TEXT.TTF", "font");
    Run({kDone});
    EXPECT_EQ(Row("icons.ttf")[Destination], "%DESTDIR\\Bin\\fonts");
    EXPECT_EQ(Row("TEXT.TTF")[Destination], "%DESTDIR\\Bin");
}

TEST_F(ImportFolderTest, TellsFilesOfOneNameEach)
{
    PutProgram("Kund.exe", {});
    for (const Text& folder : {Text("de"), Text("sv")}) {
        machine.files.Put(kOut + "\\" + folder + "\\text.dll", "x");
        machine.files.At(kOut + "\\" + folder + "\\text.dll").unreadable = true;
    }
    const ImportResult result =
        Run({{BoxKind::Critical, "Kan ej addera"}, {BoxKind::Critical, "Kan ej addera"}, kDone});
    EXPECT_EQ(result.notAdded.size(), 2U);
}

TEST_F(ImportFolderTest, FindsTheRunTimeOfDotNet)
{
    PutProgram("Kund.exe", {.clrVersion = "v1.1.4322"});
    EXPECT_EQ(Find().dotNet.version, "1.1");
    machine.files.Put(kOut + "\\Kund.runtimeconfig.json",
                      R"({"runtimeOptions": {"framework": {"name": "Microsoft.NETCore.App",
                          "version": "8.0.0"}}})");
    EXPECT_EQ(Find().dotNet.name, "Microsoft.NETCore.App");
    machine.files.At(kOut + "\\Kund.runtimeconfig.json").unreadable = true;
    EXPECT_EQ(Find().dotNet.damage, "filen .runtimeconfig.json kan ej läsas");
}

TEST_F(ImportFolderTest, AddsTheTreeBelowTheDestination)
{
    PutProgram("Kund.exe", {});
    PutProgram("lib.dll", {.isLibrary = true});
    machine.files.Put(kOut + "\\Kund.pdb", "symbols");
    machine.files.Put(kOut + "\\sv\\Resources\\text.txt", "x");
    const ImportResult result = Run({kDone});
    EXPECT_EQ(result.end, ImportEnd::Done);
    EXPECT_THAT(Rows(),
                ElementsAre("Kund.exe %DESTDIR\\Bin D", "text.txt %DESTDIR\\Bin\\sv\\Resources D",
                            "lib.dll %DESTDIR\\Bin DA"));
    EXPECT_THAT(Missed(result), ElementsAre("Kund.pdb: hör till bygget"));
    EXPECT_EQ(user.asked.caption, "Välj destinationskatalog för Kund.exe");
    EXPECT_THAT(user.steps, ElementsAre("destination", "hide", "status"));
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    choices.cSkipBuildFiles = false;
    Run({kDone});
    EXPECT_THAT(Rows(), Contains("Kund.pdb %DESTDIR\\Bin D"));
    EXPECT_EQ(project.Files.rows.size(), 4U) << "what is in the list is not added twice";
}

TEST_F(ImportFolderTest, KeepsAProgramOfASubfolderBesideItsLibraries)
{
    PutProgram("bin\\Kund.exe", {});
    PutProgram("bin\\hjalp.dll", {});
    machine.files.Put(kOut + "\\readme.txt", "text");
    Run({kDone});
    std::map<Text, Text> destinations;
    for (const FileListRow& row : project.Files.rows)
        destinations[row[Filename]] = row[Destination];
    EXPECT_EQ(destinations["Kund.exe"], destinations["readme.txt"] + "\\bin");
    EXPECT_EQ(destinations["hjalp.dll"], destinations["Kund.exe"]);
}

TEST_F(ImportFolderTest, AddsNothingOfAFolderThatWasReadInPart)
{
    PutProgram("Kund.exe", {});
    ProgramFolder folder = Read();
    folder.damage = "Läsningen av katalogen stoppades.";
    ScriptedAsk ask({{BoxKind::Critical, "Katalogen är ej läst",
                      "Läsningen av katalogen stoppades. Inget är adderat."}});
    EXPECT_FALSE(HasProgram(folder, ask));
}

TEST_F(ImportFolderTest, FillsTheVersionDataWithWhatTheProgramTells)
{
    machine.files.Put(kOut + "\\Kund.exe",
                      MakeProgramFile({.languages = {{{"ProductName", "Kundregister"},
                                                      {"ProductVersion", "2.1"}}}}));
    project.Version = {.CompanyName = "Firma AB", .ProductVersion = "1.0"};
    Run({kDone});
    EXPECT_EQ(project.Version.ProductName, "Kundregister");
    EXPECT_EQ(project.Version.ProductVersion, "2.1");
    EXPECT_EQ(project.Version.CompanyName, "Firma AB");
    project.Version = {};
    choices.cVersionData = false;
    Run({kDone});
    EXPECT_EQ(project.Version.ProductName, "");
}

TEST_F(ImportFolderTest, LetsTheSetupTestForTheFramework)
{
    PutProgram("Kund.exe", {.clrVersion = "v1.0.3705"});
    choices.cTestNETFramework = false;
    Run({kDone});
    EXPECT_EQ(project.NET.NET_TestIfInstalled, kOff);
    choices.cTestNETFramework = true;
    Run({kDone});
    EXPECT_EQ(project.NET.NET_TestIfInstalled, kOn);
    EXPECT_EQ(project.NET.NET_ver10, kOn);
    PutProgram("Kund.exe", {.clrVersion = "v2.0.50727"});
    Run({kDone});
    EXPECT_EQ(project.NET.NET_ver10, kOff);
    EXPECT_EQ(project.NET.NET_ver11, kOn);
}

TEST_F(ImportFolderTest, HasNoTestForLaterRunTimes)
{
    PutProgram("Kund.exe",
               {.clrVersion = "v4.0.30319", .targetFramework = ".NETCoreApp,Version=v8.0"});
    Run({kDone});
    EXPECT_EQ(project.NET.NET_TestIfInstalled, kOff);
}

TEST_F(ImportFolderTest, ChangesNothingWhereTheDestinationIsCancelled)
{
    PutProgram("Kund.exe", {.clrVersion = "v1.0.3705"});
    user.destination.reset();
    EXPECT_EQ(Run({}).end, ImportEnd::Cancelled);
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(project.NET.NET_TestIfInstalled, kOff);
}

TEST_F(ImportFolderTest, StopsWhereItsUserWantsIt)
{
    PutProgram("Kund.exe", {});
    for (int i = 0; i < 10; ++i)
        machine.files.Put(kOut + "\\" + std::to_string(i) + ".txt", "x");
    user.stopAfter = 4;
    EXPECT_EQ(Run({{BoxKind::Inform, "Importen är avbruten"}}).end, ImportEnd::Stopped);
    EXPECT_EQ(project.Files.rows.size(), 4U);
}

TEST_F(ImportFolderTest, EndsTheReadingWhereItsUserWantsIt)
{
    for (int i = 0; i < 10; ++i)
        machine.files.Put(kOut + "\\" + std::to_string(i) + ".txt", "x");
    int seen = 0;
    const auto folder =
        ReadProgramFolder(machine.files, kOut, [&](const Text&) { return ++seen < 4; });
    EXPECT_EQ(folder.files.size(), 3U);
}

TEST_F(ImportFolderTest, TellsAFolderThatCannotBeRead)
{
    EXPECT_THAT(
        ReadProgramFolder(machine.files, "C:\\Nej", [](const Text&) { return true; }).damage,
        HasSubstr("C:\\Nej"));
}

TEST(IsBuildFile, KnowsWhatABuildLeavesBehind)
{
    for (const char* const name :
         {"a.pdb", "A.PDB", "a.lib", "a.vshost.exe", "a.vshost.exe.config", "x.obj", "liba.a"})
        EXPECT_TRUE(IsBuildFile(name)) << name;
    for (const char* const name : {"a.exe", "a.dll", "a.xml", "pdb", "a.pdb.txt"})
        EXPECT_FALSE(IsBuildFile(name)) << name;
}

} // namespace quillon::test
