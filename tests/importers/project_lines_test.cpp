#include "importers/project_lines.h"

#include "support/memory_host.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kFile = "C:\\P\\a.vbp";

std::string Utf16(std::string_view text, bool highByteFirst)
{
    std::string bytes;
    for (const char c : text) {
        bytes += highByteFirst ? std::string(1, '\0') + c : c + std::string(1, '\0');
    }
    return bytes;
}

TEST(ProjectLines, EndInAnyWay)
{
    const ProjectLines project = SplitProject("Type=Exe\r\nForm=a.frm\nTitle=\"B\"\rLast", kFile);
    EXPECT_THAT(project.lines, ElementsAre("Type=Exe", "Form=a.frm", "Title=\"B\"", "Last"));
    EXPECT_EQ(project.damage, "");
    EXPECT_THAT(SplitProject("", kFile).lines, IsEmpty());
}

TEST(ProjectLines, ComeInAnyCodePage)
{
    EXPECT_THAT(SplitProject("F=L\xE4s.frm\r\n", kFile).lines, ElementsAre("F=Läs.frm"));
    EXPECT_THAT(SplitProject("F=Läs.frm\r\n", kFile).lines, ElementsAre("F=Läs.frm"));
    EXPECT_THAT(SplitProject("\xEF\xBB\xBF"
                             "F=Läs.frm",
                             kFile)
                    .lines,
                ElementsAre("F=Läs.frm"));
    EXPECT_THAT(SplitProject("\xFF\xFE" + Utf16("A\r\nB", false), kFile).lines,
                ElementsAre("A", "B"));
    EXPECT_THAT(SplitProject("\xFE\xFF" + Utf16("A\r\nB", true), kFile).lines,
                ElementsAre("A", "B"));
    EXPECT_THAT(SplitProject(Utf16("Type=Exe\r\nB", false), kFile).lines,
                ElementsAre("Type=Exe", "B"))
        << "without a mark";
}

TEST(ProjectLines, PassOverDamagedOnesAndKeepTheRest)
{
    const ProjectLines one = SplitProject(std::string("A\r\nB\0C\r\nD\r\n", 11), kFile);
    EXPECT_THAT(one.lines, ElementsAre("A", "", "D"))
        << "so that the lines behind it keep their places";
    EXPECT_EQ(one.damage, "Projektfilen 'C:\\P\\a.vbp' är skadad: raden 2 har nolltecken eller är "
                          "längre än 4096 tecken och är överhoppad.");
    std::string two = "A\r\n\r\n";
    two.append(5000, 'x').append("\r\n").append(6000, 'y').append("\r\nD\r\n");
    EXPECT_THAT(SplitProject(two, kFile).lines, ElementsAre("A", "", "", "", "D"));
    EXPECT_EQ(SplitProject(two, kFile).damage,
              "Projektfilen 'C:\\P\\a.vbp' är skadad: 2 rader, den första är 3, har nolltecken "
              "eller är längre än 4096 tecken och är överhoppade.");
}

TEST(ProjectLines, OfAFileThatIsTooLargeAreItsFirstOnes)
{
    MemoryHost machine;
    std::string bytes;
    while (bytes.size() < 10U << 20)
        bytes += "Form=Form with a name that is long enough to fill a file.frm\r\n";
    machine.files.Put(kFile, bytes);
    const ProjectLines project = ReadProjectLines(machine.files, kFile);
    EXPECT_EQ(project.lines.size(), kMaxProjectBytes / 62);
    EXPECT_EQ(project.lines.back(), project.lines.front()) << "no line is cut";
    EXPECT_EQ(project.damage,
              "Projektfilen 'C:\\P\\a.vbp' är större än 4 MB. Endast dess första 4 MB är lästa.");
}

TEST(ProjectLines, OfOneEndlessLineAreNone)
{
    std::string bytes;
    bytes.assign(10U << 20, 'x');
    const ProjectLines project = SplitProject(bytes, kFile);
    EXPECT_THAT(project.lines, ElementsAre(""));
    EXPECT_NE(project.damage, "");
}

} // namespace
} // namespace quillon::test
