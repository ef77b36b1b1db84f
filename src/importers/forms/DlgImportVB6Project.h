// The import of a Visual Basic 6.0 project.
#pragma once

#include "importers/forms/ImportForm.h"
#include "importers/import_vb6.h"

namespace quillon {

class DlgImportVB6Project : public ImportForm {
public:
    DlgImportVB6Project(const ImportDesk& desk, QWidget* parent);

    PathLabel* sVBPfile = nullptr;
    PathLabel* sEXEfile = nullptr;
    QPushButton* cmdSelectVBP = nullptr;
    QPushButton* cmdSelectEXE = nullptr;
    QLineEdit* tVBDirectory = nullptr;
    QCheckBox* cImportDAO35 = nullptr;
    QCheckBox* cImportDAO36 = nullptr;
    QCheckBox* cImportADO = nullptr;
    QCheckBox* cImportRDO = nullptr;
    QCheckBox* cInstallMDA = nullptr;
    QPushButton* cmdMDADetails = nullptr;
    QCheckBox* cImportActiveXSysFiles = nullptr;
    QCheckBox* cUseDepFile = nullptr;
    QCheckBox* cAddIcon = nullptr;

protected:
    ImportResult Import(const ImportWork& work) override;

private:
    Piece MakeDatabases();
    Piece MakeOptions();
    void SelectVBP();
    void SelectEXE();
    void TakeChoices();
    void ShowChoices();

    Vb6Choices choices_;
};

} // namespace quillon
