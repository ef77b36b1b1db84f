#include "design/forms/ColorblendBackground.h"

#include "formats/blend.h"

#include <QtWidgets>
#include <vector>

namespace quillon {

namespace {

QRgb RgbOf(Colour colour)
{
    return qRgb(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

/// The colours of `count` pixels in a row, from the first colour to the second.
std::vector<QRgb> Ramp(int count, const SurfacePaint& paint, bool isBackwards)
{
    std::vector<QRgb> ramp;
    for (int i = 0; i < count; ++i)
        ramp.push_back(RgbOf(BlendColour(paint.ColorFrom, paint.ColorTo, paint.BlendDepth,
                                         isBackwards ? count - 1 - i : i, count - 1)));
    return ramp;
}

/// How far a pixel of a row lies from its middle, in steps of which the ends have `count` - 1.
int FromMiddle(int at, int count)
{
    return std::abs(2 * at - (count - 1));
}

/// The same as a part of the whole that can be compared between rows and columns.
double PartFromMiddle(int at, int count)
{
    return count > 1 ? double(FromMiddle(at, count)) / (count - 1) : 0.0;
}

std::vector<QRgb> RampFromMiddle(int count, const SurfacePaint& paint)
{
    std::vector<QRgb> ramp;
    for (int i = 0; i < count; ++i)
        ramp.push_back(RgbOf(BlendColour(paint.ColorFrom, paint.ColorTo, paint.BlendDepth,
                                         FromMiddle(i, count), count - 1)));
    return ramp;
}

QRgb* Line(QImage& image, int y)
{
    return reinterpret_cast<QRgb*>(image.scanLine(y));
}

void FillAcross(QImage& image, const SurfacePaint& paint)
{
    const std::vector<QRgb> ramp =
        Ramp(image.width(), paint, paint.BlendStyle == BlendStyle::ToTheLeft);
    for (int y = 0; y < image.height(); ++y)
        std::ranges::copy(ramp, Line(image, y));
}

void FillDown(QImage& image, const SurfacePaint& paint)
{
    const std::vector<QRgb> ramp =
        Ramp(image.height(), paint, paint.BlendStyle == BlendStyle::Upwards);
    for (int y = 0; y < image.height(); ++y)
        std::fill_n(Line(image, y), image.width(), ramp[static_cast<std::size_t>(y)]);
}

// Rectangles in each other, all in the shape of the surface; the first colour is in the middle.
void FillOutwards(QImage& image, const SurfacePaint& paint)
{
    const std::vector<QRgb> columns = RampFromMiddle(image.width(), paint);
    const std::vector<QRgb> rows = RampFromMiddle(image.height(), paint);
    std::vector<double> columnParts;
    for (int x = 0; x < image.width(); ++x)
        columnParts.push_back(PartFromMiddle(x, image.width()));
    for (int y = 0; y < image.height(); ++y) {
        QRgb* line = Line(image, y);
        const double rowPart = PartFromMiddle(y, image.height());
        for (std::size_t x = 0; x < columns.size(); ++x)
            line[x] = columnParts[x] >= rowPart ? columns[x] : rows[static_cast<std::size_t>(y)];
    }
}

} // namespace

QImage BlendImage(QSize size, const SurfacePaint& paint)
{
    QImage image(size, QImage::Format_RGB32);
    switch (paint.BlendStyle) {
    case BlendStyle::ToTheRight:
    case BlendStyle::ToTheLeft:
        FillAcross(image, paint);
        break;
    case BlendStyle::Outwards:
        FillOutwards(image, paint);
        break;
    default: // a direction that the list does not have falls as well
        FillDown(image, paint);
        break;
    }
    return image;
}

ColorblendBackground::ColorblendBackground()
{
    setObjectName("colorblendBackground");
    setAccessibleName("Installationens bakgrund");
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ColorblendBackground::Show(const SurfacePaint& paint, QImage picture)
{
    paint_ = paint;
    picture_ = std::move(picture);
    shown_ = {};
    update();
}

void ColorblendBackground::paintEvent(QPaintEvent*)
{
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (pixels.isEmpty())
        return;
    if (shown_.size() != pixels)
        shown_ = MakeShown(pixels);
    QPainter(this).drawPixmap(rect(), shown_);
}

QPixmap ColorblendBackground::MakeShown(QSize pixels) const
{
    if (!paint_.UsePicture)
        return QPixmap::fromImage(BlendImage(pixels, paint_));
    if (paint_.StretchPicture)
        return QPixmap::fromImage(
            picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    // In its own size it stands in the middle, on the first colour.
    QPixmap shown(pixels);
    shown.fill(QColor(RgbOf(paint_.ColorFrom)));
    const QSize size = (QSizeF(picture_.size()) * devicePixelRatioF()).toSize();
    QPainter(&shown).drawImage(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, QRect({0, 0}, pixels)),
        picture_);
    return shown;
}

} // namespace quillon
