// The editor of the page that asks for a drive.
#pragma once

#include "actions/forms/pages/DiskSpaceEditor.h"

namespace quillon {

class DlgDestDriveDlg : public DiskSpaceEditor {
public:
    DlgDestDriveDlg(Session& session, QWidget* parent);

private:
    void Test();
};

} // namespace quillon
