// The variables that a destination can begin with, to pick one from.
#pragma once

#include "ui/Form.h"

class QListWidget;

namespace quillon {

class DlgDestDirVars : public Form {
public:
    explicit DlgDestDirVars(QWidget* parent);

    // After OK.
    Text Variable;

    QListWidget* lbVariables = nullptr;

protected:
    bool MayClose() override;
};

} // namespace quillon
