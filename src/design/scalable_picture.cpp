#include "design/scalable_picture.h"

#include <utility>

namespace quillon {

namespace {

// Of a drawing at a time; a screen of 7680 x 4320 has fewer.
constexpr std::int64_t kMaxDrawnPixels = 40'000'000;

std::int64_t PixelCount(int width, int height)
{
    return std::int64_t{width} * height;
}

Picture PartOf(const Picture& picture, const PixelRect& part)
{
    Picture cut{part.Width(), part.Height(), {}};
    cut.pixels.reserve(static_cast<std::size_t>(PixelCount(cut.width, cut.height)));
    for (int y = part.top; y < part.bottom; ++y) {
        const auto row = picture.pixels.begin() + std::ptrdiff_t{y} * picture.width;
        cut.pixels.insert(cut.pixels.end(), row + part.left, row + part.right);
    }
    return cut;
}

} // namespace

ScalablePicture::ScalablePicture(Picture pixels) : width_(pixels.width), height_(pixels.height)
{
    halves_.push_back(std::move(pixels));
}

ScalablePicture::ScalablePicture(int width, int height, Picture pixels)
    : width_(width), height_(height)
{
    halves_.push_back(std::move(pixels));
}

ScalablePicture::ScalablePicture(int width, int height, Draw draw, std::int64_t memory)
    : width_(width), height_(height), draw_(std::move(draw)), drawingMemory_(memory)
{
}

void ScalablePicture::MakeTransparent(Colour colour)
{
    transparent_ = colour;
    sized_ = {};
    if (halves_.empty())
        return;
    halves_.resize(1);
    quillon::MakeTransparent(halves_[0], colour);
}

void ScalablePicture::KeepOnly(int width, int height)
{
    if (draw_ || halves_.empty() || width < 1 || height < 1)
        return;
    if (PixelCount(width, height) < PixelCount(halves_[0].width, halves_[0].height)) {
        Picture only = Scaled(Reduced(width, height), width, height);
        halves_.clear();
        halves_.push_back(std::move(only));
        sized_ = {};
    } else {
        halves_.resize(1);
    }
    halves_.shrink_to_fit();
}

void ScalablePicture::Crop(const PixelRect& part)
{
    if (draw_ || halves_.empty())
        return;
    // Where fewer pixels are kept than the picture has, those that cover the part.
    const Picture& whole = halves_[0];
    const auto down = [](int place, int kept, int own) {
        return static_cast<int>(PixelCount(place, kept) / own);
    };
    const auto up = [](int place, int kept, int own) {
        return static_cast<int>((PixelCount(place, kept) + own - 1) / own);
    };
    const PixelRect inside =
        Intersect(RectAt(0, 0, whole.width, whole.height),
                  {down(part.left, whole.width, width_), down(part.top, whole.height, height_),
                   up(part.right, whole.width, width_), up(part.bottom, whole.height, height_)});
    if (inside.IsEmpty())
        return;
    Picture cut = PartOf(whole, inside);
    width_ = up(cut.width, width_, whole.width);
    height_ = up(cut.height, height_, whole.height);
    halves_.clear();
    halves_.push_back(std::move(cut));
    sized_ = {};
}

std::int64_t ScalablePicture::Memory() const
{
    std::int64_t pixels = PixelCount(sized_.width, sized_.height);
    for (const Picture& half : halves_)
        pixels += PixelCount(half.width, half.height);
    return pixels * std::int64_t{sizeof(Pixel)} + drawingMemory_;
}

const Picture& ScalablePicture::InSize(int width, int height, Letters& letters) const
{
    if (!draw_ && !halves_.empty() && width == halves_[0].width && height == halves_[0].height)
        return halves_[0];
    if (width == sized_.width && height == sized_.height)
        return sized_;
    const bool isTooLarge = draw_ && PixelCount(width, height) > kMaxDrawnPixels;
    if (IsEmpty() || width < 1 || height < 1 || isTooLarge) {
        sized_ = {};
    } else if (draw_) {
        sized_ = draw_(width, height, letters);
        if (transparent_)
            quillon::MakeTransparent(sized_, *transparent_);
    } else {
        sized_ = Scaled(Reduced(width, height), width, height);
    }
    return sized_;
}

const Picture& ScalablePicture::Reduced(int width, int height) const
{
    std::size_t at = 0;
    while (halves_[at].width / 2 >= width && halves_[at].height / 2 >= height) {
        if (at + 1 == halves_.size())
            halves_.push_back(
                Scaled(halves_[at], (halves_[at].width + 1) / 2, (halves_[at].height + 1) / 2));
        ++at;
    }
    return halves_[at];
}

} // namespace quillon
