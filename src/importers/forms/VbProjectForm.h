// What the imports of the two classic Visual Basics share: the project, the program and the folder
// of Visual Basic itself.
#pragma once

#include "importers/forms/ImportForm.h"

namespace quillon {

class VbProjectForm : public ImportForm {
public:
    PathLabel* sVBPfile = nullptr;
    PathLabel* sEXEfile = nullptr;
    QPushButton* cmdSelectVBP = nullptr;
    QPushButton* cmdSelectEXE = nullptr;
    QLineEdit* tVBDirectory = nullptr;
    QCheckBox* cImportDAO35 = nullptr;
    QCheckBox* cImportActiveXSysFiles = nullptr;
    QCheckBox* cAddIcon = nullptr;

protected:
    VbProjectForm(const char* name, const Text& title, const ImportContext& context,
                  QWidget* parent);

    /// `version` is "6.0"; `folderHelp` says what is in the folder of that Visual Basic.
    Piece ProjectFrame(const Text& version, const Text& folderHelp);
    QCheckBox* IconBox();

    /// Asks for the project's file.
    std::optional<Text> SelectVbProject();

    virtual void SelectVBP() = 0;
    virtual void SelectEXE() = 0;
};

} // namespace quillon
