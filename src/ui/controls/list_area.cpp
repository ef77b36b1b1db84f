#include "ui/controls/list_area.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

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

void ShowAsList(QPlainTextEdit* area)
{
    area->setFont(FixedFont());
    area->setLineWrapMode(QPlainTextEdit::NoWrap);
}

void AppendLines(QPlainTextEdit* area, const Text& lines)
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
