#include "builder/file_list_file.h"

#include "builder/source_address.h"
#include "formats/install_row.h"
#include "full_project.h"
#include "support/golden.h"
#include "support/memory_host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::GoldenFile;
using test::Row;
using test::SameBytes;

namespace {

const Text kPath = "C:\\Ut\\FILELIST.INF";

class WriteFileList : public testing::Test {
protected:
    WriteFileList()
    {
        machine.files.PutFolder("C:\\Ut");
        machine.files.Put("C:\\Data\\a.txt", "1");
        machine.files.Put("C:\\Data\\b.txt", "1");
    }

    int Write() { return WriteFileListFile(kPath, project, machine.host, outcome); }
    std::string Written() const { return machine.files.Get(kPath); }
    void AddRow(const Text& name, const Text& source = "c:\\data\\a.txt")
    {
        project.Files.rows.push_back(Row(name, "%DESTDIR", source));
    }

    test::MemoryHost machine;
    Project project;
    FileListOutcome outcome;
};

FileListRow IconRow(const Text& name, const Text& source, const Text& title, const Text& viewer)
{
    FileListRow row = Row(name, "%DESTDIR", source);
    row[IconMarker] = "Ikon";
    row[IconDesc] = title;
    row[IconDocReader] = viewer;
    return row;
}

} // namespace

TEST_F(WriteFileList, WritesEachKindOfRowToTheByte)
{
    machine.files.Put("C:\\Data\\App\\Räkna.exe", std::string(2000, 'x'));
    machine.files.Put("C:\\Data\\ÅÄÖ\\Läsmig.txt", "");
    machine.files.Put("C:\\rot.hlp", "123");

    FileListRow program = Row("Räkna.EXE", "%DESTDIR", "c:\\data\\app\\räkna.exe", "VRAW");
    program[IconMarker] = "IkonD";
    program[IconDesc] = "Räkna 2";
    program[IconPar] = "/a \"b c\"";
    program[IconWorkDir] = "%DESTDIR";
    program[IconFile] = "%DESTDIR\\r.ico";
    program[IconDocReader] = "<Ingen>";
    FileListRow text = Row("Läsmig.txt", "%DESTDIR\\Doc", "c:\\data\\åäö\\läsmig.txt", "");
    text[ComponentNumber] = "2";
    text[IconDocReader] = "Notepad";
    FileListRow folder;
    folder[Filename] = kEmptyFolderName;
    folder[Destination] = "%DESTDIR\\Tom";
    FileListRow help = IconRow("rot.hlp", "c:\\rot.hlp", "Hjälp", "Winhelp");
    help[Destination] = "%COMPDIR1";
    help[ComponentNumber] = "1";
    project.Files.rows = {program,
                          text,
                          folder,
                          help,
                          IconRow("a.rtf", "c:\\data\\a.txt", "a", "WordPad"),
                          IconRow("a.wri", "c:\\data\\a.txt", "b", "Write"),
                          IconRow("b.txt", "c:\\data\\b.txt", "c", "notepad")};

    EXPECT_EQ(Write(), 0);
    EXPECT_EQ(outcome.FilesInList, 7);
    EXPECT_TRUE(SameBytes(Written(), GoldenFile("builder/file_list/FILELIST.INF")));
    EXPECT_TRUE(ReadInstallFileList(Written()).isWhole);
}

TEST_F(WriteFileList, WritesTheComponentAsItStandsInTheRow)
{
    for (const auto& [column, written] :
         {std::pair("", "0"), {"7", "7"}, {"07", "07"}, {"x", "x"}}) {
        project.Files.rows.clear();
        AddRow("a.txt");
        project.Files.rows[0][ComponentNumber] = column;
        outcome = {};
        EXPECT_EQ(Write(), 0);
        EXPECT_THAT(Written(), testing::HasSubstr(Text("F1=a.txt;%DESTDIR;1;data; ;D ;") + written +
                                                  "; ; ; ; ;0;\r\n"));
    }
}

TEST_F(WriteFileList, LeavesTheDotsOutOfAnEmptyList)
{
    EXPECT_EQ(Write(), 0);
    EXPECT_TRUE(SameBytes(Written(), GoldenFile("builder/file_list/FILELIST_no_rows.INF")));
}

TEST_F(WriteFileList, SkipsWhatNewWindowsHasWithoutAGapInTheNumbers)
{
    project.OperatingSystem.TargetOperatingSystem = 1;
    AddRow("a.txt");
    for (const char* name : {"OLEAUT32.DLL", "oleaut32.dll", "OLEPRO32.DLL", "ASYCFILT.DLL",
                             "COMCAT.DLL", "MSVCRT.DLL", "MFC42.DLL", "STDOLE2.TLB"})
        AddRow(name, "c:\\no\\such\\file");
    AddRow("b.txt", "c:\\data\\b.txt");
    EXPECT_EQ(Write(), 0);
    EXPECT_EQ(outcome.FilesInList, 2);
    EXPECT_TRUE(SameBytes(Written(), GoldenFile("builder/file_list/FILELIST_new_windows.INF")));
}

