// What is below everything on the screen: the blend of two colours, or the background picture.
#pragma once

#include "design/scalable_picture.h"
#include "design/surface.h"

namespace quillon {

/// Paints the canvas's clip. `scale` is that of a picture which is not stretched: it is in the
/// middle, on the first colour. Where there is no picture, the blend is painted.
void PaintBackground(const Canvas& canvas, Letters& letters, const SurfacePaint& paint,
                     const ScalablePicture& picture, double scale);

/// A picture in its own size at that scale, which is at least one pixel.
const Picture& InOwnSize(const ScalablePicture& picture, Letters& letters, double scale);

/// Leaves of a picture in its own size what a screen of that size shows of it: its middle, and at
/// least all that is seen.
void CropToMiddle(ScalablePicture& picture, int width, int height, double scale);
/// The same from its top left corner.
void CropToCorner(ScalablePicture& picture, int width, int height, double scale);

} // namespace quillon
