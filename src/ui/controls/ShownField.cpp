#include "ui/controls/ShownField.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

QLineEdit* ShownField(QLineEdit*& member, const char* name, const Text& text)
{
    auto* field = Named(member, name, new QLineEdit);
    field->setReadOnly(true);
    field->setFrame(false);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(palette);
    ShowText(field, text);
    return field;
}

void ShowText(QLineEdit* field, const Text& text)
{
    field->setText(ToQt(text));
    field->setCursorPosition(0);
}

} // namespace quillon
