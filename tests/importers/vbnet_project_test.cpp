#include "importers/vbnet_project.h"

#include "importers/project_lines.h"
#include "importers/vb_project.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Text> Lines(std::string_view text)
{
    return SplitProject(text, "C:\\a.vbproj").lines;
}

TEST(ComReferencesOf, FindsGuidAndBothVersions)
{
    const auto references =
        ComReferencesOf(Lines("<VisualStudioProject>\r\n"
                              "Guid = \"{11111111-0000-0000-0000-000000000000}\"\r\n"
                              "  <References>\r\n"
                              "    <Reference\r\n      Name = \"System\"\r\n"
                              "      AssemblyName = \"System\"\r\n    />\r\n"
                              "    <Reference\r\n      Name = \"MSComctlLib\"\r\n"
                              "      Guid = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}\"\r\n"
                              "      VersionMajor = \"2\"\r\n      VersionMinor = \"0\"\r\n"
                              "      Lcid = \"0\"\r\n    />\r\n"
                              "    <Reference\r\n"
                              "      Guid = \"{0}\"\r\n      VersionMajor = \"1\"\r\n"
                              "      VersionMinor = \"17\"\r\n"));
    ASSERT_TRUE(references);
    EXPECT_THAT(references->list, ElementsAre(ComReference{"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}",
                                                           "2", "0", "MSComctlLib"},
                                              ComReference{"{0}", "1", "17"}))
        << "a name is that of its own reference";
}

TEST(ComReferencesOf, TakesNoOtherAttributeForTheName)
{
    const auto references =
        ComReferencesOf(Lines("<References>\r\n<Reference\r\nAssemblyName = \"Interop\"\r\n"
                              "Name = \"R\xE4knare\r\nGuid = \"{0}\"\r\nVersionMajor = \"1\"\r\n"
                              "VersionMinor = \"0\"\r\n<Reference\r\nName = \"R\xE4knare\"\r\n"
                              "AssemblyName = \"Interop\"\r\nGuid = \"{1}\"\r\n"
                              "VersionMajor = \"1\"\r\nVersionMinor = \"0\"\r\n"));
    ASSERT_TRUE(references);
    EXPECT_THAT(references->list, ElementsAre(ComReference{"{0}", "1", "0"},
                                              ComReference{"{1}", "1", "0", "Räknare"}));
}

TEST(ComReferencesOf, TakesTheNextTwoLinesWhateverTheyHold)
{
    const auto references = ComReferencesOf(Lines("<References>\r\nGuid = \"{0}\"\r\n"
                                                  "Guid = \"{1}\"\r\nLcid\r\nGuid = \"{2}\"\r\n"));
    ASSERT_TRUE(references);
    EXPECT_THAT(references->list, ElementsAre(ComReference{"{0}", "{1}", ""}));
}

TEST(ComReferencesOf, TakesAGuidWithoutItsEndForAnEmptyOne)
{
    const auto references = ComReferencesOf(
        Lines("<References>\r\nGuid = \"{0\"\r\nVersionMajor = \"1\"\r\nVersionMinor = \"0\"\r\n"
              "Guid = \"{1}\"\r\nVersionMajor = \"2\"\r\nVersionMinor = \"0\"\r\n"));
    ASSERT_TRUE(references);
    EXPECT_THAT(references->list,
                ElementsAre(ComReference{"{}", "1", "0"}, ComReference{"{1}", "2", "0"}));
}

TEST(ComReferencesOf, KeepsTheVersionsOfOtherReferencesBehindADamagedLine)
{
    const ProjectLines project =
        SplitProject(std::string("<References>\r\nGuid = \"{0}\"\r\nVersion\0Major\r\n"
                                 "VersionMinor = \"7\"\r\nLcid = \"9\"\r\n",
                                 75),
                     "C:\\a.vbproj");
    EXPECT_NE(project.damage, "");
    const auto references = ComReferencesOf(project.lines);
    ASSERT_TRUE(references);
    EXPECT_THAT(references->list, ElementsAre(ComReference{"{0}", "", "7"}));
}

TEST(ComReferencesOf, CutsValuesAtTheirLimit)
{
    const Text longest(2000, '7');
    for (const Text& rest : {Text(), Text("8"), Text(1000, '8')}) {
        const auto references = ComReferencesOf(
            Lines("<References>\r\nGuid = \"{" + longest + rest + "}\"\r\nVersionMajor = \"" +
                  longest + rest + "\"\r\nVersionMinor = \"" + longest + rest + "\"\r\n"));
        ASSERT_TRUE(references);
        EXPECT_THAT(references->list,
                    ElementsAre(ComReference{"{" + longest + "}", longest, longest}))
            << rest.size();
    }
}

TEST(ComReferencesOf, TellsAFileWithoutAList)
{
    EXPECT_FALSE(ComReferencesOf(Lines("Guid = \"{0}\"\r\nVersionMajor = \"1\"\r\n")));
    EXPECT_FALSE(ComReferencesOf({}));
    EXPECT_THAT(ComReferencesOf(Lines("<References>\r\n</References>\r\n"))->list, IsEmpty());
}

TEST(ComReferencesOf, EndsWhereNoProjectHasMore)
{
    std::vector<Text> lines{"<References>"};
    for (int i = 0; i < 5000; ++i)
        lines.insert(lines.end(), {"Guid = \"{0}\"", "\"1\"", "\"0\""});
    EXPECT_EQ(ComReferencesOf(lines)->list.size(), kMaxReferences);
    EXPECT_TRUE(ComReferencesOf(lines)->isCut);
    lines.resize(1 + 3 * kMaxReferences);
    EXPECT_EQ(ComReferencesOf(lines)->list.size(), kMaxReferences);
    EXPECT_FALSE(ComReferencesOf(lines)->isCut);
}

TEST(IncludedFileLines, StandBehindTheirHeading)
{
    EXPECT_THAT(IncludedFileLines(Lines("RelPath = \"before.vb\"\r\n<Include>\r\n"
                                        "  <File\r\n    RelPath = \"Läs.vb\"\r\n    SubType\r\n"
                                        "    RelPath = noquote.vb\r\n")),
                ElementsAre("    RELPATH = \"LÄS.VB\""));
    EXPECT_THAT(IncludedFileLines(Lines("RelPath = \"a.vb\"\r\n")), IsEmpty());
}

TEST(IsMsBuildProject, KnowsTheProjectsOfLaterYears)
{
    EXPECT_TRUE(IsMsBuildProject(Lines("<Project Sdk=\"Microsoft.NET.Sdk\">\n")));
    EXPECT_TRUE(IsMsBuildProject(Lines("<?xml version=\"1.0\"?>\n<Project "
                                       "ToolsVersion=\"4.0\" xmlns=\"http://x\">\n")));
    EXPECT_TRUE(IsMsBuildProject(Lines("<Project>\n")));
    EXPECT_TRUE(IsMsBuildProject(Lines("<Project\n  Sdk=\"Microsoft.NET.Sdk\">\n")));
    EXPECT_FALSE(IsMsBuildProject(Lines("<VisualStudioProject>\n<VisualBasic\n")));
    EXPECT_FALSE(IsMsBuildProject({}));
}

} // namespace
} // namespace quillon::test
