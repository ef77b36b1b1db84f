// The painter's pixels as images of Qt, which have the same order in memory.
#pragma once

#include "design/canvas.h"

#include <QImage>

namespace quillon {

/// The canvas of an image of the format RGB32.
inline Canvas CanvasOf(QImage& image)
{
    return WholeCanvas(reinterpret_cast<Pixel*>(image.bits()), image.width(), image.height());
}

} // namespace quillon
