#include "tools/forms/PagePreview.h"

#include "tools/forms/page_painter.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kUsualHeight = 560;
constexpr int kMinHeight = 200;

QSize PaperOfHeight(int height)
{
    return {qRound(height * kPageWidth / kPageHeight), height};
}

} // namespace

PagePreview::PagePreview()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PagePreview::ShowPage(const PrintedPage& page)
{
    page_ = page;
    update();
}

QSize PagePreview::sizeHint() const
{
    return PaperOfHeight(kUsualHeight);
}

QSize PagePreview::minimumSizeHint() const
{
    return PaperOfHeight(kMinHeight);
}

void PagePreview::paintEvent(QPaintEvent*)
{
    const QSizeF paper =
        QSizeF(kPageWidth, kPageHeight).scaled(QSizeF(size()) - QSizeF(2, 2), Qt::KeepAspectRatio);
    const QRectF place(QPointF((width() - paper.width()) / 2, (height() - paper.height()) / 2),
                       paper);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Paper is white under every colour scheme.
    painter.fillRect(place, Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(place);
    painter.setClipRect(place);
    DrawPage(painter, page_, place);
}

} // namespace quillon
