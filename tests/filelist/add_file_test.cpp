#include "filelist/adding/add_file.h"

#include "filelist/list_builder.h"
#include "helpers/number_text.h"
#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/program_file.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;

namespace {

constexpr const char* kAlreadyInList =
    "Filen är redan inlagd i fillistan! Ska samma fil in i fillistan fler gånger måste den plockas "
    "från en annan källkatalog! Har den nya filen samma filnamn och destinationskatalog som en "
    "befintlig fil kan den inte heller adderas till fillistan!";

const Text kSystem = "C:\\WINDOWS\\SYSTEM32";

FileToAdd FileAt(const Text& folder, const Text& name)
{
    return {.FileName = name, .SourcePath = folder + "\\" + name, .Destination = "%DESTDIR"};
}

class AddFile : public testing::Test {
protected:
    AddFile() { list.sorted = false; }

    std::optional<std::size_t> Add(const FileToAdd& file, std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        return FileAdding(list, machine.host, ask).AddFileToFileList(file);
    }
    std::optional<std::size_t> AddSystem(const Text& name, bool isRuntimeFile,
                                         std::deque<ExpectedBox> boxes = {})
    {
        ScriptedAsk ask(std::move(boxes));
        return FileAdding(list, machine.host, ask).AddSystemFileToFileList(name, isRuntimeFile);
    }
    int FailureOf(const FileToAdd& file)
    {
        return RunErrorNumber([&] { Add(file); });
    }

    MemoryHost machine;
    FileList list;
};

using AddSystemFile = AddFile;

} // namespace

TEST_F(AddFile, FillsTheRowFromTheFile)
{
    machine.files.Put("C:\\Data\\Läs.Txt", std::string(1587, 'x'), {2004, 2, 9, 7, 5, 59});
    FileToAdd file = FileAt("C:\\Data", "Läs.Txt");
    file.ComponentNr = "3";
    EXPECT_EQ(Add(file), 0U);
    ASSERT_EQ(list.rows.size(), 1U);
    EXPECT_THAT(list.rows[0].columns,
                ElementsAre("Läs.Txt", "%DESTDIR", "1,5", "2004-02-09", "07:05", "", "D", "3",
                            "Txt", "c:\\data\\läs.txt", "", "", "", "", ""));
}

TEST_F(AddFile, WritesTheSizeWithTheLocalesDecimalSign)
{
    machine.machine.decimalSign = '.';
    machine.files.Put("C:\\D\\one", "x");
    machine.files.Put("C:\\D\\empty", "");
    machine.files.Put("C:\\D\\large", std::string(1024 * 1024 + 512, 'x'));
    for (const char* const name : {"one", "empty", "large"})
        Add(FileAt("C:\\D", name));
    EXPECT_EQ(list.rows[0][Size], "0.0") << "a byte is less than shows";
    EXPECT_EQ(list.rows[1][Size], "0.0");
    EXPECT_EQ(list.rows[2][Size], "1024.5");
}

TEST_F(AddFile, SendsFontsToTheFontFolder)
{
    for (const char* const name : {"a.ttf", "A.TTF", "a.b.ttf"}) {
        machine.files.Put(Text("C:\\D\\") + name, "x");
        FileToAdd file = FileAt("C:\\D", name);
        file.Destination = "%WINDIR";
        Add(file);
    }
    EXPECT_EQ(list.rows[0][Destination], "%FONTDIR");
    EXPECT_EQ(list.rows[1][Destination], "%FONTDIR");
    EXPECT_EQ(list.rows[2][Extension], "b.ttf");
    EXPECT_EQ(list.rows[2][Destination], "%WINDIR") << "its extension begins at the first dot";
}

TEST_F(AddFile, LooksForAVersionInProgramsAndLibrariesOnlyUnderVersionRules)
{
    const std::string versioned = MakeProgramFile({.languages = {{{"FileVersion", "1.0"}}}});
    machine.files.Put("C:\\D\\new.exe", versioned);
    machine.files.Put("C:\\D\\new.dll", versioned);
    machine.files.Put("C:\\D\\new.txt", versioned);
    machine.files.Put("C:\\D\\old.exe", "MZ");
    struct {
        const char* name;
        bool useVersionRules;
        const char* options;
    } const files[] = {{"new.exe", true, "V"}, {"new.exe", false, "D"},  {"new.dll", true, "VA"},
                       {"new.txt", true, "D"}, {"new.dll", false, "DA"}, {"old.exe", true, "D"}};
    for (const auto& told : files) {
        FileToAdd file = FileAt("C:\\D", told.name);
        file.UseVersionRules = told.useVersionRules;
        const auto row = Add(file);
        ASSERT_TRUE(row) << told.name;
        EXPECT_EQ(list.rows[*row][CopyOptions], told.options) << told.name;
    }
}

