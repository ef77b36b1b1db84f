// The line below the title, in which the setup replaces variables.
#pragma once

#include "project/design_keys.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgDesSubTitle : public EditorForm {
public:
    /// OK stores in `subTitle`, which is the title editor's own until that one is left with OK.
    DlgDesSubTitle(Text& subTitle, Session& session, QWidget* parent);

    QLineEdit* tSubtitle = nullptr;
    QPushButton* cmdVariables = nullptr;
};

} // namespace quillon
