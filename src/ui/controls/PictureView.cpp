#include "ui/controls/PictureView.h"

#include <QtWidgets>

namespace quillon {

PictureView::PictureView(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::ShowPicture(QImage picture)
{
    picture_ = std::move(picture);
    note_.clear();
    setAccessibleDescription({});
    update();
}

void PictureView::ShowNote(const QString& note)
{
    picture_ = {};
    note_ = note;
    setAccessibleDescription(note);
    update();
}

QSize PictureView::sizeHint() const
{
    const int line = fontMetrics().lineSpacing();
    return {12 * line, 16 * line};
}

QSize PictureView::minimumSizeHint() const
{
    const int line = fontMetrics().lineSpacing();
    return {8 * line, 8 * line};
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    frame.state |= QStyle::State_Sunken;
    painter.fillRect(rect(), palette().brush(QPalette::Base));
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);

    const int gap = fontMetrics().height() / 2;
    const QRect room = rect().adjusted(gap, gap, -gap, -gap);
    QSize size = picture_.size();
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    Paint(painter, room, size);
}

void PictureView::Paint(QPainter& painter, const QRect& room, const QSize& shown) const
{
    if (picture_.isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, note_);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, shown, room),
                      picture_);
}

} // namespace quillon
