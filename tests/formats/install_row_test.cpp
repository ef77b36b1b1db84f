#include "formats/install_row.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

const InstallRow kFullRow{.number = 12,
                          .name = "Läsmig.TXT",
                          .destination = "%DESTDIR\\Doc",
                          .size = 5'000'000'000,
                          .sourceFolder = "data\\app",
                          .iconMarker = "IkonD",
                          .copyOptions = "VRAW",
                          .component = "3",
                          .iconTitle = "Läs mig",
                          .iconParameters = "/a /b",
                          .workFolder = "%DESTDIR",
                          .iconFile = "%DESTDIR\\a.ico",
                          .viewer = 1};
const Text kFullLine = "F12=Läsmig.TXT;%DESTDIR\\Doc;5000000000;data\\app;IkonD ;VRAW ;3;Läs mig ;"
                       "/a /b ;%DESTDIR ;%DESTDIR\\a.ico ;1;";

const Text kHeader = "[Origin]\r\nInfo = This file is created by Tavrell Quillon 2004\r\n\r\n"
                     "[ID]\r\nApp = Quillon\r\nVer = 6.5.6\r\nFileType = FileList\r\n\r\n"
                     "[FileList]\r\n";
const Text kTail = "....\r\n\r\n-(EOF)-\r\n\r\n";
const Text kRow1 = "F1=a.txt;%DESTDIR;1;data; ; ;0; ; ; ; ;0;\r\n";
const Text kRow2 = "F2=<Dir>;%DESTDIR\\Tom;0;; ; ;0; ; ; ; ;0;\r\n";

} // namespace

TEST(InstallRowLine, PutsABlankBehindSomeFieldsAlone)
{
    EXPECT_EQ(InstallRowLine(kFullRow), kFullLine);
    EXPECT_EQ(InstallRowLine({.number = 2, .name = "<Dir>", .destination = "%DESTDIR\\Tom"}) +
                  "\r\n",
              kRow2);
}

TEST(ReadInstallRow, GivesBackWhatWasWritten)
{
    EXPECT_EQ(ReadInstallRow(kFullLine), kFullRow);
    const InstallRow blanksAtTheEnds{
        .number = 1, .name = "a", .iconTitle = " b ", .workFolder = " "};
    EXPECT_EQ(ReadInstallRow(InstallRowLine(blanksAtTheEnds)), blanksAtTheEnds);
}

TEST(ReadInstallRow, TakesAComponentAsItStands)
{
    const std::pair<const char*, int> cases[] = {
        {"0", 0}, {"3", 3}, {"7x", 7}, {"x", 0}, {"-2", 0}, {"99999999999999999999", 32767}};
    for (const auto& [text, number] : cases) {
        const InstallRow row{.number = 1, .name = "a", .component = text};
        EXPECT_EQ(ReadInstallRow(InstallRowLine(row)), row) << text;
        EXPECT_EQ(ComponentNumberOf(row), number) << text;
    }
}

TEST(ReadInstallRow, DoesNotInsistOnTheBlanks)
{
    const auto row = ReadInstallRow("F1=a;b;1;c;Ikon;D;0;t;p;w;i;0;");
    ASSERT_TRUE(row);
    EXPECT_EQ(row->iconMarker, "Ikon");
    EXPECT_EQ(row->iconFile, "i");
}

class NoWholeRow : public testing::TestWithParam<const char*> {};

TEST_P(NoWholeRow, GivesNothing)
{
    EXPECT_EQ(ReadInstallRow(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    ReadInstallRow, NoWholeRow,
    testing::Values("", "F1", "F1=", "=a;b;1;c; ; ;0; ; ; ; ;0;", "F=a;b;1;c; ; ;0; ; ; ; ;0;",
                    "F0=a;b;1;c; ; ;0; ; ; ; ;0;", "F-1=a;b;1;c; ; ;0; ; ; ; ;0;",
                    "G1=a;b;1;c; ; ;0; ; ; ; ;0;", "F1x=a;b;1;c; ; ;0; ; ; ; ;0;",
                    "F1=a;b;x;c; ; ;0; ; ; ; ;0;", "F1=a;b;-1;c; ; ;0; ; ; ; ;0;",
                    "F1=a;b;;c; ; ;0; ; ; ; ;0;", "F1=a;b;1;c; ; ;; ; ; ; ;0;",
                    "F1=a;b;99999999999999999999;c; ; ;0; ; ; ; ;0;", "F1=a;b;1;c; ; ;0; ; ; ; ;0",
                    "F1=a;b;1;c; ; ;0; ; ; ;", "F1=a;b;1;c; ; ;0; ; ; ; ;0;more;"));

TEST(ReadInstallFileList, ReadsAllRowsOfAWholeFile)
{
    const InstallFileList list = ReadInstallFileList(kHeader + kRow1 + kRow2 + kTail);
    EXPECT_TRUE(list.isWhole);
    ASSERT_EQ(list.rows.size(), 2u);
    EXPECT_EQ(list.rows[0].name, "a.txt");
    EXPECT_EQ(list.rows[1].name, "<Dir>");
}

TEST(ReadInstallFileList, DecodesTheCodePage)
{
    const InstallFileList list =
        ReadInstallFileList(kHeader + "F1=\xC5.txt;d;1;data; ; ;0; ; ; ; ;0;\r\n" + kTail);
    ASSERT_TRUE(list.isWhole);
    EXPECT_EQ(list.rows[0].name, "Å.txt");
}

TEST(ReadInstallFileList, TakesAListWithoutRowsAsWhole)
{
    for (const Text& tail : {Text("-(EOF)-\r\n\r\n"), kTail}) {
        const InstallFileList list = ReadInstallFileList(kHeader + tail);
        EXPECT_TRUE(list.isWhole);
        EXPECT_TRUE(list.rows.empty());
    }
}

TEST(ReadInstallFileList, IsNotWholeWhereverTheFileIsCut)
{
    const Text whole = kHeader + kRow1 + kRow2 + kTail;
    const std::size_t lastMark = whole.find("-(EOF)-") + 7;
    for (std::size_t length = 0; length < lastMark; ++length)
        EXPECT_FALSE(ReadInstallFileList(whole.substr(0, length)).isWhole) << length;
    EXPECT_TRUE(ReadInstallFileList(whole.substr(0, lastMark)).isWhole);
}

TEST(ReadInstallFileList, IsNotWholeWithARowMissingOrBroken)
{
    EXPECT_FALSE(ReadInstallFileList(kHeader + kRow2 + kTail).isWhole);
    EXPECT_FALSE(ReadInstallFileList(kHeader + kRow1 + kRow1 + kTail).isWhole);
    EXPECT_FALSE(ReadInstallFileList(kHeader + kRow1 + "\r\n" + kTail).isWhole);
    EXPECT_FALSE(ReadInstallFileList(kHeader + "F1=a.txt\r\n" + kTail).isWhole);
}

TEST(ReadInstallFileList, IsNotWholeUnderAnotherTypeMark)
{
    const Text whole = kHeader + kRow1 + kTail;
    EXPECT_FALSE(ReadInstallFileList(ReplaceAll(whole, "= Quillon", "= quillon")).isWhole);
    EXPECT_FALSE(ReadInstallFileList(ReplaceAll(whole, "= FileList", "= Options")).isWhole);
    EXPECT_FALSE(ReadInstallFileList("").isWhole);
}

} // namespace quillon
