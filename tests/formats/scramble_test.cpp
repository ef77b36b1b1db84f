#include "formats/scramble.h"

#include "helpers/ansi_text.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

constexpr const char* kWholeAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZÅÄÖabcdefghijklmnopqrstuvwxyzåäö0123456789!#$%&*+-.@_";

ScrambleSeed Seed(int second, int minute = 25)
{
    return {second, minute,
            [next = std::uint32_t(0)](std::uint32_t below) mutable { return next++ % below; }};
}

} // namespace

class EveryShift : public testing::TestWithParam<int> {};

TEST_P(EveryShift, GoesRound)
{
    for (const int minute : {0, 1, 25, 59})
        for (const char* value : {"a", "Hemligt1", kWholeAlphabet, "!!!!", "Qsv"}) {
            const Text scrambled = ScrambleString(value, Seed(GetParam(), minute));
            EXPECT_EQ(UnscrambleString(scrambled), value) << scrambled;
        }
}

TEST_P(EveryShift, HidesTheValue)
{
    EXPECT_EQ(ScrambleString("Hemligt1", Seed(GetParam())).find("Hemligt1"), Text::npos);
}

INSTANTIATE_TEST_SUITE_P(ScrambleString, EveryShift, testing::Range(0, 60));

TEST(ScrambleString, LeavesAnEmptyValueEmpty)
{
    EXPECT_EQ(ScrambleString("", Seed(10)), "");
    EXPECT_EQ(UnscrambleString(""), "");
}

TEST(ScrambleString, GivesAValueOutsideTheAlphabetUnchanged)
{
    for (const char* value : {"two words", "é", "a;b", "\"quoted\"", "semi(colon)"}) {
        EXPECT_EQ(ScrambleString(value, Seed(10)), value);
        EXPECT_EQ(UnscrambleString(value), value);
    }
}

TEST(ScrambleString, IsMarkerHeadFillerExclamationMarkAndBody)
{
    const Text scrambled = ScrambleString("Hemligt1", Seed(36, 25));
    // Minute 25 times 12 is 300, 12C in hexadecimal; the filler counts up from 33 here.
    EXPECT_TRUE(scrambled.starts_with("Qsvk7R")) << scrambled;
    EXPECT_NE(scrambled.find("12C!\"#$%&'()*+,-./0!"), Text::npos) << scrambled;
    EXPECT_EQ(scrambled.substr(0, 6 + 1 + 3 + 1 + 2 + 1 + 3 + 2), "Qsvk7RGxW2aTqTm9eLf");
    EXPECT_EQ(scrambled.size() - scrambled.rfind('!'), 1u + 8u);
}

TEST(ScrambleString, KeepsTheFillerWithinItsCodes)
{
    ScrambleSeed highest = Seed(0);
    highest.random = [](std::uint32_t below) { return below - 1; };
    EXPECT_NE(ScrambleString("a", highest).find(Text(16, 'v') + "!"), Text::npos);
}

TEST(ScrambleString, HasAByteForEachCharacterAtEveryShift)
{
    for (int second = 0; second < 60; ++second)
        EXPECT_TRUE(AnsiText::Holds(ScrambleString(kWholeAlphabet, Seed(second))));
}

TEST(ScrambleString, DiffersFromSecondToSecond)
{
    EXPECT_NE(ScrambleString("Hemligt1", Seed(1)), ScrambleString("Hemligt1", Seed(2)));
}

TEST(UnscrambleString, TakesADamagedTextAsPlain)
{
    const Text scrambled = ScrambleString("abc", Seed(36));
    for (std::size_t length = 1; length + 3 < scrambled.size(); ++length) {
        const Text cut = scrambled.substr(0, length);
        EXPECT_EQ(UnscrambleString(cut), cut);
    }
    EXPECT_EQ(UnscrambleString("x" + scrambled), "x" + scrambled);
    EXPECT_EQ(UnscrambleString(scrambled + " "), scrambled + " ");
}

} // namespace quillon
