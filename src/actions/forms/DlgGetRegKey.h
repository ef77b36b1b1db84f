// Where in the registry the folder of the product gets its new value from.
#pragma once

#include "project/records.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgGetRegKey : public EditorForm {
public:
    /// Shows and, on OK, sets the place in the registry that `program` holds.
    DlgGetRegKey(section::RunAppSelfX& program, Session& session, QWidget* parent);

    QComboBox* ComboHKEY = nullptr;
    QLineEdit* tSubKey = nullptr;
    QLineEdit* tValueName = nullptr;

private:
    void MakeRoots(Text& index);
};

} // namespace quillon
