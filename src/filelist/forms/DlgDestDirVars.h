// The variables that a destination can begin with, to pick one from.
#pragma once

#include "ui/kit/Form.h"

class QListWidget;

namespace quillon {

class DlgDestDirVars : public Form {
public:
    explicit DlgDestDirVars(QWidget* parent);

    // The chosen variable, valid once OK was pressed.
    Text Variable;

    QListWidget* lbVariables = nullptr;

protected:
    bool MayClose() override;
};

} // namespace quillon