TEST_F(AddFile, DropsHiddenFilesSilently)
{
    machine.files.Put("C:\\D\\a.txt", "x");
    machine.files.At("C:\\D\\a.txt").status.isHidden = true;
    EXPECT_EQ(Add(FileAt("C:\\D", "a.txt")), std::nullopt);
    EXPECT_TRUE(list.rows.empty());
}

TEST_F(AddFile, DropsGuardedSystemFilesOnWindowsXPOnly)
{
    const char* const names[] = {"OLEPRO32.DLL", "OLEAUT32.dll", "comcat.dll", "ASYCFILT.DLL",
                                 "STDOLE2.TLB"};
    for (const char* const name : names) {
        machine.files.Put(kSystem + "\\" + name, "x");
        machine.files.Put(Text("C:\\Redist\\") + name, "x");
    }
    machine.machine.windowsXP = true;
    for (const char* const name : names) {
        EXPECT_EQ(Add(FileAt("c:\\windows\\System32", name)), std::nullopt) << name;
        EXPECT_NE(Add(FileAt("C:\\Redist", name)), std::nullopt) << "from another folder: " << name;
    }
    EXPECT_EQ(list.rows.size(), 5U);
    machine.machine.windowsXP = false;
    for (const char* const name : names)
        EXPECT_NE(Add(FileAt(kSystem, name)), std::nullopt) << name;
}

TEST_F(AddFile, RefusesADuplicateSilentlyOrWithABoxAsTold)
{
    machine.files.Put("C:\\D\\a.txt", "x");
    FileToAdd file = FileAt("C:\\D", "a.txt");
    EXPECT_EQ(Add(file), 0U);
    EXPECT_EQ(Add(file), 1U) << "without the test it stands twice";
    file.CheckDuplicates = true;
    EXPECT_EQ(Add(file), std::nullopt);
    file.ShowDuplicateMessage = true;
    EXPECT_EQ(Add(file, {{BoxKind::Inform, "Quillon", kAlreadyInList}}), std::nullopt);
    EXPECT_EQ(list.rows.size(), 2U);
}

TEST_F(AddFile, TestsRowsOfTheSameCommandToo)
{
    machine.files.Put("C:\\D\\a.txt", "x");
    machine.files.Put("C:\\E\\a.txt", "x");
    FileToAdd file = FileAt("C:\\D", "a.txt");
    file.CheckDuplicates = true;
    ScriptedAsk ask;
    FileAdding adding(list, machine.host, ask);
    EXPECT_EQ(adding.AddFileToFileList(file), 0U);
    EXPECT_EQ(adding.AddFileToFileList(file), std::nullopt);
    file.SourcePath = "C:\\E\\a.txt";
    EXPECT_EQ(adding.AddFileToFileList(file), std::nullopt) << "the same destination";
    file.Destination = "%WINDIR";
    EXPECT_EQ(adding.AddFileToFileList(file), 1U);
}

TEST_F(AddFile, ComparesAFontByTheFolderItReallyWentTo)
{
    machine.files.Put("C:\\D\\a.ttf", "x");
    machine.files.Put("C:\\E\\a.ttf", "x");
    FileToAdd file = FileAt("C:\\D", "a.ttf");
    file.CheckDuplicates = true;
    EXPECT_EQ(Add(file), 0U);
    file = FileAt("C:\\E", "a.ttf");
    file.CheckDuplicates = true;
    EXPECT_EQ(Add(file), 1U) << "%DESTDIR is not where the first one stands";
    file.Destination = "%fontdir";
    file.SourcePath = "C:\\F\\a.ttf";
    EXPECT_EQ(Add(file), std::nullopt);
}

TEST_F(AddFile, RefusesASemicolonInTheSourcePath)
{
    machine.files.Put("C:\\a;b\\c.txt", "x");
    EXPECT_EQ(
        Add(FileAt("C:\\a;b", "c.txt"),
            {{BoxKind::Critical, "Ogiltiga tecken hittade",
              "Källsökvägen till filen 'C:\\a;b\\c.txt' innehåller ogiltiga tecken! Filen kan "
              "ej adderas till fillistan!"}}),
        std::nullopt);
    EXPECT_TRUE(list.rows.empty());
}

