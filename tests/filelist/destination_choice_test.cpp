#include "filelist/adding/destination_choice.h"

#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {

using testing::ElementsAre;
using testing::IsEmpty;
using Place = DestinationQuestion::Place;

TEST(DestinationChoice, TakesAnyTextButOneWithASemicolon)
{
    ScriptedAsk ask;
    EXPECT_EQ(MakeDestination(Place::User, "%DESTDIR\\Sub\\", ask), "%DESTDIR\\Sub");
    EXPECT_EQ(MakeDestination(Place::User, "C:\\Fast\\\\", ask), "C:\\Fast\\");
    EXPECT_EQ(MakeDestination(Place::User, "vad som helst", ask), "vad som helst");
    EXPECT_EQ(MakeDestination(Place::User, "", ask), "");
}

TEST(DestinationChoice, TakesTheSystemsFoldersWhateverIsTyped)
{
    ScriptedAsk ask;
    EXPECT_EQ(MakeDestination(Place::System, "%DESTDIR", ask), "%SYSDIR");
    EXPECT_EQ(MakeDestination(Place::Windows, "%DESTDIR", ask), "%WINDIR");
}

TEST(DestinationChoice, RefusesASemicolonEvenWhereTheTextDoesNotCount)
{
    for (const Place place : {Place::User, Place::System, Place::Windows}) {
        ScriptedAsk ask({{BoxKind::Critical, "Ogiltiga tecken hittade",
                          "Destinationskatalogen innehåller ogiltiga tecken!"}});
        EXPECT_FALSE(MakeDestination(place, "%DESTDIR;", ask));
    }
}

TEST(DestinationChoice, RefusesAFolderThatNoSetupCouldMake)
{
    const std::pair<Text, Text> cases[] = {
        {"%DESTDIR\\..\\x", "'..' får inte ingå"},
        {"%DESTDIR\\D:\\x", "ett kolon får bara stå efter enhetens bokstav"},
        {"%DESTDIR\\nul",
         "CON, PRN, AUX, NUL, COM1 till COM9 och LPT1 till LPT9 är reserverade namn"},
    };
    for (const auto& [typed, reason] : cases) {
        ScriptedAsk ask(
            {{BoxKind::Critical, "Ogiltig destinationskatalog",
              "Destinationen '" + typed + "' fungerar inte i Windows: " + reason + "."}});
        EXPECT_FALSE(MakeDestination(Place::User, typed, ask));
    }
    ScriptedAsk ask;
    EXPECT_EQ(MakeDestination(Place::System, "%DESTDIR\\..", ask), "%SYSDIR")
        << "counts for nothing";
    EXPECT_EQ(MakeDestination(Place::User, "%NYTT\\x", ask), "%NYTT\\x") << "told at Create";
}

TEST(DestinationChoice, RemembersTheLastFourFoldersNewestFirst)
{
    OpenProjectState state;
    state.DestinationDirectoryChoices[5] = "den sista";
    EXPECT_THAT(RecentDestinationDirectories(state), IsEmpty());
    for (const char* const folder : {"a", "b", "", "c", "b", "d", "B"})
        RememberDestination(state, folder);
    EXPECT_THAT(RecentDestinationDirectories(state), ElementsAre("B", "d", "c", "b"));
    EXPECT_EQ(state.DestinationDirectoryChoices[4], "");
    EXPECT_EQ(state.DestinationDirectoryChoices[5], "den sista");
}

TEST(DestinationChoice, OffersTheVariablesOfAUsersFolder)
{
    EXPECT_THAT(DestinationVariables(),
                ElementsAre("%DESTDIR", "%PROGRAMFILES", "%MYDOCUMENTS", "%COMMONFILES", "%FONTDIR",
                            "%COMPDIR1", "%COMPDIR2", "%COMPDIR3", "%COMPDIR4", "%COMPDIR5",
                            "%COMPDIR6", "%COMPDIR7", "%COMPDIR8", "%COMPDIR9", "%APPDATADIR",
                            "%TEMPLATESDIR", "%WORDSTARTUPDIR"));
}

} // namespace quillon::test
