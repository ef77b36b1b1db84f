// The place of the setup's gauge on the screen.
#pragma once

#include "design/forms/DesignEditor.h"

namespace quillon {

class DlgDesPercentGauge : public DesignEditor {
public:
    DlgDesPercentGauge(Session& session, QWidget* parent);

    QRadioButton* oLeft = nullptr;
    QRadioButton* oHCenter = nullptr;
    QRadioButton* oRight = nullptr;
    QRadioButton* oTop = nullptr;
    QRadioButton* oVCenter = nullptr;
    QRadioButton* oBottom = nullptr;
};

} // namespace quillon
