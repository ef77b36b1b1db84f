// How the setup installs the package of Microsoft's data access components.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

class DlgMDADetails : public EditorForm {
public:
    DlgMDADetails(Session& session, QWidget* parent);

    QCheckBox* cHiddenInstall = nullptr;
    QCheckBox* cAskUser = nullptr;
};

} // namespace quillon
