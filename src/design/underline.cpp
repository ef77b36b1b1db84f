#include "design/underline.h"

#include "design/background.h"
#include "formats/blend.h"

#include <cstdlib>

namespace quillon {

namespace {

constexpr int kOpaque = 255;

// One row of the mist: `from` its middle of `last` steps to the edge.
Pixel MistRow(const section::DesTitleUnderline& record, int fromMiddle, int last)
{
    const Colour colour =
        BlendColour(record.UnderlineColor1, record.UnderlineColor2, 100, fromMiddle, last);
    const int coverage = last > 0 ? kOpaque - kOpaque * fromMiddle / (last + 1) : kOpaque;
    return Covering(PixelOf(colour), static_cast<Pixel>(coverage));
}

void PaintMist(const Canvas& canvas, const PixelRect& rect,
               const section::DesTitleUnderline& record)
{
    const PixelRect part = Intersect(rect, canvas.clip);
    if (part.IsEmpty())
        return;
    const int last = rect.Height() - 1;
    for (int y = part.top; y < part.bottom; ++y) {
        const Pixel mist = MistRow(record, std::abs(2 * (y - rect.top) - last), last);
        Pixel* row = canvas.Row(y);
        for (int x = part.left; x < part.right; ++x)
            row[x] = Over(mist, row[x]);
    }
}

} // namespace

void PaintUnderline(const Canvas& canvas, const PixelRect& rect,
                    const section::DesTitleUnderline& record)
{
    switch (UnderlineKind(record.UnderlineType)) {
    case UnderlineKind::Simple:
        FillRect(canvas, rect, PixelOf(record.UnderlineColor1));
        break;
    case UnderlineKind::Misty:
        PaintMist(canvas, rect, record);
        break;
    case UnderlineKind::Blended:
        PaintBlend(canvas, rect,
                   {.ColorFrom = record.UnderlineColor1,
                    .ColorTo = record.UnderlineColor2,
                    .BlendStyle = BlendStyle::ToTheRight});
        break;
    default: // none, and numbers that no kind has
        break;
    }
}

} // namespace quillon
