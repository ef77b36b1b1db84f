// A picture of the screen in whatever size it is painted: pixels that are scaled, or a drawing that
// is drawn anew in each size.
#pragma once

#include "design/letters.h"
#include "design/picture.h"

#include <functional>
#include <optional>

namespace quillon {

class ScalablePicture {
public:
    /// Draws the picture in that many pixels.
    using Draw = std::function<Picture(int width, int height, Letters& letters)>;

    ScalablePicture() = default;
    /// Not explicit: pixels are a picture of their own size.
    ScalablePicture(Picture pixels); // NOLINT(google-explicit-constructor)
    /// Pixels of a picture that is larger than what was kept of it.
    ScalablePicture(int width, int height, Picture pixels);
    ScalablePicture(int width, int height, Draw draw);

    // Its own size.
    int Width() const { return width_; }
    int Height() const { return height_; }
    bool IsEmpty() const { return width_ < 1 || height_ < 1; }

    /// Every pixel of exactly that colour becomes transparent.
    void MakeTransparent(Colour colour);

    /// The last size asked for is kept, since a window asks for the same one at each paint. The
    /// result lives until the next call, which therefore is no other thread's.
    const Picture& InSize(int width, int height, Letters& letters) const;

private:
    const Picture& Reduced(int width, int height) const;

    int width_ = 0;
    int height_ = 0;
    Draw draw_;
    std::optional<Colour> transparent_;
    // The pixels, and behind them each time half of what is before. Where much larger pixels are
    // made smaller in one size after the other, most of the work is done once.
    mutable std::vector<Picture> halves_;
    mutable Picture sized_;
};

} // namespace quillon
