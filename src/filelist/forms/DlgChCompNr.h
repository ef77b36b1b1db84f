// The number of the component that files belong to.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

class DlgChCompNr : public EditorForm {
public:
    DlgChCompNr(const Text& number, Session& session, QWidget* parent);

    // After OK: "1" to "9", or empty for no component.
    Text Number;
    bool Accepted() const { return OK; }

    QLineEdit* tInputData = nullptr;

protected:
    bool MayClose() override;

private:
    void LeaveInputData();
};

} // namespace quillon
