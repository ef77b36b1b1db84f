// Bitmap files for tests that show pictures.
#pragma once

#include <QtGui>
#include <string>

namespace quillon::test {

/// The bytes of a bitmap file in one colour.
inline std::string Bitmap(QColor colour, int width = 100, int height = 200)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "bmp");
    return bytes.toStdString();
}

/// The header of a bitmap file that says to be this large, and nothing after it.
inline std::string BitmapHeader(int width, int height)
{
    std::string bytes = Bitmap(Qt::black, 1, 1);
    for (const auto& [place, number] : {std::pair{18, width}, std::pair{22, height}})
        for (int byte = 0; byte < 4; ++byte)
            bytes[static_cast<std::size_t>(place + byte)] =
                static_cast<char>(number >> (8 * byte) & 0xFF);
    return bytes;
}

} // namespace quillon::test
