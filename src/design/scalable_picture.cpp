#include "design/scalable_picture.h"

#include <utility>

namespace quillon {

ScalablePicture::ScalablePicture(Picture pixels) : width_(pixels.width), height_(pixels.height)
{
    halves_.push_back(std::move(pixels));
}

ScalablePicture::ScalablePicture(int width, int height, Picture pixels)
    : width_(width), height_(height)
{
    halves_.push_back(std::move(pixels));
}

ScalablePicture::ScalablePicture(int width, int height, Draw draw)
    : width_(width), height_(height), draw_(std::move(draw))
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

const Picture& ScalablePicture::InSize(int width, int height, Letters& letters) const
{
    if (!draw_ && !halves_.empty() && width == halves_[0].width && height == halves_[0].height)
        return halves_[0];
    if (width == sized_.width && height == sized_.height)
        return sized_;
    if (IsEmpty() || width < 1 || height < 1) {
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
