// The group in the Start menu that the setup makes for the program's icons.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

class DlgProgramGroup : public EditorForm {
public:
    /// A group without a name takes the project's before the form shows.
    DlgProgramGroup(Session& session, QWidget* parent);

    bool Accepted() const { return OK; }

    QLineEdit* tProgramGroupName = nullptr;
    QRadioButton* oCurrentUser = nullptr;
    QRadioButton* oAllUsers = nullptr;
};

void ShowProgramGroup(Session& session, QWidget* parent);

} // namespace quillon
