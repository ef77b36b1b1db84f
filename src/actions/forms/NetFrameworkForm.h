// What the two dialogs share in which the setup's test for the .NET Framework is chosen.
#pragma once

#include "ui/kit/Form.h"

class QGroupBox;

namespace quillon {

class NetFrameworkForm : public EditorForm {
public:
    QCheckBox* cTestIfNETInstalled = nullptr;
    QRadioButton* oNETver10 = nullptr;
    QRadioButton* oNETver11 = nullptr;
    QRadioButton* oWarnIfNoNET = nullptr;
    QRadioButton* oStopIfNoNET = nullptr;

protected:
    using EditorForm::EditorForm;

    Piece NetFrameworkTest();

private:
    void EnableChoices();

    QGroupBox* versions_ = nullptr;
    QGroupBox* consequences_ = nullptr;
};

} // namespace quillon
