// Lines that the setup adds to the startup files of the older systems.
#pragma once

#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

class DlgAutoexecConfig : public EditorForm {
public:
    DlgAutoexecConfig(Session& session, QWidget* parent);

    QPlainTextEdit* tAUTOEXEC = nullptr;
    QLabel* sAUTOEXECWarning = nullptr;
    QPlainTextEdit* tCONFIG = nullptr;
    QLabel* sCONFIGWarning = nullptr;
};

void ShowAutoexecConfig(Session& session, QWidget* parent);

} // namespace quillon
