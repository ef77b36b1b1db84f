// The page that asks for the drive of the installation.
#pragma once

#include "actions/forms/previews/InstDlg.h"
#include "actions/forms/previews/previews.h"

class QListWidget;

namespace quillon {

class DiskSpacePart;

class InstDlgDestDrive : public InstDlg {
public:
    InstDlgDestDrive(const DiskSpacePreview& page, Session& session, QWidget* parent);

    RunningText* sText = nullptr;
    QListWidget* lbDrives = nullptr;
    DiskSpacePart* space = nullptr;

private:
    void FillDrives();
    void ShowSpace();
};

} // namespace quillon
