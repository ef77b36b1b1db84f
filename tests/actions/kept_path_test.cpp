#include "actions/kept_path.h"

#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

constexpr PathKind kThing{"Saken", "Lägg den närmare."};

TEST(ChooseKeptPath, AsksInTheFolderAndRemembersWhereTheUserWent)
{
    ScriptedAsk ask;
    ask.choices = {{{"D:\\Ny\\a.txt"}}, {}, {{""}}};
    Text folder = "C:\\Gammal";
    EXPECT_EQ(ChooseKeptPath({.title = "Välj"}, folder, 20, kThing, ask), "D:\\Ny\\a.txt");
    EXPECT_EQ(folder, "D:\\Ny");
    EXPECT_EQ(ask.questions.at(0).title, "Välj");
    EXPECT_EQ(ask.questions.at(0).folder, "C:\\Gammal");
    for (int cancelled = 0; cancelled < 2; ++cancelled)
        EXPECT_FALSE(ChooseKeptPath({}, folder, 20, kThing, ask));
    EXPECT_EQ(folder, "D:\\Ny");
}

TEST(ChooseKeptPath, SaysWhyAPathIsRefused)
{
    ScriptedAsk ask{
        {{BoxKind::Critical, "Fel",
          "Saken 'D:\\Ny\\12.txt' kan ej väljas. Sökvägen är för lång för att kunna lagras i ett "
          "projekt. Lägg den närmare."},
         {BoxKind::Critical, "Ogiltiga tecken hittade",
          "Saken 'C:\\日' kan ej väljas. Namnet innehåller tecken som inte kan lagras i ett "
          "projekt. Byt namn på filen eller katalogen och försök igen."}}};
    ask.choices = {{{"D:\\Ny\\12.txt"}}, {{"C:\\日"}}, {{"D:\\Ny\\å.txt"}}};
    Text folder;
    EXPECT_FALSE(ChooseKeptPath({}, folder, 11, kThing, ask));
    EXPECT_EQ(folder, "D:\\Ny") << "the next try begins where the refused file lies";
    EXPECT_FALSE(ChooseKeptPath({}, folder, 11, kThing, ask));
    EXPECT_EQ(ChooseKeptPath({}, folder, 11, kThing, ask), "D:\\Ny\\å.txt") << "bytes on file";
}

} // namespace
} // namespace quillon::test
