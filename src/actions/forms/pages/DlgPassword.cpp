#include "actions/forms/pages/DlgPassword.h"

#include "actions/forms/previews/previews.h"
#include "actions/install_password.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::DialogBoxData;

constexpr int kLineCharacters = 60;
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
    Named(NAMED(sPasswordNote), Note({}));
    sPasswordNote->setTextFormat(Qt::PlainText);
    connect(tPassword, &QLineEdit::textChanged, this, [this] { ShowPasswordNote(); });
    Arrange(VBox({
        Above("&Text:", MinWidth(kLineCharacters, tDialogText)),
        Above("&Korrekt lösenord:", tPassword),
        sPasswordNote,
        Stretch(),
        Ending([this] { Test(); }),
    }));
    ShowPasswordNote();
    tDialogText->setFocus();
}

void DlgPassword::ShowPasswordNote()
{
    const auto kept = PasswordAfterReopening(FromQt(tPassword->text()));
    sPasswordNote->setVisible(kept.has_value());
    if (kept)
        sPasswordNote->setText(
            ToQt("När projektet öppnas igen är lösenordet '" + *kept +
                 "': projektfilen behåller inte blanksteg i början och slutet eller citattecken "
                 "runt om."));
}

void DlgPassword::Test()
{
    ShowInstDlgPassword(session_, LinesFromQt(TypedText(tDialogText)), this);
}

} // namespace quillon
