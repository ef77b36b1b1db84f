// The editor of the page that asks for a folder, with what belongs to updates of an installed
// version.
#pragma once

#include "actions/forms/pages/DiskSpaceEditor.h"

namespace quillon {

class DlgDestDirDlg : public DiskSpaceEditor {
public:
    DlgDestDirDlg(Session& session, QWidget* parent);

    QCheckBox* cHandleUpdate = nullptr;
    QLineEdit* tUpdateReferenceFile = nullptr;
    QPushButton* cmdAdvUpdate = nullptr;
    QCheckBox* cWarnIfDestDirExists = nullptr;

protected:
    void Store() override;

private:
    QWidget* UpdateFrame();
    void ShowUpdateEnabled();
    void Test();

    section::Updates& updates_;
    // The advanced values as edited here; they become the project's on OK alone.
    section::Updates advanced_;
};

} // namespace quillon
