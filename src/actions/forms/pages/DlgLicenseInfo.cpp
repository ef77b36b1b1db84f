#include "actions/forms/pages/DlgLicenseInfo.h"

#include "actions/forms/previews/previews.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::DialogBoxData;

constexpr int kLineCharacters = 80;

} // namespace

DlgLicenseInfo::DlgLicenseInfo(Session& session, QWidget* parent)
    : PageEditor("DlgLicenseInfo", &section::DialogBoxes::LicenseInfoDlg, session, parent)
{
    Arrange(VBox({
        Above("&Titel:", Line(NAMED(tDialogTitle), &DialogBoxData::LicenseTitle)),
        Growing(Above(
            "&Avtalets text:",
            MinWidth(kLineCharacters, Lines(NAMED(tLicenseText), &DialogBoxData::LicenseText)))),
        Above("Text &under avtalet:", Line(NAMED(tFootText), &DialogBoxData::LicenseFootText)),
        Ending([this] { Test(); }),
    }));
    tDialogTitle->setFocus();
}

void DlgLicenseInfo::Test()
{
    ShowInstDlgLicenseInfo(session_,
                           {.title = FromQt(tDialogTitle->text()),
                            .license = LinesFromQt(TypedText(tLicenseText)),
                            .footText = FromQt(tFootText->text())},
                           this);
}

} // namespace quillon
