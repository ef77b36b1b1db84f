#include "design/background.h"

#include "formats/blend.h"

#include <algorithm>
#include <cstdlib>

namespace quillon {

namespace {

/// The colours of `count` pixels in a row, from the first colour to the second.
std::vector<Pixel> Ramp(int count, const Blend& blend, bool isBackwards)
{
    std::vector<Pixel> ramp;
    ramp.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        ramp.push_back(PixelOf(BlendColour(blend.ColorFrom, blend.ColorTo, blend.BlendDepth,
                                           isBackwards ? count - 1 - i : i, count - 1)));
    return ramp;
}

/// How far a pixel of a row lies from its middle, in steps of which the ends have `count` - 1.
int FromMiddle(int at, int count)
{
    return std::abs(2 * at - (count - 1));
}

std::vector<Pixel> RampFromMiddle(int count, const Blend& blend)
{
    std::vector<Pixel> ramp;
    ramp.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        ramp.push_back(PixelOf(BlendColour(blend.ColorFrom, blend.ColorTo, blend.BlendDepth,
                                           FromMiddle(i, count), count - 1)));
    return ramp;
}

/// How many columns at the left edge lie further out than row `y`: the first column, from the left,
/// that is as near to the middle as the row. Columns and rows are compared as parts of the whole.
int OuterColumns(int y, int width, int height)
{
    if (width <= 1)
        return height <= 1 || FromMiddle(y, height) == 0 ? 1 : 0;
    if (height <= 1)
        return (width + 1) / 2;
    const std::int64_t row = std::int64_t{FromMiddle(y, height)} * (width - 1);
    // FromMiddle(x) * (height - 1) >= row, where FromMiddle(x) = width - 1 - 2x on the left.
    const std::int64_t minWidth = (row + height - 2) / (height - 1);
    const std::int64_t columns = (width - 1 - minWidth) / 2 + 1;
    return static_cast<int>(std::clamp<std::int64_t>(columns, 0, (width + 1) / 2));
}

void CopyPart(const std::vector<Pixel>& ramp, Pixel* row, const PixelRect& area, int from, int to)
{
    if (from < to)
        std::copy(ramp.begin() + (from - area.left), ramp.begin() + (to - area.left), row + from);
}

// Rectangles in each other, all in the shape of the area; the first colour is in the middle. A row
// has the colours of the columns at its two ends and one colour between them.
void PaintOutwards(const Canvas& canvas, const PixelRect& area, const PixelRect& part,
                   const Blend& blend)
{
    const std::vector<Pixel> columns = RampFromMiddle(area.Width(), blend);
    const std::vector<Pixel> rows = RampFromMiddle(area.Height(), blend);
    for (int y = part.top; y < part.bottom; ++y) {
        const int outer = OuterColumns(y - area.top, area.Width(), area.Height());
        const int left = std::clamp(area.left + outer, part.left, part.right);
        const int right = std::clamp(area.right - outer, left, part.right);
        Pixel* row = canvas.Row(y);
        CopyPart(columns, row, area, part.left, left);
        std::fill(row + left, row + right, rows[static_cast<std::size_t>(y - area.top)]);
        CopyPart(columns, row, area, right, part.right);
    }
}

void PaintAcross(const Canvas& canvas, const PixelRect& area, const PixelRect& part,
                 const Blend& blend)
{
    const std::vector<Pixel> ramp =
        Ramp(area.Width(), blend, blend.BlendStyle == BlendStyle::ToTheLeft);
    for (int y = part.top; y < part.bottom; ++y)
        CopyPart(ramp, canvas.Row(y), area, part.left, part.right);
}

void PaintDown(const Canvas& canvas, const PixelRect& area, const PixelRect& part,
               const Blend& blend)
{
    const std::vector<Pixel> ramp =
        Ramp(area.Height(), blend, blend.BlendStyle == BlendStyle::Upwards);
    for (int y = part.top; y < part.bottom; ++y)
        std::fill_n(canvas.Row(y) + part.left, part.Width(),
                    ramp[static_cast<std::size_t>(y - area.top)]);
}

} // namespace

void PaintBlend(const Canvas& canvas, const PixelRect& area, const Blend& blend)
{
    const PixelRect part = Intersect(area, canvas.clip);
    if (part.IsEmpty())
        return;
    switch (blend.BlendStyle) {
    case BlendStyle::ToTheRight:
    case BlendStyle::ToTheLeft:
        PaintAcross(canvas, area, part, blend);
        break;
    case BlendStyle::Outwards:
        PaintOutwards(canvas, area, part, blend);
        break;
    default:
        PaintDown(canvas, area, part, blend);
        break;
    }
}

} // namespace quillon
