#include "shell/forms/DlgVersionInfo.h"

#include "project/text_limits.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::Version;

} // namespace

DlgVersionInfo::DlgVersionInfo(Session& session, QWidget* parent)
    : EditorForm("DlgVersionInfo", "Versionsinformation", session, parent)
{
    Version& version = session.project.Version;
    Arrange(VBox({
        Fields({
            {"&Företagsnamn:", MinWidth(45, Field(NAMED(tVerOrganization), version.CompanyName,
                                                  MaxTextLength(&Version::CompanyName)))},
            {"&Produktnamn:", Field(NAMED(tVerProductName), version.ProductName,
                                    MaxTextLength(&Version::ProductName))},
            {"&Beskrivning:", Field(NAMED(tVerDescription), version.Description,
                                    MaxTextLength(&Version::Description))},
            {"&Versionsnummer:", Field(NAMED(tVerProductVersion), version.ProductVersion,
                                       MaxTextLength(&Version::ProductVersion))},
            {"&Kommentar:",
             Field(NAMED(tVerComments), version.Comments, MaxTextLength(&Version::Comments))},
        }),
        Stretch(),
        OkCancel(),
    }));
}

void ShowVersionInfo(Session& session, QWidget* parent)
{
    DlgVersionInfo(session, parent).ShowModal();
}

} // namespace quillon
