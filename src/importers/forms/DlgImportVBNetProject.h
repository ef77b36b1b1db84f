// The import of a Visual Basic .NET project of 2002 or 2003.
#pragma once

#include "importers/forms/ImportForm.h"
#include "importers/import_vbnet.h"

namespace quillon {

class DlgImportVBNetProject : public ImportForm {
public:
    DlgImportVBNetProject(const ImportContext& context, QWidget* parent);

    PathLabel* sVBPfile = nullptr;
    PathLabel* sEXEfile = nullptr;
    QPushButton* cmdSelectVBP = nullptr;
    QPushButton* cmdSelectEXE = nullptr;
    QCheckBox* cUseDepFile = nullptr;
    QLabel* labNETtestStatus = nullptr;
    QPushButton* CmdTestNETFramework = nullptr;

protected:
    ImportResult Import(const ImportWork& work) override;

private:
    void SelectVBP();
    void SelectEXE();
    void ShowNetTest();

    VbNetChoices choices_;
};

} // namespace quillon
