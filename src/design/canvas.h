// Pixels in memory, which the screen behind the setup is painted on. The tool shows them in a
// window of its own system and the setup in one of its own, so that both show the same ones.
//
// A pixel is 0xAARRGGBB. On a canvas it is opaque; in a picture its colour is multiplied by its
// alpha already, so that scaling mixes neighbours rightly.
#pragma once

#include "project/records.h"

#include <cstdint>
#include <vector>

namespace quillon {

using Pixel = std::uint32_t;

inline constexpr Pixel kOpaquePixel = 0xFF000000;

/// Opaque; `colour` is 0x00BBGGRR, as records have it.
Pixel PixelOf(Colour colour);

/// From left and top to before right and bottom.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool operator==(const PixelRect&) const = default;
};

PixelRect Intersect(const PixelRect& a, const PixelRect& b);
PixelRect RectAt(int left, int top, int width, int height);

/// A part of an image that lies somewhere else. Painting never leaves `clip`, so that a small part
/// can be painted again.
struct Canvas {
    Pixel* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0; // pixels from one row to the next
    PixelRect clip;

    Pixel* Row(int y) const { return pixels + std::ptrdiff_t{y} * stride; }
};

/// The whole of `width` x `height` pixels that begin at `pixels` without gaps between rows.
Canvas WholeCanvas(Pixel* pixels, int width, int height);

void FillRect(const Canvas& canvas, const PixelRect& rect, Pixel colour);

/// `over` on top of `under`, which is opaque. `over` is multiplied by its alpha.
inline Pixel Over(Pixel over, Pixel under)
{
    const Pixel rest = 255 - (over >> 24);
    const Pixel redBlue = (under & 0x00FF00FF) * rest + 0x00800080;
    const Pixel green = ((under >> 8) & 0xFF) * rest + 0x80;
    return over + (((redBlue + ((redBlue >> 8) & 0x00FF00FF)) >> 8) & 0x00FF00FF) +
           ((green + (green >> 8)) & 0x0000FF00) + (rest << 24);
}

/// An opaque colour as a pixel of that coverage, 0 to 255.
Pixel Covering(Pixel colour, Pixel coverage);

} // namespace quillon
