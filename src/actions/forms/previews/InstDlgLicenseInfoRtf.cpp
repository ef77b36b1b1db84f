#include "actions/forms/previews/InstDlgLicenseInfoRtf.h"

#include "formats/page_layout.h"
#include "shell/session.h"
#include "ui/controls/RunningText.h"
#include "ui/controls/rtf_view.h"

#include <QtWidgets>

namespace quillon {

InstDlgLicenseInfoRtf::InstDlgLicenseInfoRtf(const LicensePreview& page, Session& session,
                                             QWidget* parent)
    : InstDlg("InstDlgLicenseInfoRtf", &section::DialogBoxes::LicenseInfoRtfDlg, page.title, {},
              session, parent)
{
    Named(NAMED(RtfLicense), new RtfView("Licensavtal"));
    RtfLicense->ShowFile(session.host.files, page.license);
    Paragraph(NAMED(sFootText), page.footText, "Fottext", PageLayout::kMaxFootTextHeight);
    sFootText->setVisible(!page.footText.empty());
    ArrangePage(VBox({Growing(RtfLicense), sFootText}), Buttons::YesNo);
}

void ShowInstDlgLicenseInfoRtf(Session& session, const LicensePreview& page, QWidget* parent)
{
    InstDlgLicenseInfoRtf(page, session, parent).ShowModal();
}

} // namespace quillon
