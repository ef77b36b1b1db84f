#include "actions/forms/DlgPassword.h"

#include "actions/forms/previews.h"
#include "ui/qt_text.h"
#include "ui/typed_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::DialogBoxData;

constexpr int kLettersOfALine = 60;
constexpr int kLinesOfText = 4;

/// As high as its longest text needs.
void SetHeightInLines(QPlainTextEdit* area, int lines)
{
    const int margin = static_cast<int>(area->document()->documentMargin()) + area->frameWidth();
    area->setFixedHeight(lines * area->fontMetrics().lineSpacing() + 2 * margin);
}

} // namespace

DlgPassword::DlgPassword(Session& session, QWidget* parent)
    : PageEditor("DlgPassword", &section::DialogBoxes::PasswordDlg, session, parent)
{
    Lines(NAMED(tDialogText), &DialogBoxData::PasswordDialogText);
    // The project file holds its first line alone.
    KeepOneLine(tDialogText);
    SetHeightInLines(tDialogText, kLinesOfText);
    Line(NAMED(tPassword), &DialogBoxData::CorrectPassword);
    Arrange(Down({
        Above("&Text:", RoomFor(kLettersOfALine, tDialogText)),
        Above("&Korrekt lösenord:", tPassword),
        Stretch(),
        Ending([this] { Test(); }),
    }));
    tDialogText->setFocus();
}

void DlgPassword::Test()
{
    ShowInstDlgPassword(session_, LinesFromQt(TypedText(tDialogText)), this);
}

} // namespace quillon
