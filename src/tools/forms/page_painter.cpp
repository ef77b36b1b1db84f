#include "tools/forms/page_painter.h"

#include "ui/qt_text.h"

#include <QPagedPaintDevice>
#include <QtWidgets>

namespace quillon {

namespace {

// Letters are laid out in units this small on every device, so that all show the same widths.
constexpr double kUnitsPerInch = 1200;
constexpr double kUnitsPerMillimetre = kUnitsPerInch / 25.4;
constexpr double kPointsPerInch = 72;

void PaintText(QPainter& painter, const PrintedText& printed)
{
    QFont font(kPrintFont);
    font.setPixelSize(qRound(printed.size * kUnitsPerInch / kPointsPerInch));
    font.setBold(printed.bold);
    painter.setFont(font);
    const double baseline = printed.y * kUnitsPerMillimetre + QFontMetricsF(font).ascent();
    painter.drawText(QPointF(printed.x * kUnitsPerMillimetre, baseline), ToQt(printed.text));
}

} // namespace

void DrawPage(QPainter& painter, const PrintedPage& page, const QRectF& paper)
{
    painter.save();
    painter.translate(paper.topLeft());
    const double scale = paper.width() / (kPageWidth * kUnitsPerMillimetre);
    painter.scale(scale, scale);
    painter.setPen(QPen(Qt::black, kRuleWidth * kUnitsPerMillimetre));
    for (const PrintedRule& rule : page.rules)
        painter.drawLine(QPointF(rule.fromX, rule.y) * kUnitsPerMillimetre,
                         QPointF(rule.toX, rule.y) * kUnitsPerMillimetre);
    for (const PrintedText& text : page.texts)
        PaintText(painter, text);
    painter.restore();
}

bool PrintPages(QPagedPaintDevice& device, const std::vector<PrintedPage>& pages)
{
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double width = device.logicalDpiX() * kPageWidth / 25.4;
    const double height = device.logicalDpiY() * kPageHeight / 25.4;
    // A printer may begin to count after the margin that it can't print on.
    const QPointF margin = device.pageLayout().paintRectPixels(device.logicalDpiX()).topLeft();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0 && !device.newPage())
            return false;
        DrawPage(painter, pages[i], QRectF(-margin, QSizeF(width, height)));
    }
    return painter.end();
}

} // namespace quillon
