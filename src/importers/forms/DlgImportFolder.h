// The import of the output folder of a build: what is in it, what its program needs, and what is
// missing.
#pragma once

#include "importers/forms/ImportForm.h"
#include "importers/import_folder.h"

class QComboBox;
class QListWidget;

namespace quillon {

class DlgImportFolder : public ImportForm {
public:
    DlgImportFolder(const ImportContext& context, QWidget* parent);

    PathLabel* sFolder = nullptr;
    QPushButton* cmdSelectFolder = nullptr;
    QComboBox* cbProgram = nullptr;
    QListWidget* ListOfFindings = nullptr;
    QCheckBox* cVersionData = nullptr;
    QCheckBox* cTestNETFramework = nullptr;
    QCheckBox* cSkipBuildFiles = nullptr;
    QCheckBox* cAddIcon = nullptr;

protected:
    ImportResult Import(const ImportWork& work) override;

private:
    Piece MakeOptions();
    void SelectFolder();
    void ShowFolder();
    void ShowFindings();

    ProgramFolder folder_;
    ProgramFindings findings_;
};

} // namespace quillon
