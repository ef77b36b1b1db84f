#include "importers/lst_file.h"

#include "filelist/list_builder.h"
#include "platform/run_error.h"
#include "support/memory_host.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

constexpr const char* kPath = "C:\\Data\\SETUP.LST";

std::optional<std::vector<Text>> Missing(const std::string& lstFile,
                                         const std::vector<FileListRow>& rows = {})
{
    MemoryHost machine;
    machine.files.Put(kPath, lstFile);
    return MissingFromFileList(machine.files, kPath, rows);
}

std::string Files(int first, int last)
{
    std::string lines;
    for (int i = first; i <= last; ++i)
        lines += "File" + std::to_string(i) + "=f" + std::to_string(i) + "\r\n";
    return lines;
}

} // namespace

TEST(MissingFromFileList, NamesWhatNoRowHas)
{
    const std::vector<FileListRow> rows = {MakeRow("MSVBVM60.dll"), MakeRow("<Dir>"),
                                           MakeRow("prog.exe")};
    const auto missing = Missing("[Bootstrap Files]\r\n"
                                 "File1=@msvbvm60.dll,$(WinSysPathSysFile),$(DLLSelfRegister),,"
                                 "1/14/03 12:00:00 AM,1386496,6.0.97.82\r\n"
                                 "File2=@OLEAUT32.DLL,$(WinSysPathSysFile)\r\n"
                                 "[IconGroups]\r\nGroup0=Project1\r\n"
                                 "[Setup1 Files]\r\n"
                                 "File1=PROG.EXE,$(AppPath),,,6/1/04 1:00:00 PM,20480,1.0.0.0\r\n"
                                 "File2=L\xE4smig.txt\r\n"
                                 "File3=@Chart.OCX,$(WinSysPath)\r\n",
                                 rows);
    EXPECT_THAT(missing, Optional(ElementsAre("OLEAUT32.DLL", "Läsmig.txt", "Chart.OCX")));
}

TEST(MissingFromFileList, PassesTheWizardsKitOverInTheFirstSectionOnly)
{
    const std::string kit = "File1=@VB6STKIT.DLL,$(WinSysPathSysFile)\r\nFile2=@Vb6StKit.dll\r\n";
    EXPECT_THAT(Missing("[Bootstrap Files]\r\n" + kit), Optional(IsEmpty()));
    EXPECT_THAT(Missing("[Setup1 Files]\r\n" + kit),
                Optional(ElementsAre("VB6STKIT.DLL", "Vb6StKit.dll")));
}

TEST(MissingFromFileList, TakesTheNameOutOfItsValue)
{
    const std::pair<const char*, const char*> cases[] = {{"a.dll", "a.dll"},
                                                         {"@a.dll", "a.dll"},
                                                         {"a.dll,", "a.dll"},
                                                         {"@a.dll,x,y", "a.dll"},
                                                         {"@@a.dll", "@a.dll"},
                                                         {"a@b.dll", "a@b.dll"},
                                                         {"\"@a.dll,x\"", "a.dll"},
                                                         {" @a.dll , x", "a.dll "},
                                                         {"@", ""},
                                                         {",a.dll", ""}};
    for (const auto& [value, name] : cases)
        EXPECT_THAT(Missing(std::string("[Setup1 Files]\r\nFile1=") + value),
                    Optional(ElementsAre(name)))
            << value;
}

// The mark is part of the value, and what the limit cuts off is not looked at.
TEST(MissingFromFileList, CutsValuesAtTheirLimit)
{
    const std::string longest(199, 'x'); // and a NUL
    const auto missing = Missing("[Bootstrap Files]\r\nFile1=" + longest + "y\r\nFile2=@" +
                                 longest + "\r\n[Setup1 Files]\r\nFile1=" + longest + ",a.dll\r\n");
    EXPECT_THAT(missing, Optional(ElementsAre(longest, longest.substr(1), longest)));
}

TEST(MissingFromFileList, ComparesNamesOnly)
{
    const std::vector<FileListRow> rows = {MakeRow("å.DLL", "%SYSDIR", "c:\\x\\å.dll"),
                                           MakeRow("å.DLL", "%DESTDIR", "c:\\y\\å.dll")};
    EXPECT_THAT(Missing("[Setup1 Files]\nFile1=\xC5.dll,$(WinSysPath)", rows), Optional(IsEmpty()));
}

TEST(MissingFromFileList, EndsASectionAtItsFirstGapAndAtFiveThousand)
{
    EXPECT_THAT(Missing("[Bootstrap Files]\r\nFile1=a\r\nFile2=\r\nFile3=c\r\n"
                        "[Setup1 Files]\r\nFile1=d\r\nFile3=e\r\n"),
                Optional(ElementsAre("a", "d")));
    const auto missing =
        Missing("[Bootstrap Files]\r\n" + Files(1, 5001) + "[Setup1 Files]\r\n" + Files(1, 5001));
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->size(), 10000U);
    EXPECT_EQ(missing->back(), "f5000");
}

TEST(MissingFromFileList, ListsANameAsOftenAsTheFileDoes)
{
    EXPECT_THAT(Missing("[Bootstrap Files]\r\nFile1=a\r\n[Setup1 Files]\r\nFile1=a\r\nFile2=A\r\n"),
                Optional(ElementsAre("a", "a", "A")));
}

TEST(MissingFromFileList, KnowsAFileThatListsNothing)
{
    using namespace std::string_literals;
    for (const std::string& file : {""s, "File1=a\r\n"s, "[Setup1 Files]\r\nFile2=a\r\n"s,
                                    "[Setup1]\r\nFile1=a\r\n"s, "\0\xFF\x1A[Setup1 Files\0"s})
        EXPECT_EQ(Missing(file), std::nullopt) << file;
}

TEST(MissingFromFileList, TellsAFileThatIsTooLargeToBeOne)
{
    const std::string list = "[Setup1 Files]\r\nFile1=a\r\n";
    MemoryHost machine;
    machine.files.Put(kPath, list + std::string((32U << 20) - list.size(), '\n'));
    EXPECT_EQ(TooLargeLstText(machine.files, kPath), "");
    EXPECT_THAT(MissingFromFileList(machine.files, kPath, {}), Optional(ElementsAre("a")));
    machine.files.Put(kPath, list + std::string((32U << 20) - list.size() + 1, '\n'));
    EXPECT_EQ(
        TooLargeLstText(machine.files, kPath),
        "Filen 'C:\\Data\\SETUP.LST' är för stor för att vara en LST-fil: den är större än 32 "
        "MB. Kontrollera att du valt rätt LST-fil.");
    EXPECT_EQ(MissingFromFileList(machine.files, kPath, {}), std::nullopt);
}

TEST(MissingFromFileList, ThrowsWhereTheFileCannotBeRead)
{
    MemoryHost machine;
    machine.files.Put(kPath, "x");
    machine.files.At(kPath).unreadable = true;
    const auto read = [&](const char* path) {
        return RunErrorNumber([&] { MissingFromFileList(machine.files, path, {}); });
    };
    EXPECT_EQ(read(kPath), ErrorNumber::kPermissionDenied);
    EXPECT_EQ(read("C:\\Data\\none.lst"), ErrorNumber::kFileNotFound);
}

} // namespace quillon::test
