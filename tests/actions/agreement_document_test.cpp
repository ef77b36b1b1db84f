#include "actions/agreement_document.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

TEST(ChooseRtfFile, AsksWhereTheUserWasLast)
{
    ScriptedAsk ask;
    ask.choices = {{{"D:\\Avtal\\licens.rtf"}}};
    Text folder = "C:\\Mina dokument";
    EXPECT_EQ(ChooseRtfFile(folder, ask), "D:\\Avtal\\licens.rtf");
    EXPECT_EQ(folder, "D:\\Avtal");
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Välj RTF-fil");
    EXPECT_EQ(ask.questions[0].folder, "C:\\Mina dokument");
    EXPECT_EQ(ask.questions[0].fileName, "*.rtf");
    EXPECT_EQ(ask.questions[0].filter, "RTF-filer (*.rtf)|*.rtf");
}

TEST(ChooseRtfFile, GivesNothingOnCancel)
{
    ScriptedAsk ask;
    ask.choices = {{}, {{""}}};
    Text folder = "C:\\Avtal";
    EXPECT_FALSE(ChooseRtfFile(folder, ask));
    EXPECT_FALSE(ChooseRtfFile(folder, ask));
    EXPECT_EQ(folder, "C:\\Avtal");
}

TEST(ChooseRtfFile, RefusesANameThatNoProjectCanHold)
{
    const Text tooLong = "C:\\" + Text(248, 'x') + ".rtf";
    ScriptedAsk ask{{{BoxKind::Critical, "Ogiltiga tecken hittade",
                      "RTF-filen 'C:\\日\\a.rtf' kan ej väljas. Namnet innehåller tecken som inte "
                      "kan lagras i ett projekt. Byt namn på filen eller katalogen och försök "
                      "igen."},
                     {BoxKind::Critical, "Fel",
                      "RTF-filen '" + tooLong +
                          "' kan ej väljas. Sökvägen är för lång för att kunna lagras i ett "
                          "projekt. Lägg filen i en katalog närmare roten."}}};
    ask.choices = {{{"C:\\日\\a.rtf"}}, {{tooLong}}, {{"C:\\" + Text(247, 'x') + ".rtf"}}};
    Text folder;
    EXPECT_FALSE(ChooseRtfFile(folder, ask));
    EXPECT_FALSE(ChooseRtfFile(folder, ask));
    EXPECT_TRUE(ChooseRtfFile(folder, ask));
}

TEST(OpenRtfFile, OpensItAsTheSystemDoes)
{
    MemoryHost host;
    ScriptedAsk ask;
    OpenRtfFile("C:\\a.rtf", host.machine, ask);
    ASSERT_EQ(host.machine.started.size(), 1U);
    EXPECT_EQ(host.machine.started[0].first, "C:\\a.rtf");
}

TEST(OpenRtfFile, TellsAFailure)
{
    MemoryHost host;
    for (const int failure : {5, 53, 76}) {
        ScriptedAsk ask{{{BoxKind::Critical, "Kan ej öppna", "Kan inte öppna RTF-filen!"}}};
        host.machine.startFailure = failure;
        OpenRtfFile("C:\\a.rtf", host.machine, ask);
    }
}

} // namespace
} // namespace quillon::test
