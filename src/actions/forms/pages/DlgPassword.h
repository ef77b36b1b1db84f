// The editor of the page that asks the end user for a password.
#pragma once

#include "actions/forms/pages/PageEditor.h"

class QLabel;

namespace quillon {

class DlgPassword : public PageEditor {
public:
    DlgPassword(Session& session, QWidget* parent);

    QPlainTextEdit* tDialogText = nullptr;
    QLineEdit* tPassword = nullptr;
    // Says what the project file does not give back as it was typed.
    QLabel* sPasswordNote = nullptr;

private:
    void ShowPasswordNote();
    void Test();
};

} // namespace quillon
