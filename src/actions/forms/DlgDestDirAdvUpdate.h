// Where else in the registry a setup looks for an installed version.
#pragma once

#include "project/records.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgDestDirAdvUpdate : public EditorForm {
public:
    /// OK stores in `updates`, which may be a copy of the project's.
    DlgDestDirAdvUpdate(section::Updates& updates, Session& session, QWidget* parent);

    bool Accepted() const { return OK; }

    QComboBox* ComboHKEY = nullptr;
    QLineEdit* tSubKey = nullptr;
    QLineEdit* tValueName = nullptr;
    QCheckBox* cAlwaysUseUserDefKey = nullptr;
};

} // namespace quillon
