#include "ui/controls/UpDownArrows.h"

#include "helpers/number_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>

namespace quillon {

UpDownArrows::UpDownArrows(QLineEdit* field) : field_(field)
{
    auto* arrows = new QVBoxLayout(this);
    arrows->setContentsMargins(0, 0, 0, 0);
    arrows->setSpacing(0);
    const auto arrow = [&](Qt::ArrowType type, const char* name, const char* accessibleName,
                           int by) {
        auto* button = new QToolButton;
        button->setObjectName(name);
        button->setAccessibleName(accessibleName);
        button->setArrowType(type);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setFixedSize(field_->sizeHint().height(), field_->sizeHint().height() / 2);
        connect(button, &QToolButton::clicked, this, [this, by] { Step(by); });
        arrows->addWidget(button);
    };
    arrow(Qt::UpArrow, "Up", "Öka", 1);
    arrow(Qt::DownArrow, "Down", "Minska", -1);
    field_->installEventFilter(this);
}

void UpDownArrows::SetRange(int min, int max)
{
    min_ = min;
    max_ = max;
}

bool UpDownArrows::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == field_ && event->type() == QEvent::KeyPress && field_->isEnabled()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Step(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void UpDownArrows::Step(int by)
{
    // As the field's own check reads it, which has not run yet where the field was never left.
    const std::int64_t shown = LeadingNumber(FromQt(field_->text()));
    field_->setText(ToQt(NumberText(std::clamp<std::int64_t>(shown + by, min_, max_))));
}

} // namespace quillon
