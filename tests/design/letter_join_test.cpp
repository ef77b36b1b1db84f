#include "design/letter_join.h"

#include <gmock/gmock.h>
#include <numeric>

namespace quillon {
namespace {

/// A box that covers all of its pixels by so much.
LetterMask Box(int left, int top, int width, int height, std::uint8_t coverage)
{
    return {left, top, width, height,
            std::vector<std::uint8_t>(static_cast<std::size_t>(width * height), coverage)};
}

int At(const LetterMask& mask, int x, int y)
{
    return mask.coverage[static_cast<std::size_t>((y - mask.top) * mask.width + (x - mask.left))];
}

TEST(JoinLetters, PutsEachLetterWhereTheAdvancesBeforeItEnd)
{
    const LetterMask line =
        JoinLetters({.size = 10}, {Box(0, -2, 2, 2, 100), Box(1, -3, 1, 1, 200)}, {4, 3});
    EXPECT_EQ(line.left, 0);
    EXPECT_EQ(line.top, -3);
    EXPECT_EQ(line.width, 6); // 4 to the second pen, 1 beside it, 1 wide
    EXPECT_EQ(line.height, 3);
    EXPECT_EQ(At(line, 0, -2), 100);
    EXPECT_EQ(At(line, 1, -1), 100);
    EXPECT_EQ(At(line, 2, -1), 0);
    EXPECT_EQ(At(line, 5, -3), 200);
    EXPECT_EQ(std::accumulate(line.coverage.begin(), line.coverage.end(), 0), 4 * 100 + 200);
}

TEST(JoinLetters, LetsLettersOverlapWhereTheSpacingIsNegative)
{
    const LetterMask line =
        JoinLetters({.size = 10}, {Box(0, -1, 4, 1, 90), Box(0, -1, 4, 1, 120)}, {2, 4});
    EXPECT_EQ(line.width, 6);
    EXPECT_EQ(line.coverage, (std::vector<std::uint8_t>{90, 90, 120, 120, 120, 120}));
}

TEST(JoinLetters, KeepsWhatHangsOutBeforeTheFirstLetter)
{
    const LetterMask line = JoinLetters({.size = 10}, {Box(-3, -1, 4, 1, 50)}, {1});
    EXPECT_EQ(line.left, -3);
    EXPECT_EQ(line.width, 4);
}

TEST(JoinLetters, IsEmptyWithoutLetters)
{
    EXPECT_EQ(JoinLetters({.size = 10}, {}, {}).width, 0);
    const LetterMask blanks = JoinLetters({.size = 10}, {{}, {}}, {5, 5});
    EXPECT_EQ(blanks.width, 0);
    EXPECT_TRUE(blanks.coverage.empty());
}

TEST(JoinLetters, DrawsALineBelowAndOneThroughAlsoUnderBlanks)
{
    const LetterMask under = JoinLetters({.size = 28, .isUnderlined = true}, {{}, {}}, {5, 6});
    EXPECT_EQ(under.width, 11);
    EXPECT_EQ(under.height, 2);
    EXPECT_GT(under.top, 0);
    EXPECT_THAT(under.coverage, testing::Each(255));
    const LetterMask through = JoinLetters({.size = 28, .isStrikeOut = true}, {{}}, {5});
    EXPECT_EQ(through.top, -28 / 4 - 2);
    EXPECT_THAT(through.coverage, testing::Each(255));
    // It is visible at the smallest sizes too.
    EXPECT_EQ(JoinLetters({.size = 6, .isUnderlined = true}, {{}}, {5}).height, 1);
}

TEST(JoinLetters, EndsALineThatIsWiderThanAnyScreen)
{
    const std::vector<LetterMask> letters(1000, Box(0, -1, 100, 1, 255));
    const LetterMask line = JoinLetters({.size = 10}, letters, std::vector<int>(1000, 100));
    EXPECT_EQ(line.width, 32768);
}

} // namespace
} // namespace quillon
