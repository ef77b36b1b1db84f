#include "builder/forms/MediumPicture.h"

#include <QtWidgets>

namespace quillon {

namespace {

// The pictures are drawn for 48 pixels of 96 dpi, where a line of text has some 16.
constexpr int kPictureSize = 48;
constexpr int kUsualLine = 16;

int PictureSize(const QWidget& widget)
{
    return std::max(kPictureSize, kPictureSize * widget.fontMetrics().height() / kUsualLine);
}

} // namespace

MediumPicture::MediumPicture(const QIcon& picture, QRadioButton* button) : button_(button)
{
    setIcon(picture);
    // The keyboard reaches the medium by its radio button.
    setFocusPolicy(Qt::NoFocus);
    button_->installEventFilter(this);
    connect(button_, &QRadioButton::toggled, this, [this] { update(); });
    connect(this, &QAbstractButton::clicked, this, [this] {
        button_->setFocus(Qt::OtherFocusReason);
        button_->click();
    });
}

void MediumPicture::SetHighlighted(bool highlighted)
{
    isHighlighted_ = highlighted;
    update();
}

QSize MediumPicture::sizeHint() const
{
    const int side = PictureSize(*this) + fontMetrics().height();
    return {side + fontMetrics().height(), side};
}

void MediumPicture::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    if (onMouseOver)
        onMouseOver();
}

void MediumPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    const double radius = fontMetrics().height() / 4.0;
    QColor colour = palette().color(QPalette::Highlight);
    if (button_->isChecked()) {
        QColor tint = colour;
        tint.setAlphaF(isDown() ? 0.35F : 0.2F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(tint);
        painter.drawRoundedRect(frame, radius, radius);
    }
    painter.setBrush(Qt::NoBrush);
    if (isHighlighted_ && isEnabled()) {
        painter.setPen(QPen(colour, 2));
        painter.drawRoundedRect(frame, radius, radius);
    } else if (button_->hasFocus()) {
        painter.setPen(QPen(colour, 1, Qt::DashLine));
        painter.drawRoundedRect(frame, radius, radius);
    }
    const int side = PictureSize(*this);
    icon().paint(&painter,
                 QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, {side, side}, rect()),
                 Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

bool MediumPicture::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QAbstractButton::eventFilter(watched, event);
}

} // namespace quillon
