// The sound that the setup plays in the background.
#pragma once

#include "design/forms/DesignEditor.h"

namespace quillon {

class DlgSound : public DesignEditor {
public:
    DlgSound(Session& session, QWidget* parent);

    PathLabel* sBackSoundFilenameX = nullptr;
    QPushButton* cmdSelectBackSound = nullptr;
    QPushButton* cmdReset = nullptr;
};

} // namespace quillon
