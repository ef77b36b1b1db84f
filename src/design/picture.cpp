#include "design/picture.h"

#include <algorithm>
#include <iterator>

namespace quillon {

Colour TransparentColour(Integer number)
{
    // In the order of the editors' list, 0x00BBGGRR.
    static constexpr Colour kColours[] = {0x00FFFF, 0x0000FF, 0xFF0000, 0x00FF00,
                                          0xFFFF00, 0xFF00FF, 0x000080, 0x800000,
                                          0x000000, 0x808080, 0xC0C0C0, 0xFFFFFF};
    const bool isKnown = number >= 0 && static_cast<std::size_t>(number) < std::size(kColours);
    return isKnown ? kColours[number] : 0;
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
