#include "filelist/options/file_info.h"

#include "filelist/list_builder.h"
#include "support/memory_host.h"
#include "support/program_file.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(FileSizeText, GroupsTheBytesByTheirPattern)
{
    EXPECT_EQ(FileSizeText(1), "  1 bytes");
    EXPECT_EQ(FileSizeText(999), "  999 bytes");
    EXPECT_EQ(FileSizeText(1024), " 1 024 bytes");
    EXPECT_EQ(FileSizeText(123456789), "123 456 789 bytes");
    EXPECT_EQ(FileSizeText(4294967296), "4294 967 296 bytes");
    EXPECT_EQ(FileSizeText(0), "   bytes");
}

TEST(FileDateTimeText, HasSecondsBehindAGap)
{
    EXPECT_EQ(FileDateTimeText({2004, 2, 9, 3, 4, 5}), "2004-02-09    03:04:05");
}

TEST(FileAttrText, NamesTheAttributesInTheirOrder)
{
    EXPECT_EQ(FileAttrText({}), "");
    EXPECT_EQ(FileAttrText({.isReadOnly = true}), "[Skrivskyddad]  ");
    EXPECT_EQ(FileAttrText({.isHidden = true}), "[Dold]  ");
    EXPECT_EQ(FileAttrText({.isArchive = true}), "[Arkiv]  ");
    EXPECT_EQ(FileAttrText({.isSystem = true}), "[System]  ");
    EXPECT_EQ(
        FileAttrText({.isReadOnly = true, .isHidden = true, .isArchive = true, .isSystem = true}),
        "[Skrivskyddad]  [Dold]  [Arkiv]  [System]  ");
}

TEST(FileInfoOf, TellsOfTheFileOnDiskAndItsVersion)
{
    MemoryHost machine;
    const std::string bytes = MakeProgramFile({.languages = {{{"FileVersion", "1, 2, 0, 5"},
                                                              {"FileDescription", "Räknar"},
                                                              {"CompanyName", "Firma"},
                                                              {"LegalCopyright", "(C) Firma"}}}});
    machine.files.Put("C:\\D\\Prog.exe", bytes, {2004, 2, 29, 12, 30, 7});
    machine.files.At("C:\\D\\Prog.exe").status.isReadOnly = true;
    FileListRow row = MakeRow("Prog.exe", "%DESTDIR\\Bin", "c:\\d\\prog.exe");
    row[Size] = "99,9"; // what the list shows may be old
    const FileInfo expected{.Filename = "Prog.exe",
                            .FileSize = FileSizeText(bytes.size()),
                            .FileDateTime = "2004-02-29    12:30:07",
                            .FileAttr = "[Skrivskyddad]  ",
                            .FileDest = "%DESTDIR\\Bin",
                            .FileSrc = "c:\\d\\prog.exe",
                            .FileVersion = "1, 2, 0, 5",
                            .FileDescription = "Räknar",
                            .Copyright = "(C) Firma"};
    const FileInfo info = FileInfoOf(row, machine.files);
    EXPECT_EQ(info, expected) << info.FileAttr << info.FileVersion;
}

TEST(FileInfoOf, LeavesTheVersionEmptyWithoutOne)
{
    MemoryHost machine;
    machine.files.Put("C:\\a.txt", "text");
    const FileInfo info = FileInfoOf(MakeRow("a.txt", "", "c:\\a.txt"), machine.files);
    EXPECT_EQ(info.FileSize, "  4 bytes");
    EXPECT_EQ(info.FileVersion + info.FileDescription + info.Copyright, "");
}

TEST(FileInfoOf, SaysThatAFileIsGone)
{
    MemoryHost machine;
    machine.files.PutFolder("C:\\mapp");
    for (const char* path : {"c:\\a.txt", "c:\\finns\\inte.txt", "c:\\mapp"}) {
        const FileInfo expected{
            .Filename = "a.txt", .FileSize = "<Filen saknas>", .FileDest = "D", .FileSrc = path};
        EXPECT_EQ(FileInfoOf(MakeRow("a.txt", "D", path), machine.files), expected) << path;
    }
}

TEST(FileInfoOf, ShowsTheFactsOfAFileThatCannotBeRead)
{
    MemoryHost machine;
    machine.files.Put("C:\\a.exe", MakeProgramFile({.languages = {{{"FileVersion", "1"}}}}));
    machine.files.At("C:\\a.exe").unreadable = true;
    const FileInfo info = FileInfoOf(MakeRow("a.exe", "", "c:\\a.exe"), machine.files);
    EXPECT_NE(info.FileSize, "<Filen saknas>");
    EXPECT_EQ(info.FileVersion, "");
}

TEST(IsDataAccessPackage, GoesByTheName)
{
    EXPECT_TRUE(IsDataAccessPackage(MakeRow("MDAC_TYP.ZIP")));
    EXPECT_TRUE(IsDataAccessPackage(MakeRow("mdac_typ.zip")));
    EXPECT_FALSE(IsDataAccessPackage(MakeRow("MDAC_TYP.EXE")));
}

} // namespace
} // namespace quillon::test
