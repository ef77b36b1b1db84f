// A picture of the screen in whatever size it is painted: pixels that are scaled, or a drawing that
// is drawn again in each size.
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
    /// Not explicit: pixels are a picture in their own size.
    ScalablePicture(Picture pixels); // NOLINT(google-explicit-constructor)
    /// Pixels of a picture that is larger than what was kept of it.
    ScalablePicture(int width, int height, Picture pixels);
    /// `memory` is what the drawing itself takes, in bytes.
    ScalablePicture(int width, int height, Draw draw, std::int64_t memory = 0);

    // Its own size.
    int Width() const { return width_; }
    int Height() const { return height_; }
    bool IsEmpty() const { return width_ < 1 || height_ < 1; }

    /// Every pixel of exactly that colour becomes transparent.
    void MakeTransparent(Colour colour);

    /// Keeps no more than what showing the picture in that size takes; its own size stays. Every
    /// other size is made of these pixels from now on. A drawing stays as it is.
    void KeepOnly(int width, int height);
    /// Keeps only that part, which is the whole picture from now on. A drawing is not cropped.
    void Crop(const PixelRect& part);
    /// What is kept of it, in bytes.
    std::int64_t Memory() const;

    /// The last size is kept, since a window asks for the same one at each paint. The result is
    /// valid until the next call, so only one thread may use the picture. A drawing that would be
    /// larger than any screen is empty.
    const Picture& InSize(int width, int height, Letters& letters) const;

private:
    const Picture& Reduced(int width, int height) const;

    int width_ = 0;
    int height_ = 0;
    Draw draw_;
    std::int64_t drawingMemory_ = 0;
    std::optional<Colour> transparent_;
    // The pixels, and after them each time half of what is before. Where much larger pixels are
    // made smaller in one size after the other, most of the work is done once.
    mutable std::vector<Picture> halves_;
    mutable Picture sized_;
};

} // namespace quillon
