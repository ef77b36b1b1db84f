#include "ui/typed_text.h"

#include "helpers/ansi_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <limits>
#include <utility>

namespace quillon {

namespace {

/// The text without the characters that no file can hold, and cut to `longest` bytes on file.
QString Holdable(const QString& text, int longest = std::numeric_limits<int>::max())
{
    QString kept;
    int length = 0;
    for (const uint point : text.toUcs4()) {
        const QString character = QString::fromUcs4(reinterpret_cast<const char32_t*>(&point), 1);
        // A line break stands for two bytes.
        const int bytes = point == '\n' ? 2 : 1;
        if (!AnsiText::Holds(FromQt(character)))
            continue;
        if (length + bytes > longest)
            break;
        length += bytes;
        kept += character;
    }
    return kept;
}

QString WithLineFeeds(QString raw)
{
    return raw.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
}

int BytesOnFile(const QString& text)
{
    return static_cast<int>(text.size() + text.count('\n'));
}

// The text that was put into an area by the change that its watcher is told of.
class AddedText {
public:
    explicit AddedText(QPlainTextEdit* area) : area_(area)
    {
        QObject::connect(area->document(), &QTextDocument::contentsChange, area,
                         [this](int position, int, int added) {
                             position_ = position;
                             added_ = added;
                         });
    }

    /// Has it selected; nothing is where nothing was added since the last call.
    QTextCursor Take()
    {
        const int end =
            std::min(position_ + std::exchange(added_, 0), area_->document()->characterCount() - 1);
        QTextCursor cursor(area_->document());
        if (end > position_) {
            cursor.setPosition(position_);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
        }
        return cursor;
    }

private:
    QPlainTextEdit* area_;
    int position_ = 0;
    int added_ = 0;
};

// Takes back out of an area what was just put in and cannot stay. What stood there before is never
// cut, not even where a project came with more than may be typed.
class AreaLimit : public QObject {
public:
    AreaLimit(QPlainTextEdit* area, int longest)
        : QObject(area), area_(area), added_(area), longest_(longest)
    {
        connect(area, &QPlainTextEdit::textChanged, this, [this] { TakeBack(); });
    }

private:
    void TakeBack()
    {
        QTextCursor cursor = added_.Take();
        const QString added = WithLineFeeds(cursor.selectedText());
        const QString kept = Holdable(added, RoomFor(added));
        if (kept == added)
            return;
        cursor.insertText(kept);
        // Undoing the correction would bring the wrong characters back.
        area_->document()->clearUndoRedoStacks();
        QApplication::beep();
    }

    /// How many bytes of what was added there is room for.
    int RoomFor(const QString& added) const
    {
        if (longest_ == 0)
            return std::numeric_limits<int>::max();
        return std::max(0, longest_ - BytesOnFile(TypedText(area_)) + BytesOnFile(added));
    }

    QPlainTextEdit* area_;
    AddedText added_;
    int longest_;
};

// Looks at what was just put in alone, as `AreaLimit` does.
class OneLine : public QObject {
public:
    explicit OneLine(QPlainTextEdit* area) : QObject(area), added_(area)
    {
        area->installEventFilter(this);
        connect(area, &QPlainTextEdit::textChanged, this, [this] { TakeBreaksOut(); });
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
            return false;
        // A key that is ignored goes on to the form; with Ctrl or Shift it ends here.
        const bool isPlain = !(key->modifiers() & ~Qt::KeypadModifier);
        event->setAccepted(!isPlain);
        return true;
    }

private:
    void TakeBreaksOut()
    {
        QTextCursor cursor = added_.Take();
        QString added = WithLineFeeds(cursor.selectedText());
        if (added.contains('\n'))
            cursor.insertText(added.replace('\n', ' '));
    }

    AddedText added_;
};

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
        const QString kept = Holdable(text);
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
    new AreaLimit(field, longest);
}

void KeepOneLine(QPlainTextEdit* area)
{
    new OneLine(area);
}

QString TypedText(const QPlainTextEdit* area)
{
    return WithLineFeeds(area->document()->toRawText());
}

void OnLeave(QWidget* widget, std::function<void()> leave)
{
    new LeaveWatch(widget, std::move(leave));
}

} // namespace quillon
