// An agreement in plain text, to be accepted or declined.
#pragma once

#include "actions/forms/previews/InstDlg.h"
#include "actions/forms/previews/previews.h"

namespace quillon {

class InstDlgLicenseInfo : public InstDlg {
public:
    InstDlgLicenseInfo(const LicensePreview& page, Session& session, QWidget* parent);

    RunningText* sLicenseText = nullptr;
    RunningText* sFootText = nullptr;
};

} // namespace quillon
