#include "design/forms/ColorblendBackground.h"

#include <QtWidgets>

namespace quillon {

QImage BlendImage(QSize size, const SurfacePaint& paint)
{
    QImage image(size, QImage::Format_RGB32);
    PaintBlend(WholeCanvas(reinterpret_cast<Pixel*>(image.bits()), size.width(), size.height()),
               RectAt(0, 0, size.width(), size.height()), BlendOf(paint));
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
    shown.fill(QColor::fromRgb(PixelOf(paint_.ColorFrom)));
    const QSize size = (QSizeF(picture_.size()) * devicePixelRatioF()).toSize();
    QPainter(&shown).drawImage(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, QRect({0, 0}, pixels)),
        picture_);
    return shown;
}

} // namespace quillon
