// Programs that the setup starts when it has finished.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

class DlgRunAppAfter : public EditorForm {
public:
    DlgRunAppAfter(Session& session, QWidget* parent);

    QLineEdit* tProgramName1 = nullptr;
    QLineEdit* tParameters1 = nullptr;
    QLineEdit* tProgramName2 = nullptr;
    QLineEdit* tParameters2 = nullptr;
};

void ShowRunAppAfter(Session& session, QWidget* parent);

} // namespace quillon
