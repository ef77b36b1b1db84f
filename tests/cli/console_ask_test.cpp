#include "cli/console_ask.h"

#include <sstream>

namespace quillon::cli {
namespace {

constexpr auto kStop = ConsoleAsk::Answers::Decline;
constexpr auto kGoOn = ConsoleAsk::Answers::Accept;

TEST(ConsoleAsk, PrintsStatusLinesOnOneOutputAndBoxesOnTheOther)
{
    std::ostringstream out;
    std::ostringstream err;
    ConsoleAsk ask(&out, err);
    ask.AddStatusLine("Kopierar å");
    ask.Inform("Fel", "Ett.");
    ask.Warn("Varning", "Två.");
    ask.Critical("Stopp", "Tre.");
    EXPECT_EQ(out.str(), "Kopierar å\n");
    EXPECT_EQ(err.str(), "Fel: Ett.\nVarning: Två.\nStopp: Tre.\n");
    ASSERT_EQ(ask.boxes.size(), 3U);
    EXPECT_EQ(ask.boxes[2].title, "Stopp");
    EXPECT_EQ(ask.boxes[2].answer, std::nullopt);
}

TEST(ConsoleAsk, AnswersEachQuestionSoThatItStops)
{
    std::ostringstream err;
    ConsoleAsk ask(nullptr, err, kStop);
    EXPECT_TRUE(ask.YesNo("Fråga", "Vill du avbryta?", Ask::Stops::OnYes));
    EXPECT_FALSE(ask.YesNo("Fråga", "Vill du fortsätta?", Ask::Stops::OnNo));
    EXPECT_FALSE(ask.OkCancel("Diskett", "Stoppa in!"));
    EXPECT_EQ(ask.YesNoCancel("Spara", "Vill du?"), Answer::Cancel);
    EXPECT_EQ(ask.boxes[0].answer, true);
    EXPECT_EQ(ask.boxes[1].answer, false);
}

TEST(ConsoleAsk, AnswersEachQuestionSoThatItGoesOn)
{
    std::ostringstream err;
    ConsoleAsk ask(nullptr, err, kGoOn);
    EXPECT_FALSE(ask.YesNo("Fråga", "Vill du avbryta?", Ask::Stops::OnYes));
    EXPECT_TRUE(ask.YesNo("Fråga", "Vill du fortsätta?", Ask::Stops::OnNo));
    EXPECT_TRUE(ask.OkCancel("Diskett", "Stoppa in!"));
    EXPECT_EQ(ask.YesNoCancel("Spara", "Vill du?"), Answer::Yes);
    EXPECT_EQ(err.str(), "Fråga: Vill du avbryta?\nFråga: Vill du fortsätta?\n"
                         "Diskett: Stoppa in!\nSpara: Vill du?\n");
}

} // namespace
} // namespace quillon::cli
