#include "ui/kit/typed_text.h"

#include "helpers/ansi_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <limits>
#include <utility>

namespace quillon {

namespace {

/// The text without the characters that no file can hold.
QString Holdable(const QString& text)
{
    QString kept;
    for (const uint codePoint : text.toUcs4()) {
        const QString character =
            QString::fromUcs4(reinterpret_cast<const char32_t*>(&codePoint), 1);
        if (AnsiText::Holds(FromQt(character)))
            kept += character;
    }
    return kept;
}

/// What was copied from several lines as one, without the end of the last.
QString InOneLine(QString text)
{
    text.replace("\r\n", "\n").replace('\r', '\n');
    while (text.endsWith('\n'))
        text.chop(1);
    return text.replace('\n', ' ');
}

QString WithLineFeeds(QString raw)
{
    return raw.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
}

// A line break stands for two bytes.
int BytesOnFile(const QString& text)
{
    return static_cast<int>(text.size() + text.count('\n'));
}

void TellTooLong(QWidget* field, int maxLength)
{
    QToolTip::showText(field->mapToGlobal(QPoint(0, field->height())),
                       QString("Texten är för lång. Här får högst %1 tecken stå.").arg(maxLength),
                       field);
    QApplication::beep();
}

// The text that the last change has put into an area, for an object that is called at each change.
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

    /// A cursor that selects it; without a selection where nothing was added since the last call.
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

// Removes from an area what was just put in and is not allowed. The text before it is never cut,
// not even where a project has more than may be typed; and of a piece that is too long nothing is
// kept, since the loss of a part might go unnoticed.
class AreaLimit : public QObject {
public:
    AreaLimit(QPlainTextEdit* area, int maxLength)
        : QObject(area), area_(area), added_(area), maxLength_(maxLength)
    {
        Remember();
        connect(area, &QPlainTextEdit::textChanged, this, [this] { Undo(); });
    }

private:
    void Undo()
    {
        if (isRestoring_)
            return;
        QTextCursor cursor = added_.Take();
        const QString added = WithLineFeeds(cursor.selectedText());
        QString kept = Holdable(added);
        const bool isTooLong = BytesOnFile(kept) > MinWidth(added);
        if (isTooLong)
            kept.clear();
        if (kept != added)
            Replace(cursor, added, kept);
        if (isTooLong)
            TellTooLong(area_, maxLength_);
        Remember();
    }

    void Replace(QTextCursor& cursor, const QString& added, const QString& kept)
    {
        const QScopedValueRollback isRestoring(isRestoring_, true);
        const bool hasReplaced = TypedText(area_).size() != before_.size() + added.size();
        if (kept.isEmpty() && maxLength_ > 0 && hasReplaced) {
            area_->setPlainText(before_);
            cursor = area_->textCursor();
            cursor.movePosition(QTextCursor::End);
            area_->setTextCursor(cursor);
        } else {
            cursor.insertText(kept);
        }
        // Undoing the correction would bring the wrong characters back.
        area_->document()->clearUndoRedoStacks();
        QApplication::beep();
    }

    /// How many bytes of what was added there is room for.
    int MinWidth(const QString& added) const
    {
        if (maxLength_ == 0)
            return std::numeric_limits<int>::max();
        return std::max(0, maxLength_ - BytesOnFile(TypedText(area_)) + BytesOnFile(added));
    }

    void Remember()
    {
        if (maxLength_ > 0)
            before_ = TypedText(area_);
    }

    QPlainTextEdit* area_;
    AddedText added_;
    int maxLength_;
    QString before_;
    bool isRestoring_ = false;
};

// The same for a line.
class LineLimit : public QObject {
public:
    explicit LineLimit(QLineEdit* field) : QObject(field), field_(field), before_(field->text())
    {
        connect(field, &QLineEdit::inputRejected, this, [this] { TellOfRoom(); });
        connect(field, &QLineEdit::textEdited, this, [this](const QString& text) { Undo(text); });
        // The text in the signal may have been removed already.
        connect(field, &QLineEdit::textChanged, this, [this] { before_ = field_->text(); });
    }

private:
    /// The field takes as much as it has room for before it says that it has no more.
    void TellOfRoom()
    {
        if (field_->text().size() < field_->maxLength())
            return;
        isCut_ = field_->text() != before_;
        TellTooLong(field_, field_->maxLength());
    }

    void Undo(const QString& text)
    {
        // A line that is pasted with its break would become two in the project file.
        const QString line = InOneLine(text);
        const QString kept = std::exchange(isCut_, false) ? before_ : Holdable(line);
        if (kept == text)
            return;
        const int caret = field_->cursorPosition() - static_cast<int>(text.size() - kept.size());
        field_->setText(kept);
        field_->setCursorPosition(std::max(caret, 0));
        if (kept != line)
            QApplication::beep();
    }

    QLineEdit* field_;
    QString before_;
    bool isCut_ = false;
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
        // An ignored key event goes on to the form, but not with Ctrl or Shift.
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
        // A window that is closed or destroyed takes the focus too, but its fields are not read any
        // more. A field on a tab that another tab hides is still read.
        const bool isShown = static_cast<QWidget*>(parent())->window()->isVisible();
        if (event->type() == QEvent::FocusOut && isShown && !isLeaving_) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            // A menu or another window on top does not count.
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

void LimitTyping(QLineEdit* field, int maxLength)
{
    // Setting the limit cuts the text of a project that is longer.
    if (maxLength > 0)
        field->setMaxLength(std::max(maxLength, static_cast<int>(field->text().size())));
    new LineLimit(field);
}

void LimitTyping(QPlainTextEdit* field, int maxLength)
{
    new AreaLimit(field, maxLength);
}

bool WarnIfTooLong(QWidget* field, int maxLength)
{
    const auto* const line = qobject_cast<QLineEdit*>(field);
    const auto* const area = qobject_cast<QPlainTextEdit*>(field);
    const QString text = line ? line->text() : area ? TypedText(area) : QString();
    if (maxLength == 0 || BytesOnFile(text) <= maxLength)
        return false;
    field->setFocus();
    TellTooLong(field, maxLength);
    return true;
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
