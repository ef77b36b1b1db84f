#include "actions/forms/SidePicture.h"

#include <QtWidgets>

namespace quillon {

SidePicture::SidePicture(QSize size)
{
    setFixedSize(size);
    setAccessibleName("Sidbild");
}

void SidePicture::ShowPicture(const QImage& picture)
{
    // Made small once: a photograph of a camera is not to be scaled at each painting.
    const QSize room = size() * devicePixelRatioF();
    picture_ = picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    note_.clear();
    update();
}

void SidePicture::ShowNote(const QString& note)
{
    picture_ = {};
    note_ = note;
    setAccessibleDescription(note);
    update();
}

void SidePicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (picture_.isNull()) {
        painter.fillRect(rect(), palette().brush(QPalette::Base));
        painter.setPen(palette().color(QPalette::PlaceholderText));
        const int gap = fontMetrics().averageCharWidth();
        painter.drawText(rect().adjusted(gap, gap, -gap, -gap), Qt::AlignCenter | Qt::TextWordWrap,
                         note_);
        return;
    }
    const QSize shown = picture_.size().scaled(size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, shown, rect()),
                      picture_);
}

} // namespace quillon