TEST_F(AddFile, AsksItsQuestionsInAFixedOrder)
{
    machine.machine.windowsXP = true;
    machine.files.Put(kSystem + "\\COMCAT.DLL", "x");
    list.rows = {MakeRow("COMCAT.DLL", "%DESTDIR"), MakeRow("c.txt", "%DESTDIR")};
    FileToAdd file = FileAt(kSystem, "COMCAT.DLL");
    file.CheckDuplicates = file.ShowDuplicateMessage = true;
    EXPECT_EQ(Add(file), std::nullopt) << "guarded before known: no box";

    file = FileAt("C:\\a;b", "c.txt");
    machine.files.Put(file.SourcePath, "x");
    machine.files.At(file.SourcePath).status.isHidden = true;
    file.CheckDuplicates = file.ShowDuplicateMessage = true;
    EXPECT_EQ(Add(file, {{BoxKind::Inform, "Quillon", kAlreadyInList}}), std::nullopt)
        << "known before badly named";
    file.CheckDuplicates = false;
    EXPECT_EQ(Add(file, {{BoxKind::Critical, "Ogiltiga tecken hittade"}}), std::nullopt)
        << "badly named before hidden";

    list.rows.resize(32767);
    file = FileAt("C:\\D", "hidden.txt");
    machine.files.Put(file.SourcePath, "x");
    machine.files.At(file.SourcePath).status.isHidden = true;
    EXPECT_EQ(Add(file), std::nullopt) << "hidden before there is no room";
}

TEST_F(AddFile, RefusesCharactersThatTheProjectFileLacks)
{
    const Text text =
        "Filen 'C:\\D\\ж.txt' har tecken i namn, källsökväg eller destination som inte "
        "kan lagras i projektet! Byt namn på filen eller katalogen och addera den på "
        "nytt. Filen kan ej adderas till fillistan!";
    const ExpectedBox box{BoxKind::Critical, "Ogiltiga tecken hittade", text};
    EXPECT_EQ(Add(FileAt("C:\\D", "ж.txt"), {box}), std::nullopt);

    FileToAdd renamed = FileAt("C:\\D", "ж.txt");
    renamed.FileName = "a.txt";
    EXPECT_EQ(Add(renamed, {box}), std::nullopt) << "the path alone";

    machine.files.Put("C:\\D\\å€.txt", "x");
    EXPECT_NE(Add(FileAt("C:\\D", "å€.txt")), std::nullopt);
    FileToAdd astray = FileAt("C:\\D", "å€.txt");
    astray.Destination = "%DESTDIR\\ж";
    EXPECT_EQ(Add(astray, {{BoxKind::Critical, "Ogiltiga tecken hittade"}}), std::nullopt);
    EXPECT_EQ(list.rows.size(), 1U);
}

TEST_F(AddFile, RefusesAFileThatCannotBeRead)
{
    machine.files.Put("C:\\D\\shut.dll", "x");
    machine.files.At("C:\\D\\shut.dll").unreadable = true;
    FileToAdd file = FileAt("C:\\D", "shut.dll");
    file.UseVersionRules = true;
    EXPECT_EQ(Add(file, {{BoxKind::Critical, "Kan ej addera",
                          "Filen 'c:\\d\\shut.dll' kan ej adderas till fillistan! Åtkomst nekas "
                          "till 'c:\\d\\shut.dll'."}}),
              std::nullopt);
    EXPECT_TRUE(list.rows.empty());
}

