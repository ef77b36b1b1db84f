// When a component is installed over an earlier version only, and what is reported where it is not.
#pragma once

#include "project/records.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgCompMoreDataAdv : public EditorForm {
public:
    /// OK stores in `component`, which may be a copy of the project's.
    DlgCompMoreDataAdv(section::FileComponent& component, Session& session, QWidget* parent);

    bool Accepted() const { return OK; }

    QCheckBox* cOnlyUpdate = nullptr;
    QLineEdit* tUpdateReferenceFile = nullptr;
    QLineEdit* tUpdateInfoBoxTitle = nullptr;
    QPlainTextEdit* tUpdateInfoBoxText = nullptr;

protected:
    // The values are those of the form that opened this one, which marks the project on its own OK.
    void Store() override {}
};

} // namespace quillon
