// The editor of the page that asks the end user for a password.
#pragma once

#include "actions/forms/PageEditor.h"

namespace quillon {

class DlgPassword : public PageEditor {
public:
    DlgPassword(Session& session, QWidget* parent);

    QPlainTextEdit* tDialogText = nullptr;
    QLineEdit* tPassword = nullptr;

private:
    void Test();
};

} // namespace quillon
