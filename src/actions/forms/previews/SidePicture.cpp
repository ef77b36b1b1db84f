#include "actions/forms/previews/SidePicture.h"

#include <QtWidgets>

namespace quillon {

SidePicture::SidePicture(QSize size)
{
    setFixedSize(size);
    setAccessibleName("Sidbild");
}

void SidePicture::ShowPicture(const QImage& picture)
{
    // Scaled once, since scaling a large photograph at each painting would be slow.
    const QSize room = size() * devicePixelRatioF();
    PictureView::ShowPicture(picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void SidePicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (HasPicture()) {
        Paint(painter, rect(), Picture().size().scaled(size(), Qt::KeepAspectRatio));
        return;
    }
    painter.fillRect(rect(), palette().brush(QPalette::Base));
    const int gap = fontMetrics().averageCharWidth();
    Paint(painter, rect().adjusted(gap, gap, -gap, -gap), {});
}

} // namespace quillon
