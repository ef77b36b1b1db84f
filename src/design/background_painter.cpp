#include "design/background_painter.h"

#include "helpers/number_text.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

int ScaledSide(int pixels, double scale)
{
    return std::max(static_cast<int>(RoundToEven(pixels * scale)), 1);
}

/// Of a side, in the picture's own pixels: what is seen, and the neighbours that scaling mixes in.
int SeenOfSide(int own, int seen, double scale)
{
    constexpr int kNeighbours = 2;
    return std::min(own, static_cast<int>(std::ceil(seen / scale)) + kNeighbours);
}

/// Whether the scaled picture has more pixels than the screen. A smaller one takes little memory,
/// and scaling it whole is exact.
bool IsLargerThanScreen(const ScalablePicture& picture, int width, int height, double scale)
{
    return picture.Width() * scale * picture.Height() * scale > double(width) * height;
}

} // namespace

const Picture& InOwnSize(const ScalablePicture& picture, Letters& letters, double scale)
{
    return picture.InSize(ScaledSide(picture.Width(), scale), ScaledSide(picture.Height(), scale),
                          letters);
}

void CropToMiddle(ScalablePicture& picture, int width, int height, double scale)
{
    if (!IsLargerThanScreen(picture, width, height, scale))
        return;
    // As much on both sides, so that the middle stays where it is.
    const int left = (picture.Width() - SeenOfSide(picture.Width(), width, scale)) / 2;
    const int top = (picture.Height() - SeenOfSide(picture.Height(), height, scale)) / 2;
    picture.Crop({left, top, picture.Width() - left, picture.Height() - top});
}

void CropToCorner(ScalablePicture& picture, int width, int height, double scale)
{
    if (IsLargerThanScreen(picture, width, height, scale))
        picture.Crop(RectAt(0, 0, SeenOfSide(picture.Width(), width, scale),
                            SeenOfSide(picture.Height(), height, scale)));
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