TEST_F(WriteFileList, KeepsTheDotsWhereEveryRowIsSkipped)
{
    project.OperatingSystem.TargetOperatingSystem = 1;
    AddRow("MSVCRT.DLL");
    EXPECT_EQ(Write(), 0);
    EXPECT_EQ(outcome.FilesInList, 0);
    EXPECT_TRUE(SameBytes(Written(), GoldenFile("builder/file_list/FILELIST_all_skipped.INF")));
}

TEST_F(WriteFileList, WritesSystemFilesForAllWindows)
{
    AddRow("MSVCRT.DLL");
    EXPECT_EQ(Write(), 0);
    EXPECT_EQ(outcome.FilesInList, 1);
}

TEST_F(WriteFileList, EndsAtAMissingFileWithTheRowsSoFar)
{
    AddRow("a.txt");
    AddRow("x.txt", "c:\\data\\x.txt");
    AddRow("b.txt");
    EXPECT_EQ(Write(), 53);
    EXPECT_EQ(outcome.FilesInList, 1);
    EXPECT_EQ(outcome.failure->Path(), "c:\\data\\x.txt");
    EXPECT_TRUE(Written().ends_with("F1=a.txt;%DESTDIR;1;data; ;D ;0; ; ; ; ;0;\r\n"));
}

TEST_F(WriteFileList, EndsAtAMissingFolder)
{
    AddRow("x.txt", "c:\\gone\\x.txt");
    EXPECT_EQ(Write(), 76);
}

TEST_F(WriteFileList, TakesAFolderForAMissingFile)
{
    AddRow("data", "c:\\data");
    EXPECT_EQ(Write(), 53);
}

TEST_F(WriteFileList, RefusesANameThatTheCodePageLacks)
{
    machine.files.Put("C:\\Data\\смета.txt", "1");
    AddRow("смета.txt", "c:\\data\\смета.txt");
    EXPECT_EQ(Write(), 52);
    EXPECT_EQ(outcome.failure->Path(), "смета.txt");
}

TEST_F(WriteFileList, ReturnsTheNumberOfAFailedWrite)
{
    AddRow("a.txt");
    machine.files.FailFromWrite(1, 61);
    EXPECT_EQ(Write(), 61);
}

TEST_F(WriteFileList, ReturnsTheNumberOfARefusedFile)
{
    machine.files.RefuseOutput(kPath, 75);
    EXPECT_EQ(Write(), 75);
}

TEST_F(WriteFileList, TakesSizeAndFolderFromTheSameResolvedPath)
{
    machine.files.Put("C:\\App\\stor.txt", "12345");
    AddRow("stor.txt", "c:\\data\\..\\app\\.\\stor.txt");
    EXPECT_EQ(Write(), 0);
    const InstallRow row = ReadInstallFileList(Written()).rows.at(0);
    EXPECT_EQ(row.sourceFolder, "app");
    EXPECT_EQ(row.size, 5u);
}

TEST_F(WriteFileList, HoldsTheLargestListThereIs)
{
    project.Files.rows.assign(kMaxRows, Row("a.txt", "%DESTDIR", "c:\\data\\a.txt"));
    EXPECT_EQ(Write(), 0);
    EXPECT_EQ(outcome.FilesInList, Long(kMaxRows));
    const InstallFileList list = ReadInstallFileList(Written());
    EXPECT_TRUE(list.isWhole);
    EXPECT_EQ(list.rows.size(), kMaxRows);
}

TEST(SourceFolderOnMedium, IsTheFolderWithoutDriveAndLeadingBackslash)
{
    const std::pair<const char*, const char*> cases[] = {
        {"c:\\data\\app\\a.txt", "data\\app"},
        {"c:\\data\\a.txt", "data"},
        {"c:\\a.txt", ""},
        {"a.txt", ""},
        {"c:a.txt", ""},
        {"c:\\", ""},
        {"\\\\server\\share\\a.txt", "\\server\\share"}};
    for (const auto& [path, folder] : cases)
        EXPECT_EQ(SourceFolderOnMedium(path), folder) << path;
}

TEST(ConvertLongFilenameToShortFilename, GivesTheLowerCasePathWhereThereAreNoShortNames)
{
    const test::MemoryFiles files;
    EXPECT_EQ(ConvertLongFilenameToShortFilename(files, "C:\\Program\\ÅÄÖ\\A.TXT"),
              "c:\\program\\åäö\\a.txt");
    EXPECT_EQ(ConvertLongFilenameToShortFilename(files, "C:\\Data\\..\\App\\A.TXT"),
              "c:\\app\\a.txt");
}

TEST(ConvertLongFilenameToShortFilename, TakesTheShortNamesOfASystemThatHasThem)
{
    class ShortNames : public test::MemoryFiles {
        Text ShortPath(const Text& path) const override
        {
            return ReplaceAll(path, "Program Files", "PROGRA~1");
        }
    };
    EXPECT_EQ(ConvertLongFilenameToShortFilename(ShortNames(), "C:\\Program Files\\A.TXT"),
              "c:\\progra~1\\a.txt");
}

TEST(ConvertLongFilenameToShortFilename, KeepsAPathOf300Characters)
{
    const Text folder(300, 'f');
    const Text path = "c:\\" + folder + "\\a.txt";
    const test::MemoryFiles files;
    EXPECT_EQ(ConvertLongFilenameToShortFilename(files, path), path);
    EXPECT_EQ(SourceFolderOnMedium(path), folder);
}

} // namespace quillon
