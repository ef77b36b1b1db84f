// A raster that outlines are filled on, without smoothing. For smooth edges, fill a larger raster
// and make it smaller, so that neighbours meet without a gap and colours that are combined with
// what is below come out exactly.
#pragma once

#include "design/canvas.h"
#include "pictures/fine_path.h"

#include <memory>

namespace quillon {

struct Picture;

enum class FillRule { EvenOdd, NonZero };

/// How a source and what is below become a pixel: bit 2 * s + d of it is the result for the bits
/// s and d.
using Combination = std::uint8_t;
inline constexpr Combination kCopy = 0xC;

/// What an outline is filled with.
struct Paint {
    Pixel colour = 0xFF000000;
    // Rows of a pattern of 8 x 8, a set bit for `colour`; what is not set is `background`, or left
    // as it is where that is 0.
    const std::uint8_t* hatch = nullptr;
    Pixel background = 0;
    // Where set, its pixels are repeated, and neither colours nor hatch are used.
    const Picture* tile = nullptr;
    // The size of one pixel of a pattern, in pixels of the raster.
    int patternScale = 1;
    Combination combination = kCopy;
};

/// A rectangle, and rectangles that are cut out of it.
struct RasterClip {
    PixelRect bounds;
    std::vector<PixelRect> holes;
};

/// The work that is left, in pixels, so that a file of a million shapes comes to an end.
class WorkBudget {
public:
    explicit WorkBudget(std::int64_t work) : work_(work) {}

    void Use(std::int64_t work) { work_ -= work; }
    bool IsExhausted() const { return work_ < 0; }

private:
    std::int64_t work_;
};

class Raster {
public:
    Raster(const Canvas& canvas, WorkBudget& work) : canvas_(canvas), work_(work) {}

    void Fill(const FinePath& path, FillRule rule, const Paint& paint, const RasterClip& clip);
    void FillPixels(const PixelRect& rect, const Paint& paint, const RasterClip& clip);
    /// One pixel of three inputs: bit 4 * p + 2 * s + d of the table is the result.
    void Combine(int x, int y, Pixel pattern, Pixel source, std::uint8_t table);
    /// A colour that covers a part of the pixel, 0 to 255.
    void Cover(int x, int y, Pixel colour, Pixel coverage);

    const Canvas& Target() const { return canvas_; }
    WorkBudget& Work() { return work_; }

private:
    void Span(int y, int left, int right, const Paint& paint, const RasterClip& clip);
    void PlainSpan(int y, int left, int right, const Paint& paint);

    Canvas canvas_;
    WorkBudget& work_;
};

/// Whether the pixel is in the clip.
bool Contains(const RasterClip& clip, int x, int y);

} // namespace quillon
