// The page that asks for the folder of the installation.
#pragma once

#include "actions/forms/previews/InstDlg.h"
#include "actions/forms/previews/previews.h"

namespace quillon {

class DiskSpacePart;

class InstDlgDestDir : public InstDlg {
public:
    InstDlgDestDir(const DiskSpacePreview& page, Session& session, QWidget* parent);

    RunningText* sText = nullptr;
    QLineEdit* tDestDir = nullptr;
    QPushButton* cmdBrowse = nullptr;
    DiskSpacePart* space = nullptr;

private:
    void Browse();
    void ShowSpace();
};

} // namespace quillon
