// The text of the RTF box as it is painted: capitals, space between letters, heights of lines.
#include "design/rtf_panel.h"

#include "support/block_letters.h"

#include <gmock/gmock.h>

namespace quillon {

using test::BlockLetters;
using testing::ElementsAre;

namespace {

class RtfPanelTest : public testing::Test {
protected:
    /// The rows of a box of 200 x 200 in which letters begin.
    std::vector<int> TopsOf(const RtfText& text)
    {
        Paint(text);
        std::vector<int> tops;
        for (int y = 1; y < kSide; ++y)
            if (!HasForeground(y - 1) && HasForeground(y))
                tops.push_back(y);
        return tops;
    }

    /// The column after the last letter.
    int WidthOf(const RtfText& text)
    {
        Paint(text);
        for (int x = kSide - 1; x >= 0; --x)
            for (int y = 0; y < kSide; ++y)
                if (At(x, y) != kPaper)
                    return x + 1;
        return 0;
    }

    static RtfText Lines(RtfParagraph paragraph, const Text& words, RtfStyle style = {})
    {
        style.halfPoints = 15; // ten pixels
        paragraph.runs = {{words, style}};
        RtfText text;
        text.paragraphs = {paragraph};
        return text;
    }

    BlockLetters letters;

private:
    static constexpr int kSide = 200;
    static constexpr Pixel kPaper = 0xFFFFFFFF;

    void Paint(const RtfText& text)
    {
        pixels_.assign(std::size_t{kSide} * kSide, 0);
        PaintRtfPanel(WholeCanvas(pixels_.data(), kSide, kSide), letters,
                      {.box = RectAt(0, 0, kSide, kSide), .backColor = 0xFFFFFF}, text);
    }
    Pixel At(int x, int y) const { return pixels_[static_cast<std::size_t>(y * kSide + x)]; }
    bool HasForeground(int y) const
    {
        for (int x = 0; x < kSide; ++x)
            if (At(x, y) != kPaper)
                return true;
        return false;
    }

    std::vector<Pixel> pixels_;
};

TEST_F(RtfPanelTest, HasLinesOfTheHeightThatTheParagraphSays)
{
    EXPECT_THAT(TopsOf(Lines({}, "a\nb\nc")), ElementsAre(4, 14, 24));
    // One and a half, at least, exactly; 15 twips are a pixel.
    EXPECT_THAT(TopsOf(Lines({.lineSpacing = 360, .isLineSpacingMultiple = true}, "a\nb\nc")),
                ElementsAre(4, 19, 34));
    EXPECT_THAT(TopsOf(Lines({.lineSpacing = 300}, "a\nb")), ElementsAre(4, 24));
    EXPECT_THAT(TopsOf(Lines({.lineSpacing = 30}, "a\nb")), ElementsAre(4, 14));
    EXPECT_THAT(TopsOf(Lines({.lineSpacing = -180}, "a\nb")), ElementsAre(4, 16));
}

TEST_F(RtfPanelTest, SpacesItsLetters)
{
    const int close = WidthOf(Lines({}, "abc"));
    EXPECT_EQ(WidthOf(Lines({}, "abc", {.letterSpacing = 60})), close + 2 * 4);
    EXPECT_EQ(WidthOf(Lines({}, "abc", {.letterSpacing = -15})), close - 2);
}

TEST_F(RtfPanelTest, WritesCapitals)
{
    WidthOf(Lines({}, "Åår", {.capitals = RtfStyle::Capitals::All}));
    EXPECT_THAT(letters.drawn, ElementsAre("ÅÅR"));
    letters.drawn.clear();
    const int small = WidthOf(Lines({}, "Åår", {.capitals = RtfStyle::Capitals::Small}));
    EXPECT_THAT(letters.drawn, ElementsAre("Å", "ÅR"));
    EXPECT_EQ(small, 4 + 5 + 2 * 4) << "the small ones at four fifths";
}

} // namespace
} // namespace quillon
