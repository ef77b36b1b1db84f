#include "design/forms/DesignObject.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// How far an arrow key moves an object; with Shift ten times as far.
constexpr int kPixelsPerKey = 1;
constexpr int kPixelsPerShiftKey = 10;

} // namespace

DesignObject::DesignObject(const char* name, const Text& accessibleName, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QString::fromLatin1(name));
    setAccessibleName(ToQt(accessibleName));
    setFocusPolicy(Qt::StrongFocus);
    hide();
}

void DesignObject::Connect(Surround surround, std::function<void(const SurfacePlace&)> onMoved,
                           std::function<void()> onEdit)
{
    surround_ = std::move(surround);
    onMoved_ = std::move(onMoved);
    onEdit_ = std::move(onEdit);
    setToolTip(onMoved_ ? "Dra för att flytta, dubbelklicka för att ändra"
                        : "Dubbelklicka för att ändra");
}

void DesignObject::PlaceAt(const SurfacePlace& place)
{
    place_ = place;
    setGeometry(PixelsOf(place.Left, surround_.screen.TPPX),
                PixelsOf(place.Top, surround_.screen.TPPY),
                PixelsOf(place.Width, surround_.screen.TPPX),
                PixelsOf(place.Height, surround_.screen.TPPY));
    update();
}

void DesignObject::paintEvent(QPaintEvent*)
{
    const double ratio = devicePixelRatioF();
    QImage image((QSizeF(size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(this);
    if (!image.isNull() && paint) {
        image.fill(Qt::transparent);
        paint(image, ratio);
        image.setDevicePixelRatio(ratio);
        painter.drawImage(0, 0, image);
    }
    if (hasFocus()) {
        // Seen on every background: dark dashes on a light line.
        painter.setPen(QPen(Qt::white, 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void DesignObject::resizeEvent(QResizeEvent*)
{
    update();
}

void DesignObject::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !onMoved_)
        return;
    const QPoint at = event->position().toPoint();
    drag_.emplace(place_, surround_.surface(), surround_.screen, at.x() * surround_.screen.TPPX,
                  at.y() * surround_.screen.TPPY);
    surround_.showDragRect(drag_->Start());
    setCursor(Qt::SizeAllCursor);
}

void DesignObject::mouseMoveEvent(QMouseEvent* event)
{
    // Kept: a second button pauses the drag.
    if (!drag_ || event->buttons() != Qt::LeftButton)
        return;
    const QPoint at = event->position().toPoint();
    surround_.showDragRect(
        drag_->Move(at.x() * surround_.screen.TPPX, at.y() * surround_.screen.TPPY));
}

void DesignObject::mouseReleaseEvent(QMouseEvent* event)
{
    if (!drag_ || event->button() != Qt::LeftButton)
        return;
    const QPoint at = event->position().toPoint();
    const auto place =
        drag_->Release(at.x() * surround_.screen.TPPX, at.y() * surround_.screen.TPPY);
    EndDrag();
    if (place)
        onMoved_(*place);
}

void DesignObject::EndDrag()
{
    drag_.reset();
    surround_.showDragRect({});
    unsetCursor();
}

void DesignObject::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (drag_)
        EndDrag();
    onEdit_();
}

void DesignObject::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && drag_)
        EndDrag();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        onEdit_();
    else if (!MoveByKey(event->key(), event->modifiers()))
        QWidget::keyPressEvent(event);
}

bool DesignObject::MoveByKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (!onMoved_)
        return false;
    const int pixels = modifiers.testFlag(Qt::ShiftModifier) ? kPixelsPerShiftKey : kPixelsPerKey;
    SurfacePlace place = place_;
    switch (key) {
    case Qt::Key_Left:
        place.Left -= pixels * surround_.screen.TPPX;
        break;
    case Qt::Key_Right:
        place.Left += pixels * surround_.screen.TPPX;
        break;
    case Qt::Key_Up:
        place.Top -= pixels * surround_.screen.TPPY;
        break;
    case Qt::Key_Down:
        place.Top += pixels * surround_.screen.TPPY;
        break;
    default:
        return false;
    }
    // At the edge of the surface nothing moves, and nothing is changed.
    const SurfacePlace inside = ClampDesPlace(place, surround_.surface(), surround_.screen);
    if (inside != place_)
        onMoved_(inside);
    return true;
}

void DesignObject::focusInEvent(QFocusEvent*)
{
    update();
}

void DesignObject::focusOutEvent(QFocusEvent*)
{
    update();
}

} // namespace quillon
