// Information about the product that the setup and its version dialogs show.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

class DlgVersionInfo : public EditorForm {
public:
    explicit DlgVersionInfo(Session& session, QWidget* parent = nullptr);

    QLineEdit* tVerOrganization = nullptr;
    QLineEdit* tVerProductName = nullptr;
    QLineEdit* tVerDescription = nullptr;
    QLineEdit* tVerProductVersion = nullptr;
    QLineEdit* tVerComments = nullptr;
};

void ShowVersionInfo(Session& session, QWidget* parent);

} // namespace quillon
