#include "app/in_place.h"

#include "ui/qt_text.h"
#include "ui/typed_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

void Change(Session& session, Text& value, Text typed)
{
    if (value == typed)
        return;
    value = std::move(typed);
    session.state.ProjectIsDirty = kOn;
}

QFont FixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // A desktop without such a setting names its usual font. Not every font of one width says so.
    const QFontMetrics letters(font);
    if (letters.horizontalAdvance("il") != letters.horizontalAdvance("MW"))
        font.setFamily("monospace");
    return font;
}

} // namespace

QLineEdit* EditInPlace(QLineEdit*& member, const char* name, Session& session, Text& value,
                       int longest)
{
    auto* field = Named(member, name, new QLineEdit);
    LimitTyping(field, longest);
    QObject::connect(field, &QLineEdit::textChanged, field,
                     [field, &session, &value] { Change(session, value, FromQt(field->text())); });
    return field;
}

QPlainTextEdit* EditListInPlace(QPlainTextEdit*& member, const char* name, Session& session,
                                Text& value, int longest)
{
    auto* area = Named(member, name, new QPlainTextEdit);
    area->setFont(FixedFont());
    area->setLineWrapMode(QPlainTextEdit::NoWrap);
    area->setTabChangesFocus(true);
    LimitTyping(area, longest);
    QObject::connect(area, &QPlainTextEdit::textChanged, area, [area, &session, &value] {
        Change(session, value, LinesFromQt(TypedText(area)));
    });
    return area;
}

void ShowInPlace(QLineEdit* field, const Text& value)
{
    const QString text = ToQt(value);
    if (field->text() == text)
        return;
    const QSignalBlocker silence(field);
    field->setText(text);
    field->setCursorPosition(0);
}

void ShowInPlace(QPlainTextEdit* area, const Text& value)
{
    const QString text = LinesToQt(value);
    if (TypedText(area) == text)
        return;
    const QSignalBlocker silence(area);
    area->setPlainText(text);
}

void AppendInPlace(QPlainTextEdit* area, const Text& lines)
{
    area->moveCursor(QTextCursor::End);
    // A step of its own for undo, even where it goes on with a line that was typed.
    QTextCursor cursor = area->textCursor();
    cursor.beginEditBlock();
    cursor.insertText(LinesToQt(lines));
    cursor.endEditBlock();
    area->setTextCursor(cursor);
    area->ensureCursorVisible();
    area->setFocus();
}

} // namespace quillon
