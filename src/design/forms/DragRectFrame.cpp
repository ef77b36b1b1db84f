#include "design/forms/DragRectFrame.h"

#include "design/canvas.h"

#include <QtWidgets>

namespace quillon {

DragRectFrame::DragRectFrame(QWidget* parent) : QWidget(parent)
{
    setObjectName("DesDragRect");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    hide();
}

void DragRectFrame::ShowRect(const std::optional<DragRect>& rect, QPoint origin)
{
    // Only the lines change, not what lies inside them.
    const auto lines = [this] {
        const QRegion outer(rect_.adjusted(-1, -1, 1, 1));
        return outer.subtracted(rect_.adjusted(2, 2, -2, -2));
    };
    QRegion changed = lines();
    rect_ = rect ? QRect(origin.x() + rect->x, origin.y() + rect->y, rect->w, rect->h) : QRect();
    changed += lines();
    if (rect && !isVisible()) {
        setGeometry(parentWidget()->rect());
        raise();
        show();
    } else if (!rect) {
        hide();
    } else {
        update(changed);
    }
}

void DragRectFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(QColor::fromRgb(PixelOf(kDesDragRectColor)));
    painter.drawRect(rect_.adjusted(0, 0, -1, -1));
}

} // namespace quillon
