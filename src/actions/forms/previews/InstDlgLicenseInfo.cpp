#include "actions/forms/previews/InstDlgLicenseInfo.h"

#include "formats/page_layout.h"
#include "ui/controls/RunningText.h"

#include <QtWidgets>

namespace quillon {

InstDlgLicenseInfo::InstDlgLicenseInfo(const LicensePreview& page, Session& session,
                                       QWidget* parent)
    : InstDlg("InstDlgLicenseInfo", &section::DialogBoxes::LicenseInfoDlg, page.title, {}, session,
              parent)
{
    Named(NAMED(sLicenseText), new RunningText(Shown(page.license), "Licensavtal"));
    sLicenseText->LieOnPaper();
    Paragraph(NAMED(sFootText), page.footText, "Fottext", PageLayout::kMaxFootTextHeight);
    sFootText->setVisible(!page.footText.empty());
    ArrangePage(VBox({Growing(sLicenseText), sFootText}), Buttons::YesNo);
}

void ShowInstDlgLicenseInfo(Session& session, const LicensePreview& page, QWidget* parent)
{
    InstDlgLicenseInfo(page, session, parent).ShowModal();
}

} // namespace quillon
