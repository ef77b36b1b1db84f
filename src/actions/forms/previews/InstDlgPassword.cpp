#include "actions/forms/previews/InstDlgPassword.h"

#include "actions/forms/previews/previews.h"
#include "formats/page_layout.h"
#include "helpers/line_breaks.h"
#include "project/text_limits.h"
#include "ui/controls/RunningText.h"
#include "ui/kit/typed_text.h"

#include <QtWidgets>

namespace quillon {

InstDlgPassword::InstDlgPassword(const Text& prompt, Session& session, QWidget* parent)
    : InstDlg("InstDlgPassword", &section::DialogBoxes::PasswordDlg, "Lösenord", {}, session,
              parent)
{
    // Only the first line of the text reaches the setup.
    Paragraph(NAMED(sText), FirstLineOnly(prompt), "Text", PageLayout::kMaxTextHeight);
    Named(NAMED(tPassword), new QLineEdit);
    tPassword->setEchoMode(QLineEdit::Password);
    // An asterisk for each letter, whatever the desktop's style has.
    tPassword->setStyleSheet("lineedit-password-character: 42");
    LimitTyping(tPassword, MaxTextLength(&section::DialogBoxData::CorrectPassword));
    ArrangePage(VBox({sText, Fields({{"&Lösenord:", tPassword}}), Stretch()}));
    tPassword->setFocus();
}

void ShowInstDlgPassword(Session& session, const Text& prompt, QWidget* parent)
{
    InstDlgPassword(prompt, session, parent).ShowModal();
}

} // namespace quillon
