// A key or value that the setup writes to the registry.
#pragma once

#include "actions/forms/RegistryKeyForm.h"

namespace quillon {

class DlgAddRegKey : public RegistryKeyForm {
public:
    DlgAddRegKey(Ask& ask, QWidget* parent);

    bool Accepted() const { return OK; }

    QLineEdit* tName = nullptr;
    QLineEdit* tValue = nullptr;
    QComboBox* ComboType = nullptr;
    QPushButton* cmdVariables = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    void MakeControls();
    void ChooseType();
    RegistryEntry Entry() const;
};

} // namespace quillon
