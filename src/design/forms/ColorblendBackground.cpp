#include "design/forms/ColorblendBackground.h"

#include "design/forms/pixel_image.h"

#include <QtWidgets>

namespace quillon {

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
    QImage shown(pixels, QImage::Format_RGB32);
    const Canvas canvas = CanvasOf(shown);
    const double ratio = devicePixelRatioF();
    PaintBackground(canvas, letters_, paint_, picture_, ratio);
    PaintTitle(canvas, LayOutTitle(letters_, Records(), {ratio, ratio}, pixels.width()), Records());
    return shown;
}

} // namespace quillon
