// Where on the screen the setup's gauge stands.
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
