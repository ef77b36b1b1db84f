#include "actions/forms/list_editor.h"

#include "ui/controls/list_area.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kUsualLineLength = 60;

std::optional<UnsavableLine> UnsavableLineIn(const QPlainTextEdit* area, ListField list)
{
    return FindUnsavableLine(list, LinesFromQt(TypedText(area)));
}

QString WarningOf(const std::optional<UnsavableLine>& line)
{
    return line ? ToQt(UnsavableLineWarning(*line)) : QString();
}

} // namespace

QLabel* UnsavableLineNote(QLabel*& member, const char* name, QPlainTextEdit* area, ListField list)
{
    const auto line = UnsavableLineIn(area, list);
    QLabel* note = Named(member, name, Note({}));
    note->setText(WarningOf(line));
    // A note that has to be visible is shown with its form; shown now, it would become a window of
    // its own.
    if (!line)
        note->hide();
    QObject::connect(area, &QPlainTextEdit::textChanged, note, [note, area, list] {
        const auto present = UnsavableLineIn(area, list);
        note->setText(WarningOf(present));
        note->setVisible(present.has_value());
    });
    return note;
}

Piece ListEditor(QPlainTextEdit* area, QLabel* note)
{
    ShowAsList(area);
    MinWidth(kUsualLineLength, area);
    return VBox({Growing(area), note});
}

} // namespace quillon
