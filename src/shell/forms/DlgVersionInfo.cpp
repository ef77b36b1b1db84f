#include "shell/forms/DlgVersionInfo.h"

#include "project/install_keys.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::Version;

int Longest(Text Version::*field)
{
    return LongestText(section::kVersion, field);
}

} // namespace

DlgVersionInfo::DlgVersionInfo(Session& session, QWidget* parent)
    : EditorForm("DlgVersionInfo", "Versionsinformation", session, parent)
{
    Version& version = session.project.Version;
    Arrange(VBox({
        Fields({
            {"&Företagsnamn:", MinWidth(45, Field(NAMED(tVerOrganization), version.CompanyName,
                                                  Longest(&Version::CompanyName)))},
            {"&Produktnamn:",
             Field(NAMED(tVerProductName), version.ProductName, Longest(&Version::ProductName))},
            {"&Beskrivning:",
             Field(NAMED(tVerDescription), version.Description, Longest(&Version::Description))},
            {"&Versionsnummer:", Field(NAMED(tVerProductVersion), version.ProductVersion,
                                       Longest(&Version::ProductVersion))},
            {"&Kommentar:",
             Field(NAMED(tVerComments), version.Comments, Longest(&Version::Comments))},
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
