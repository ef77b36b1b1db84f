#include "design/canvas.h"

#include <algorithm>

namespace quillon {

namespace {

Pixel Share(Pixel part, Pixel coverage)
{
    const Pixel product = part * coverage + 0x80;
    return (product + (product >> 8)) >> 8;
}

} // namespace

Pixel PixelOf(Colour colour)
{
    const auto bits = static_cast<Pixel>(colour);
    return kOpaquePixel | (bits & 0xFF) << 16 | (bits & 0xFF00) | (bits >> 16 & 0xFF);
}

PixelRect Intersect(const PixelRect& a, const PixelRect& b)
{
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

PixelRect RectAt(int left, int top, int width, int height)
{
    return {left, top, left + width, top + height};
}

Canvas WholeCanvas(Pixel* pixels, int width, int height)
{
    return {pixels, width, height, width, RectAt(0, 0, width, height)};
}

void FillRect(const Canvas& canvas, const PixelRect& rect, Pixel colour)
{
    const PixelRect part = Intersect(rect, canvas.clip);
    if (part.IsEmpty())
        return;
    for (int y = part.top; y < part.bottom; ++y)
        std::fill_n(canvas.Row(y) + part.left, part.Width(), colour);
}

Pixel Covering(Pixel colour, Pixel coverage)
{
    return coverage << 24 | Share(colour >> 16 & 0xFF, coverage) << 16 |
           Share(colour >> 8 & 0xFF, coverage) << 8 | Share(colour & 0xFF, coverage);
}

} // namespace quillon