TEST_F(AddFile, RefusesNamesAndDestinationsThatWindowsCannotHold)
{
    const auto box = [](const Text& path, const Text& reason) {
        return std::deque<ExpectedBox>{
            {BoxKind::Critical, "Kan ej addera",
             "Filen '" + path + "' kan ej adderas till fillistan! " + reason}};
    };
    for (const char* name : {"aux.txt", "a:b", "a?b", "a\r\nb", "a.", "<Dir>"}) {
        machine.files.Put(Text("C:\\D\\") + name, "x");
        ScriptedAsk ask({{BoxKind::Critical, "Kan ej addera"}});
        FileAdding adding(list, machine.host, ask);
        EXPECT_EQ(adding.AddFileToFileList(FileAt("C:\\D", name)), std::nullopt) << name;
        EXPECT_THAT(ask.shown[0].text, testing::HasSubstr(Text("Namnet '") + name + "'"));
    }
    machine.files.Put("C:\\D\\a.txt", "x");
    FileToAdd climbing = FileAt("C:\\D", "a.txt");
    climbing.Destination = "%DESTDIR\\..\\..\\Windows";
    Add(climbing, box("C:\\D\\a.txt", "Destinationen '%DESTDIR\\..\\..\\Windows' fungerar inte i "
                                      "Windows: '..' får inte ingå."));
    climbing.Destination = "%DESTDIR\\C:\\x";
    Add(climbing, box("C:\\D\\a.txt", "Destinationen '%DESTDIR\\C:\\x' fungerar inte i Windows: "
                                      "ett kolon får bara stå efter enhetens bokstav."));
    machine.files.Put("C:\\D\nE\\a.txt", "x");
    Add(FileAt("C:\\D\nE", "a.txt"),
        box("C:\\D\nE\\a.txt",
            "Källsökvägen fungerar inte: styrtecken, till exempel radbrytningar, "
            "får inte ingå i ett namn."));
    EXPECT_TRUE(list.rows.empty());
    for (const char* told_later : {"", "%OKÄND\\x", "C:"}) {
        FileToAdd file = FileAt("C:\\D", "a.txt");
        file.Destination = told_later;
        EXPECT_NE(Add(file), std::nullopt) << "told when a package is made: " << told_later;
    }
}

TEST_F(AddFile, PassesFailuresToTheCallerAndKeepsTheRowAsFarAsItWasFilled)
{
    machine.files.PutFolder("C:\\D");
    EXPECT_EQ(FailureOf(FileAt("C:\\D", "gone.txt")), ErrorNumber::kFileNotFound);
    EXPECT_EQ(FailureOf(FileAt("C:\\Gone", "a.txt")), ErrorNumber::kPathNotFound);
    EXPECT_EQ(FailureOf(FileAt("C:", "D")), ErrorNumber::kPathFileAccess) << "a folder";
    ASSERT_EQ(list.rows.size(), 3U);
    FileListRow unfilled = MakeRow("gone.txt", "%DESTDIR");
    EXPECT_EQ(list.rows[0], unfilled);
}

TEST_F(AddFile, TellsTrappedFailuresWithTheirReason)
{
    machine.files.PutFolder("C:\\D");
    struct {
        const char* folder;
        const char* name;
        const char* text;
    } const failures[] = {
        {"C:\\D", "a.txt",
         "Filen 'a.txt' kan ej adderas till fillistan. Filen existerar inte vid källsökvägen "
         "'C:\\D\\a.txt'!"},
        {"C:\\Gone", "a.txt",
         "Filen 'a.txt' kan ej adderas till fillistan. En av mapparna som specificeras i "
         "källsökvägen 'C:\\Gone\\a.txt' existerar inte!"},
        {"C:", "D", "Filen 'D' kan ej adderas till fillistan. Fel # 75 inträffade!"},
    };
    for (const auto& failure : failures) {
        FileToAdd file = FileAt(failure.folder, failure.name);
        file.TrapErrors = true;
        EXPECT_EQ(Add(file, {{BoxKind::Critical, "Fel", failure.text}}), std::nullopt);
    }
    EXPECT_EQ(list.rows.size(), 3U) << "the rows stay";
}

TEST_F(AddFile, OverflowsAtTheRowThatA16BitNumberCannotCount)
{
    machine.files.Put("C:\\D\\last.txt", "x");
    list.rows.resize(32766);
    FileToAdd file = FileAt("C:\\D", "last.txt");
    EXPECT_EQ(Add(file), 32766U);
    EXPECT_EQ(FailureOf(file), ErrorNumber::kOverflow);
    EXPECT_EQ(FailureOf(FileAt("C:\\D", "gone.txt")), ErrorNumber::kOverflow)
        << "the row comes before the look at the file";
    file.TrapErrors = true;
    Add(file, {{BoxKind::Critical, "Fel",
                "Filen 'last.txt' kan ej adderas till fillistan. Fel # 6 inträffade!"}});
    EXPECT_EQ(list.rows.size(), 32767U);
}

