// The letters of this machine: what holds of any font.
#include "design/system_letters.h"

#include "helpers/number_text.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <numeric>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::Gt;

class FontLettersTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(letters.HasFonts()); }

    int WidthOf(const ScreenFont& font, const Text& line)
    {
        const std::vector<int> advances = letters.Advances(font, line);
        return std::accumulate(advances.begin(), advances.end(), 0);
    }
    LetterMask Drawn(const ScreenFont& font, const Text& line)
    {
        return letters.Draw(font, line, letters.Advances(font, line));
    }
    static long Coverage(const LetterMask& mask)
    {
        return std::accumulate(mask.coverage.begin(), mask.coverage.end(), 0L);
    }

    FontLetters letters;
    const ScreenFont sans{.name = "DejaVu Sans", .size = 40};
};

TEST_F(FontLettersTest, HasOneAdvanceForEachCodePoint)
{
    EXPECT_EQ(letters.Advances(sans, "Åäö–€").size(), 5U);
    EXPECT_EQ(letters.Advances(sans, "").size(), 0U);
    EXPECT_THAT(letters.Advances(sans, "iW"), ElementsAre(11, 40)); // 569 and 2025 of 2048
}

TEST_F(FontLettersTest, DrawsInsideTheFontsHeight)
{
    const FontHeight height = letters.Height(sans);
    // What the font gives Windows: 1901 above the baseline and 483 below it, of 2048.
    EXPECT_EQ(height.ascent, 37);
    EXPECT_EQ(height.descent, 9);
    const LetterMask mask = Drawn(sans, "Ågj");
    EXPECT_GE(mask.top, -height.ascent - 1);
    EXPECT_LE(mask.top + mask.height, height.descent + 1);
    EXPECT_GT(mask.height, 40);
    EXPECT_EQ(mask.coverage.size(), static_cast<std::size_t>(mask.width * mask.height));
}

TEST_F(FontLettersTest, HasGreysAtTheEdgesOfLetters)
{
    const LetterMask mask = Drawn(sans, "S");
    const auto isGrey = [](int coverage) { return coverage > 0 && coverage < 255; };
    EXPECT_GT(std::ranges::count_if(mask.coverage, isGrey), 10);
    EXPECT_GT(std::ranges::count(mask.coverage, 255), 10);
}

TEST_F(FontLettersTest, DrawsNothingForBlanksButMovesOn)
{
    EXPECT_EQ(Coverage(Drawn(sans, "   ")), 0);
    EXPECT_GT(WidthOf(sans, "   "), 20);
}

TEST_F(FontLettersTest, StandsEachLetterWhereItIsTold)
{
    const LetterMask near = letters.Draw(sans, "ll", {10, 10});
    const LetterMask far = letters.Draw(sans, "ll", {100, 10});
    EXPECT_EQ(far.width, near.width + 90);
    EXPECT_EQ(Coverage(far), Coverage(near));
}

TEST_F(FontLettersTest, DoesNotKernBySiblings)
{
    EXPECT_EQ(WidthOf(sans, "AV"), WidthOf(sans, "A") + WidthOf(sans, "V"));
}

TEST_F(FontLettersTest, IsBolderAndLeans)
{
    ScreenFont bold = sans;
    bold.isBold = true;
    EXPECT_GT(Coverage(Drawn(bold, "Titel")), Coverage(Drawn(sans, "Titel")) * 5 / 4);
    ScreenFont italic = sans;
    italic.isItalic = true;
    EXPECT_NE(Drawn(italic, "Titel").coverage, Drawn(sans, "Titel").coverage);
}

TEST_F(FontLettersTest, GrowsWithItsSize)
{
    ScreenFont twice = sans;
    twice.size = 80;
    EXPECT_NEAR(WidthOf(twice, "Titel"), 2 * WidthOf(sans, "Titel"), 5);
    EXPECT_NEAR(letters.Height(twice).Line(), 2 * letters.Height(sans).Line(), 2);
}

TEST_F(FontLettersTest, ReplacesFontsThatTheMachineLacks)
{
    for (const char* name : {"", "Inget sådant teckensnitt", "Times New Roman"}) {
        const ScreenFont font{.name = name, .size = 20};
        EXPECT_THAT(letters.Height(font).Line(), Gt(15)) << name;
        EXPECT_THAT(Coverage(Drawn(font, "abc")), Gt(1000)) << name;
    }
}

TEST_F(FontLettersTest, FindsLettersThatTheFontLacksInOthers)
{
    // The font has Latin letters only; an alpha is drawn from another font.
    const ScreenFont latin{.name = "DejaVu Sans Mono", .size = 40};
    const LetterMask missing = Drawn(latin, "\xEF\xBF\xBF"); // no letter at all
    EXPECT_NE(Drawn(latin, "α").coverage, missing.coverage);
    EXPECT_GT(Coverage(Drawn(latin, "α")), 1000);
}

TEST_F(FontLettersTest, TakesDamagedTextAndSizesBelowOne)
{
    EXPECT_EQ(letters.Advances(sans, "a\xFF").size(), 2U);
    EXPECT_NO_THROW(Drawn({.name = "DejaVu Sans", .size = 0}, "a"));
    EXPECT_NO_THROW(Drawn({.name = "DejaVu Sans", .size = -7}, "a"));
}

TEST_F(FontLettersTest, TakesMoreFontsThanItKeepsOpen)
{
    const LetterMask before = Drawn(sans, "Titel");
    for (int i = 0; i < 200; ++i)
        EXPECT_GT(WidthOf({.name = "Font " + NumberText(i), .size = 10 + i % 3}, "abc"), 5);
    EXPECT_EQ(Drawn(sans, "Titel").coverage, before.coverage);
}

} // namespace
} // namespace quillon
