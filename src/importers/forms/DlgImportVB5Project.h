// The import of a Visual Basic 5.0 project.
#pragma once

#include "importers/forms/ImportForm.h"
#include "importers/import_vb5.h"

namespace quillon {

class DlgImportVB5Project : public ImportForm {
public:
    DlgImportVB5Project(const ImportDesk& desk, QWidget* parent);

    PathLabel* sVBPfile = nullptr;
    PathLabel* sEXEfile = nullptr;
    QPushButton* cmdSelectVBP = nullptr;
    QPushButton* cmdSelectEXE = nullptr;
    QLineEdit* tVBDirectory = nullptr;
    QCheckBox* cImportDAO35 = nullptr;
    QCheckBox* cImportActiveXSysFiles = nullptr;
    QCheckBox* cAddIcon = nullptr;

protected:
    ImportResult Import(const ImportWork& work) override;

private:
    Piece MakeOptions();
    void SelectVBP();
    void SelectEXE();

    Vb5Choices choices_;
};

} // namespace quillon
