#include "ui/controls/PathLabel.h"

#include <QtWidgets>

namespace quillon {

PathLabel::PathLabel()
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void PathLabel::ShowPath(const QString& path)
{
    setText(path);
    setToolTip(path);
}

QSize PathLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void PathLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), shown, foregroundRole());
}

} // namespace quillon
