// The page that asks for the password without which nothing is installed.
#pragma once

#include "actions/forms/previews/InstDlg.h"

namespace quillon {

class InstDlgPassword : public InstDlg {
public:
    InstDlgPassword(const Text& prompt, Session& session, QWidget* parent);

    RunningText* sText = nullptr;
    QLineEdit* tPassword = nullptr;
};

} // namespace quillon
