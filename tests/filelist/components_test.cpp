#include "filelist/components.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;

TEST(ComponentListEntries, KeepTheNumbersOfTheComponentsInUse)
{
    Project project;
    EXPECT_THAT(ComponentListEntries(project), ElementsAre("Ingen komponent"));

    project.FileComponents[1].Comp = 1;
    project.FileComponents[1].CompName = "Hjälp";
    project.FileComponents[2].CompName = "Ej i bruk";
    project.FileComponents[4].Comp = 1;
    EXPECT_THAT(ComponentListEntries(project),
                ElementsAre("Ingen komponent", "Komponent nr 2 - 'Hjälp'", "Komponent nr 5 - ''"));

    for (section::FileComponent& component : project.FileComponents)
        component = {.Comp = 1, .CompName = "x"};
    const std::vector<Text> entries = ComponentListEntries(project);
    ASSERT_EQ(entries.size(), 10U);
    EXPECT_EQ(entries[1], "Komponent nr 1 - 'x'");
    EXPECT_EQ(entries[9], "Komponent nr 9 - 'x'");
}

TEST(ListEntry, GivesDestinationAndNumberOfEachComponent)
{
    for (int n = 1; n <= 9; ++n) {
        const Text number = NumberText(n);
        const Text entry = "Komponent nr " + number + " - 'Komponent nr 7'";
        EXPECT_EQ(GetCompDirFromListEntry(entry), "%COMPDIR" + number);
        EXPECT_EQ(GetCompNrFromListEntry(entry), number);
    }
}

TEST(ListEntry, GivesTheMainFolderForAnyOtherText)
{
    for (const char* const entry : {"Ingen komponent", "", "Komponent nr ", "Komponent nr 0",
                                    "Komponent nr x", "komponent nr 1", " Komponent nr 1"}) {
        EXPECT_EQ(GetCompDirFromListEntry(entry), "%DESTDIR") << entry;
        EXPECT_EQ(GetCompNrFromListEntry(entry), "") << entry;
    }
}

TEST(ComponentNumber, CountsWhileItsComponentIsInUse)
{
    Project project;
    project.FileComponents[1].Comp = 1;
    project.FileComponents[8].Comp = kOn;
    const std::pair<Text, Text> cases[] = {
        {"2", "2"},  {"9", "9"},  {"02", "2"}, {" 2 ", "2"},  {"+2", "2"}, {"2,4", "2"}, {"1", ""},
        {"5", ""},   {"0", ""},   {"10", ""},  {"-2", ""},    {"", ""},    {"två", ""},  {"2x", ""},
        {"0,4", ""}, {"9,6", ""}, {"22", ""},  {"99999", ""}, {"2.4", ""}};
    for (const auto& [typed, number] : cases)
        EXPECT_EQ(UsableComponentNumber(typed, project, ','), number) << typed;
}

} // namespace quillon::test
