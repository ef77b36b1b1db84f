// The pages of the setup in small, as the end user will see them: what the editors of the pages
// show on `cmdTest`. They are filled from an editor's current fields; closing one has no
// effect on anything.
#pragma once

#include "actions/dialog_chain.h"

class QWidget;

namespace quillon {

struct Session;

// Each shows a form of its own name, modally over `parent`. A picture is the path of a bitmap; a
// page without one of its own shows the project's shared picture.

struct GeneralPreview {
    Text title;
    Text text;
    Text bitmap;
    DialogSwitch page = &section::DialogBoxes::GeneralInfoDlg;
};
void ShowInstDlgGeneral(Session& session, const GeneralPreview& page, QWidget* parent);

struct LicensePreview {
    Text title;
    Text license; // the agreement itself, or the path of its RTF file
    Text footText;
};
void ShowInstDlgLicenseInfo(Session& session, const LicensePreview& page, QWidget* parent);
void ShowInstDlgLicenseInfoRtf(Session& session, const LicensePreview& page, QWidget* parent);

void ShowInstDlgPassword(Session& session, const Text& prompt, QWidget* parent);

struct NameCompanyPreview {
    bool asksAddress = false;
    bool takesRegisteredOwner = false;
    Text bitmap;
};
void ShowInstDlgNameCompany(Session& session, const NameCompanyPreview& page, QWidget* parent);

struct DiskSpacePreview {
    bool showsSpace = false;
    bool hasSpaceButton = false;
};
void ShowInstDlgDestDir(Session& session, const DiskSpacePreview& page, QWidget* parent);
void ShowInstDlgDestDrive(Session& session, const DiskSpacePreview& page, QWidget* parent);

} // namespace quillon
