#include "design/surface_click.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr ScreenMetrics kScreen;
// 26 points are 35 pixels (34.67), so the title reaches (35 + 10) x 15 twips down.
constexpr Long kLimit = 675;

SurfaceEditor At(Long y, SurfaceTexts texts)
{
    texts.fontSize = 26;
    return EditorAt(y, texts, kScreen);
}

TEST(EditorAt, IsTheTitlesDownToBelowItsLetters)
{
    EXPECT_EQ(At(-5, {}), SurfaceEditor::Title);
    EXPECT_EQ(At(kLimit - 1, {}), SurfaceEditor::Title);
    EXPECT_EQ(At(kLimit, {}), SurfaceEditor::Background);
}

TEST(EditorAt, IsTheUnderlinesInItsBand)
{
    const SurfaceTexts texts{.UnderlineType = 1, .UnderlineHeight = 3};
    EXPECT_EQ(At(kLimit + 180, texts), SurfaceEditor::Background);
    EXPECT_EQ(At(kLimit + 181, texts), SurfaceEditor::Underline);
    EXPECT_EQ(At(kLimit + 254, texts), SurfaceEditor::Underline);
    EXPECT_EQ(At(kLimit + 255, texts), SurfaceEditor::Background);
}

TEST(EditorAt, KnowsNoUnderlineWhereThereIsNone)
{
    EXPECT_EQ(At(kLimit + 200, {.UnderlineType = 0, .UnderlineHeight = 3}),
              SurfaceEditor::Background);
    EXPECT_EQ(At(kLimit + 200, {.UnderlineHeight = 3, .hasSubTitle = true}), SurfaceEditor::Title);
}

TEST(EditorAt, IsTheTitlesOnASubtitleThatStandsAlone)
{
    const SurfaceTexts texts{.UnderlineHeight = 3, .hasSubTitle = true};
    EXPECT_EQ(At(kLimit, texts), SurfaceEditor::Background);
    EXPECT_EQ(At(kLimit + 1, texts), SurfaceEditor::Title);
    EXPECT_EQ(At(kLimit + 329, texts), SurfaceEditor::Title);
    EXPECT_EQ(At(kLimit + 330, texts), SurfaceEditor::Background);
}

TEST(EditorAt, IsTheTitlesOnASubtitleBelowAnUnderline)
{
    const SurfaceTexts texts{.UnderlineType = 2, .UnderlineHeight = 10, .hasSubTitle = true};
    const Long subLimit = kLimit + (10 + 15) * 15;
    EXPECT_EQ(At(subLimit, texts), SurfaceEditor::Background);
    EXPECT_EQ(At(subLimit + 1, texts), SurfaceEditor::Title);
    EXPECT_EQ(At(subLimit + 18 * 15 - 1, texts), SurfaceEditor::Title);
    EXPECT_EQ(At(subLimit + 18 * 15, texts), SurfaceEditor::Background);
}

} // namespace
} // namespace quillon
