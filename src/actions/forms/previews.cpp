#include "actions/forms/previews.h"

namespace quillon {

void ShowInstDlgGeneral(Session&, const GeneralPreview&, QWidget*) {}
void ShowInstDlgLicenseInfo(Session&, const LicensePreview&, QWidget*) {}
void ShowInstDlgLicenseInfoRtf(Session&, const LicensePreview&, QWidget*) {}
void ShowInstDlgPassword(Session&, const Text&, QWidget*) {}
void ShowInstDlgNameCompany(Session&, const NameCompanyPreview&, QWidget*) {}
void ShowInstDlgDestDir(Session&, const DiskSpacePreview&, QWidget*) {}
void ShowInstDlgDestDrive(Session&, const DiskSpacePreview&, QWidget*) {}

} // namespace quillon
