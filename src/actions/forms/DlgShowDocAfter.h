// The document that the setup shows when it has finished, and the box by which its user chooses.
#pragma once

#include "shell/main_window.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgShowDocAfter : public EditorForm {
public:
    DlgShowDocAfter(Session& session, QWidget* parent);

    QLineEdit* tDocumentFileName = nullptr;
    QCheckBox* cShowCheckBox = nullptr;
    QLineEdit* tCheckBoxText = nullptr;
    QCheckBox* cUseInternalRTFBox = nullptr;
    QLineEdit* tInternalRTFBoxDlgTitle = nullptr;

protected:
    bool MayClose() override;
};

void ShowDocAfter(Session& session, QWidget* parent);
/// The same with the file of the first selected row as the document, which counts on OK.
void ShowDocOfRowAfter(Session& session, const MainWindow& window, QWidget* parent);

} // namespace quillon
