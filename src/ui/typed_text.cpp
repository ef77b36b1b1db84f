#include "ui/typed_text.h"

#include "helpers/ansi_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

/// The text without the characters that no file can hold, and cut to `longest` bytes on file.
QString Holdable(const QString& text, int longest)
{
    QString kept;
    int length = 0;
    for (const uint point : text.toUcs4()) {
        const QString character = QString::fromUcs4(reinterpret_cast<const char32_t*>(&point), 1);
        // A line break stands for two bytes.
        const int bytes = point == '\n' ? 2 : 1;
        if (!AnsiText::Holds(FromQt(character)))
            continue;
        if (longest > 0 && length + bytes > longest)
            break;
        length += bytes;
        kept += character;
    }
    return kept;
}

class LeaveWatch : public QObject {
public:
    LeaveWatch(QWidget* widget, std::function<void()> leave)
        : QObject(widget), leave_(std::move(leave))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut && !isLeaving_) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            // A menu or another window on top is no leaving.
            if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
                // A box that `leave` shows takes the focus once more.
                isLeaving_ = true;
                leave_();
                isLeaving_ = false;
            }
        }
        return false;
    }

private:
    std::function<void()> leave_;
    bool isLeaving_ = false;
};

} // namespace

void LimitTyping(QLineEdit* field, int longest)
{
    if (longest > 0)
        field->setMaxLength(longest);
    QObject::connect(field, &QLineEdit::textEdited, field, [field](const QString& text) {
        const QString kept = Holdable(text, 0);
        if (kept == text)
            return;
        const auto taken = text.size() - kept.size();
        const int caret = field->cursorPosition() - static_cast<int>(taken);
        field->setText(kept);
        field->setCursorPosition(std::max(caret, 0));
        QApplication::beep();
    });
}

void LimitTyping(QPlainTextEdit* field, int longest)
{
    QObject::connect(field, &QPlainTextEdit::textChanged, field, [field, longest] {
        const QString text = field->toPlainText();
        const QString kept = Holdable(text, longest);
        if (kept == text)
            return;
        const auto taken = text.size() - kept.size();
        const int caret = field->textCursor().position() - static_cast<int>(taken);
        field->setPlainText(kept);
        QTextCursor cursor = field->textCursor();
        cursor.setPosition(std::clamp(caret, 0, static_cast<int>(kept.size())));
        field->setTextCursor(cursor);
        QApplication::beep();
    });
}

void OnLeave(QWidget* widget, std::function<void()> leave)
{
    new LeaveWatch(widget, std::move(leave));
}

} // namespace quillon
