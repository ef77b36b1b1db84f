// The import of a Visual Basic 6.0 project.
#pragma once

#include "importers/forms/VbProjectForm.h"
#include "importers/import_vb6.h"

namespace quillon {

class DlgImportVB6Project : public VbProjectForm {
public:
    DlgImportVB6Project(const ImportContext& context, QWidget* parent);

    QCheckBox* cImportDAO36 = nullptr;
    QCheckBox* cImportADO = nullptr;
    QCheckBox* cImportRDO = nullptr;
    QCheckBox* cInstallMDA = nullptr;
    QPushButton* cmdMDADetails = nullptr;
    QCheckBox* cUseDepFile = nullptr;

protected:
    ImportResult Import(const ImportWork& work) override;

private:
    Piece MakeDatabases();
    Piece MakeOptions();
    void SelectVBP() override;
    void SelectEXE() override;
    void TakeChoices();
    void ShowChoices();

    Vb6Choices choices_;
};

} // namespace quillon
