// The logotype in a lower corner of the setup's screen.
#pragma once

#include "design/forms/DesignEditor.h"

namespace quillon {

class DlgDesLogotype : public DesignEditor {
public:
    DlgDesLogotype(Session& session, QWidget* parent);

    PathLabel* sFilename = nullptr;
    QPushButton* cmdSelectPicture = nullptr;
    QPushButton* cmdReset = nullptr;
    QCheckBox* cTransparentBkg = nullptr;
    QComboBox* ComboTransparentColor = nullptr;
    QRadioButton* oLeft = nullptr;
    QRadioButton* oRight = nullptr;
    QLineEdit* tLogotypeWMFWidth = nullptr;
    QLineEdit* tLogotypeWMFHeight = nullptr;

private:
    Piece FileFrame();
};

} // namespace quillon
