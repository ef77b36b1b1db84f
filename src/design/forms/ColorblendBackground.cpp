#include "design/forms/ColorblendBackground.h"

#include "design/forms/pixel_image.h"

#include <QtWidgets>

namespace quillon {

QImage BlendImage(QSize size, const SurfacePaint& paint)
{
    QImage image(size, QImage::Format_RGB32);
    PaintBlend(CanvasOf(image), RectAt(0, 0, size.width(), size.height()), BlendOf(paint));
    return image;
}

ColorblendBackground::ColorblendBackground(Letters& letters) : letters_(letters)
{
    setObjectName("colorblendBackground");
    setAccessibleName("Installationens bakgrund");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void ColorblendBackground::Show(const SurfacePaint& paint, ScalablePicture picture)
{
    paint_ = paint;
    picture_ = std::move(picture);
    shown_ = {};
    update();
}

void ColorblendBackground::ShowTitle(const section::DesTitle& title,
                                     const section::DesTitleUnderline& underline,
                                     const section::DesSubTitle& subTitle)
{
    title_ = title;
    underline_ = underline;
    subTitle_ = subTitle;
    setAccessibleDescription(QString::fromStdString(title.TitleText));
    shown_ = {};
    update();
}

int ColorblendBackground::TitleBottom() const
{
    return LayOutTitle(letters_, Records(), {}, width()).TitleBottom;
}

void ColorblendBackground::paintEvent(QPaintEvent* event)
{
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (pixels.isEmpty())
        return;
    if (shown_.size() != pixels)
        shown_ = MakeShown(pixels);
    // Only the part that changed: an object that is dragged uncovers little of the surface.
    const QRect part = event->rect();
    const double ratio = devicePixelRatioF();
    QPainter painter(this);
    painter.drawImage(QRectF(part), shown_,
                      QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio));
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void ColorblendBackground::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        pressed_ = event->position().toPoint();
}

void ColorblendBackground::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && onDoubleClick)
        onDoubleClick(pressed_);
}

void ColorblendBackground::keyPressEvent(QKeyEvent* event)
{
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (opens && onDoubleClick)
        onDoubleClick({width() / 2, height()});
    else
        QWidget::keyPressEvent(event);
}

QImage ColorblendBackground::MakeShown(QSize pixels) const
{
    const bool hasPicture = paint_.UsePicture && !picture_.IsEmpty();
    QImage shown = hasPicture ? QImage(pixels, QImage::Format_RGB32) : BlendImage(pixels, paint_);
    const ScreenScale scale{devicePixelRatioF(), devicePixelRatioF()};
    const Canvas canvas = CanvasOf(shown);
    if (hasPicture)
        PaintThePicture(canvas);
    PaintTitle(canvas, LayOutTitle(letters_, Records(), scale, pixels.width()), Records());
    return shown;
}

void ColorblendBackground::PaintThePicture(const Canvas& canvas) const
{
    FillRect(canvas, canvas.clip, PixelOf(paint_.ColorFrom));
    if (paint_.StretchPicture) {
        PaintPicture(canvas, picture_.InSize(canvas.width, canvas.height, letters_), 0, 0);
        return;
    }
    // In its own size it stands in the middle, on the first colour.
    const ScreenScale scale{devicePixelRatioF(), devicePixelRatioF()};
    const Picture& own = picture_.InSize(scale.BothPixels(picture_.Width()),
                                         scale.BothPixels(picture_.Height()), letters_);
    PaintPicture(canvas, own, (canvas.width - own.width) / 2, (canvas.height - own.height) / 2);
}

} // namespace quillon