TEST_F(AddFile, PutsRowsOfASortedListWhereTheyBelongWhenTheCommandEnds)
{
    for (const char* const name : {"b", "d", "a", "C"})
        machine.files.Put(Text("C:\\D\\") + name, "x");
    list.sorted = true;
    list.rows = {MakeRow("b", "%OLD"), MakeRow("x", "%OLD")};
    ScriptedAsk ask;
    FileAdding adding(list, machine.host, ask);
    for (const char* const name : {"d", "b", "a", "C"})
        adding.AddFileToFileList(FileAt("C:\\D", name));
    EXPECT_THAT(NamesOf(list), ElementsAre("b", "x", "d", "b", "a", "C"));
    EXPECT_THAT(adding.Finish(), ElementsAre(1, 5, 4, 2, 0, 3));
    EXPECT_THAT(NamesOf(list), ElementsAre("a", "b", "b", "C", "d", "x"));
    EXPECT_EQ(list.rows[1][Destination], "%OLD") << "new rows stand behind their equals";
}

TEST_F(AddFile, KeepsTheOrderWhenAFailureEndsTheCommand)
{
    machine.files.Put("C:\\D\\a", "x");
    list.sorted = true;
    list.rows = {MakeRow("b")};
    ScriptedAsk ask;
    EXPECT_EQ(RunErrorNumber([&] {
                  FileAdding adding(list, machine.host, ask);
                  adding.AddFileToFileList(FileAt("C:\\D", "a"));
                  adding.AddFileToFileList(FileAt("C:\\D", "0"));
              }),
              ErrorNumber::kFileNotFound);
    EXPECT_THAT(NamesOf(list), ElementsAre("0", "a", "b"));
}

TEST_F(AddFile, FillsARowThatLacksItsSourceWhereItIsAskedTo)
{
    machine.files.Put("C:\\D\\a.dll", "x");
    const auto withoutSource = [&] {
        list.rows = {MakeRow("b"), MakeRow("A.dll", "%destdir"), MakeRow("<Dir>", "%DESTDIR")};
        list.rows[0][Source] = "c:\\d\\b";
    };
    FileToAdd file = FileAt("C:\\D", "a.dll");
    file.CheckDuplicates = true;
    withoutSource();
    EXPECT_EQ(Add(file), std::nullopt) << "else the row counts as the file's";
    ScriptedAsk ask;
    {
        FileAdding adding(list, machine.host, ask, FileAdding::RowsWithoutSource::AreFilled);
        EXPECT_EQ(adding.AddFileToFileList(file), 1U);
        EXPECT_EQ(adding.AddFileToFileList(file), std::nullopt) << "now it is a duplicate";
        file.Destination = "%WINDIR";
        file.SourcePath = "C:\\E\\a.dll";
        machine.files.Put(file.SourcePath, "y");
        EXPECT_EQ(adding.AddFileToFileList(file), 3U);
    }
    EXPECT_THAT(NamesOf(list), ElementsAre("b", "a.dll", "<Dir>", "a.dll"));
    EXPECT_EQ(list.rows[1][Source], "c:\\d\\a.dll");
}

TEST_F(AddFile, LeavesOneRowOfAFileThatFailsTwice)
{
    ScriptedAsk ask;
    FileAdding adding(list, machine.host, ask, FileAdding::RowsWithoutSource::AreFilled);
    FileToAdd file = FileAt("C:\\D", "gone.dll");
    file.CopyOptions = "VS";
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(RunErrorNumber([&] { adding.AddFileToFileList(file); }),
                  ErrorNumber::kPathNotFound);
    ASSERT_EQ(list.rows.size(), 1U);
    EXPECT_EQ(list.rows[0][CopyOptions], "VS") << "as far as it was filled";
    machine.files.Put("C:\\D\\gone.dll", "x");
    EXPECT_EQ(adding.AddFileToFileList(file), 0U);
    EXPECT_EQ(list.rows[0][CopyOptions], "VS");
}

// A command that finds a file missing a second time, in any list, goes on with its next file.
TEST_F(AddFile, TriesAMissingFileOnceForOneRow)
{
    machine.files.PutFolder("C:\\D");
    list.rows = {MakeRow("Old.dll", "%DESTDIR")};
    ScriptedAsk ask;
    FileAdding adding(list, machine.host, ask, FileAdding::RowsWithoutSource::AreFilled);
    for (const char* const name : {"old.dll", "new.dll"}) {
        FileToAdd file = FileAt("C:\\D", name);
        file.CheckDuplicates = true;
        EXPECT_EQ(RunErrorNumber([&] { adding.AddFileToFileList(file); }),
                  ErrorNumber::kFileNotFound);
        EXPECT_EQ(adding.AddFileToFileList(file), std::nullopt) << name;
        machine.files.PutFolder(Text("C:\\D\\") + name);
        EXPECT_EQ(adding.AddFileToFileList(file), std::nullopt) << "no folder fills it";
    }
    EXPECT_THAT(NamesOf(list), ElementsAre("old.dll", "new.dll"));
    machine.files.Put("C:\\E\\new.dll", "x");
    FileToAdd found = FileAt("C:\\E", "new.dll");
    found.CheckDuplicates = true;
    EXPECT_EQ(adding.AddFileToFileList(found), 1U) << "a file that is there still does";
    EXPECT_EQ(list.rows[1][Source], "c:\\e\\new.dll");
}

