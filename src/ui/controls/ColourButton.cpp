#include "ui/controls/ColourButton.h"

#include "platform/ask.h"
#include "ui/qt_colour.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

ColourButton::ColourButton(const Text& caption, Ask& ask, std::function<void()> onChoice)
    : QPushButton(ToQt(caption)), ask_(ask), onChoice_(std::move(onChoice))
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { Choose(); });
    SetColour(0);
}

void ColourButton::SetColour(Long colour)
{
    colour_ = colour & 0xFFFFFF;
    const QColor shown = ToQtColour(colour_);
    const int side = fontMetrics().height();
    QPixmap swatch(QSize(2 * side, side) * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    swatch.fill(shown);
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(0, 0, 2 * side - 1, side - 1);
    painter.end();
    setIconSize({2 * side, side});
    // The picture stays the colour where the button is disabled.
    setIcon(QIcon(swatch));
    setAccessibleDescription(shown.name().toUpper());
    setToolTip(shown.name().toUpper());
}

void ColourButton::Choose()
{
    if (const auto chosen = ask_.ChooseColour(colour_)) {
        SetColour(*chosen);
        if (onChoice_)
            onChoice_();
    }
}

} // namespace quillon
