#include "design/picture.h"

#include "design/transparent_colours.h"

#include <algorithm>

namespace quillon {

Colour TransparentColour(Integer number)
{
    const auto place = static_cast<std::size_t>(number);
    return number >= 0 && place < kTransparentColors.size() ? kTransparentColors[place].colour : 0;
}

std::optional<Colour> TransparentColourOf(const section::DesPictures& record, std::size_t index)
{
    if (record.Pictures[index].UseTransparentBkg == kOff)
        return {};
    return TransparentColour(record.TransparentColorNr);
}

std::optional<Colour> TransparentColourOf(const section::DesLogotype& record)
{
    if (record.UseTransparentBkg == kOff)
        return {};
    return TransparentColour(record.TransparentColorNr);
}

void MakeTransparent(Picture& picture, Colour colour)
{
    std::ranges::replace(picture.pixels, PixelOf(colour), Pixel{0});
}

void PaintPicture(const Canvas& canvas, const Picture& picture, int left, int top)
{
    const PixelRect part = Intersect(RectAt(left, top, picture.width, picture.height), canvas.clip);
    if (part.IsEmpty())
        return;
    for (int y = part.top; y < part.bottom; ++y) {
        const Pixel* from = picture.pixels.data() + std::ptrdiff_t{y - top} * picture.width - left;
        Pixel* row = canvas.Row(y);
        for (int x = part.left; x < part.right; ++x)
            row[x] = Over(from[x], row[x]);
    }
}

} // namespace quillon
