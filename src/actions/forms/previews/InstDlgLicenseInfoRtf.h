// An agreement in formatted text, to be accepted or declined.
#pragma once

#include "actions/forms/previews/InstDlg.h"
#include "actions/forms/previews/previews.h"

namespace quillon {

class RtfView;
class InstDlgLicenseInfoRtf : public InstDlg {
public:
    InstDlgLicenseInfoRtf(const LicensePreview& page, Session& session, QWidget* parent);

    RtfView* RtfLicense = nullptr;
    RunningText* sFootText = nullptr;
};

} // namespace quillon
