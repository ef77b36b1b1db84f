#include "design/surface_click.h"

#include "helpers/number_text.h"

namespace quillon {

namespace {

constexpr double kDotsPerPoint = 96.0 / 72;

// Pixels that belong to the title below its letters, and the edges of the bands further down.
constexpr Long kBelowTitle = 10;
constexpr Long kUnderlineFrom = 12;
constexpr Long kUnderlineTo = 14;
constexpr Long kSubTitleFrom = 15;
constexpr Long kSubTitleBand = 18;
// Without a line the band begins right below the title, two pixels above where the subtitle is
// drawn.
constexpr Long kSubTitleAloneBand = 22;

Long TitleLimit(Integer fontSize, ScreenMetrics screen)
{
    const std::int64_t titleHeight = RoundToEven(fontSize * kDotsPerPoint);
    return static_cast<Long>((titleHeight + kBelowTitle) * screen.TPPY);
}

bool IsOnSubTitle(Long y, Long limit, const SurfaceTexts& texts, ScreenMetrics screen)
{
    if (texts.UnderlineType < 1)
        return y > limit && y < kSubTitleAloneBand * screen.TPPY + limit;
    const Long subLimit = (texts.UnderlineHeight + kSubTitleFrom) * screen.TPPY + limit;
    return y > subLimit && y < kSubTitleBand * screen.TPPY + subLimit;
}

} // namespace

SurfaceEditor EditorAt(Long y, const SurfaceTexts& texts, ScreenMetrics screen)
{
    const Long limit = TitleLimit(texts.fontSize, screen);
    if (y < limit)
        return SurfaceEditor::Title;
    // Kept: the band begins twelve pixels below the title, so a simple line of three pixels has
    // five that open its editor.
    if (texts.UnderlineType > 0 &&
        y < (texts.UnderlineHeight + kUnderlineTo) * screen.TPPY + limit &&
        y > kUnderlineFrom * screen.TPPY + limit)
        return SurfaceEditor::Underline;
    if (texts.hasSubTitle && IsOnSubTitle(y, limit, texts, screen))
        return SurfaceEditor::Title;
    return SurfaceEditor::Background;
}

} // namespace quillon
