#include "app/pages/in_place.h"

#include "ui/controls/list_area.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

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

} // namespace

QLineEdit* EditInPlace(QLineEdit*& member, const char* name, Session& session, Text& value,
                       int maxLength)
{
    auto* field = Named(member, name, new QLineEdit);
    LimitTyping(field, maxLength);
    QObject::connect(field, &QLineEdit::textChanged, field,
                     [field, &session, &value] { Change(session, value, FromQt(field->text())); });
    return field;
}

QPlainTextEdit* EditListInPlace(QPlainTextEdit*& member, const char* name, Session& session,
                                Text& value, int maxLength)
{
    auto* area = Named(member, name, new QPlainTextEdit);
    ShowAsList(area);
    area->setTabChangesFocus(true);
    LimitTyping(area, maxLength);
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

void ForgetUndo(QWidget& page)
{
    for (auto* field : page.findChildren<QLineEdit*>()) {
        const QSignalBlocker silence(field);
        const int caret = field->cursorPosition();
        field->setText(field->text());
        field->setCursorPosition(caret);
    }
    for (auto* area : page.findChildren<QPlainTextEdit*>())
        area->document()->clearUndoRedoStacks();
}

} // namespace quillon