TEST_F(AddFile, LeavesAFontWhereTheCallerWantsIt)
{
    machine.files.Put("C:\\D\\a.TTF", "x");
    FileToAdd file = FileAt("C:\\D", "a.TTF");
    file.KeepsFontHere = true;
    Add(file);
    EXPECT_EQ(list.rows[0][Destination], "%DESTDIR");
}

TEST_F(AddSystemFile, TakesNoFileOfAnotherFolder)
{
    machine.files.Put(kSystem + "\\drivers\\a.sys", "x");
    for (const Text& name : {Text("drivers\\a.sys"), Text("drivers/a.sys")})
        EXPECT_EQ(AddSystem(name, false,
                            {{BoxKind::Critical, "Kan ej addera en fil",
                              "Filen '" + name +
                                  "' existerar inte i systemkatalogen! Kan ej addera den till "
                                  "fillistan!"}}),
                  std::nullopt);
    EXPECT_TRUE(list.rows.empty());
}

TEST_F(AddSystemFile, TakesTheFileFromTheSystemFolder)
{
    machine.files.Put(kSystem + "\\msvbvm60.dll", std::string(2048, 'x'), {2001, 8, 23, 12, 0, 0});
    EXPECT_EQ(AddSystem("MSVBVM60.DLL", true), 0U);
    EXPECT_THAT(list.rows[0].columns,
                ElementsAre("Msvbvm60.dll", "%SYSDIR", "2,0", "2001-08-23", "12:00", "", "VRAW", "",
                            "dll", "c:\\windows\\system32\\msvbvm60.dll", "", "", "", "", ""));
    EXPECT_EQ(AddSystem("msvbvm60.dll", false), 1U) << "no duplicate test";
    EXPECT_EQ(list.rows[1][CopyOptions], "VA");
}

TEST_F(AddSystemFile, LeavesFontsInTheSystemFolder)
{
    machine.files.Put(kSystem + "\\a.ttf", "x");
    AddSystem("a.ttf", false);
    EXPECT_EQ(list.rows[0][Destination], "%SYSDIR");
}

TEST_F(AddSystemFile, DropsHiddenAndGuardedFilesSilently)
{
    machine.files.Put(kSystem + "\\a.dll", "x");
    machine.files.At(kSystem + "\\a.dll").status.isHidden = true;
    machine.files.Put(kSystem + "\\comcat.dll", "x");
    machine.machine.windowsXP = true;
    EXPECT_EQ(AddSystem("a.dll", false), std::nullopt);
    EXPECT_EQ(AddSystem("COMCAT.DLL", true), std::nullopt);
    EXPECT_TRUE(list.rows.empty());
    machine.machine.windowsXP = false;
    EXPECT_EQ(AddSystem("COMCAT.DLL", true), 0U);
}

TEST_F(AddSystemFile, AlwaysTellsFailures)
{
    machine.files.PutFolder(kSystem + "\\drivers");
    EXPECT_EQ(
        AddSystem("gone.dll", false,
                  {{BoxKind::Critical, "Kan ej addera en fil",
                    "Filen 'gone.dll' existerar inte i systemkatalogen! Kan ej addera den till "
                    "fillistan!"}}),
        std::nullopt);
    EXPECT_EQ(
        AddSystem("drivers", false, {{BoxKind::Critical, "Fel", "Kan ej öppna filen 'drivers'!"}}),
        std::nullopt);
    EXPECT_EQ(list.rows.size(), 2U) << "the rows stay as far as they were filled";
    machine.files.Put(kSystem + "\\shut.dll", "x");
    machine.files.At(kSystem + "\\shut.dll").unreadable = true;
    EXPECT_EQ(AddSystem("shut.dll", false, {{BoxKind::Critical, "Kan ej addera"}}), std::nullopt);
    EXPECT_EQ(AddSystem("ж.dll", false, {{BoxKind::Critical, "Ogiltiga tecken hittade"}}),
              std::nullopt);
    EXPECT_EQ(list.rows.size(), 2U);
}

} // namespace quillon::test
