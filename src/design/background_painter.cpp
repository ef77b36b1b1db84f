#include "design/background_painter.h"

#include "helpers/number_text.h"

#include <algorithm>

namespace quillon {

namespace {

int ScaledSide(int pixels, double scale)
{
    return std::max(static_cast<int>(RoundToEven(pixels * scale)), 1);
}

} // namespace

const Picture& InOwnSize(const ScalablePicture& picture, Letters& letters, double scale)
{
    return picture.InSize(ScaledSide(picture.Width(), scale), ScaledSide(picture.Height(), scale),
                          letters);
}

void PaintBackground(const Canvas& canvas, Letters& letters, const SurfacePaint& paint,
                     const ScalablePicture& picture, double scale)
{
    const PixelRect whole = RectAt(0, 0, canvas.width, canvas.height);
    if (!paint.UsePicture || picture.IsEmpty()) {
        PaintBlend(canvas, whole, BlendOf(paint));
        return;
    }
    FillRect(canvas, whole, PixelOf(paint.ColorFrom));
    if (paint.StretchPicture) {
        PaintPicture(canvas, picture.InSize(canvas.width, canvas.height, letters), 0, 0);
        return;
    }
    const Picture& own = InOwnSize(picture, letters, scale);
    PaintPicture(canvas, own, (canvas.width - own.width) / 2, (canvas.height - own.height) / 2);
}

} // namespace quillon
