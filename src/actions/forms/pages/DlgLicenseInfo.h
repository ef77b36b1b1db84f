// The editor of the agreement page whose text is part of the project.
#pragma once

#include "actions/forms/pages/PageEditor.h"

namespace quillon {

class DlgLicenseInfo : public PageEditor {
public:
    DlgLicenseInfo(Session& session, QWidget* parent);

    QLineEdit* tDialogTitle = nullptr;
    QPlainTextEdit* tLicenseText = nullptr;
    QLineEdit* tFootText = nullptr;

private:
    void Test();
};

} // namespace quillon
