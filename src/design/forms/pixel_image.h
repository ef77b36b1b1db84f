// The painter's pixels as images of Qt, which have the same order in memory.
#pragma once

#include "design/picture.h"

#include <QImage>

namespace quillon {

/// The canvas of an image of the format RGB32.
inline Canvas CanvasOf(QImage& image)
{
    return WholeCanvas(reinterpret_cast<Pixel*>(image.bits()), image.width(), image.height());
}

inline Picture PictureOf(const QImage& image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    Picture picture{pixels.width(), pixels.height(), {}};
    picture.pixels.reserve(static_cast<std::size_t>(pixels.width()) *
                           static_cast<std::size_t>(pixels.height()));
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* row = reinterpret_cast<const Pixel*>(pixels.constScanLine(y));
        picture.pixels.insert(picture.pixels.end(), row, row + pixels.width());
    }
    return picture;
}

} // namespace quillon
