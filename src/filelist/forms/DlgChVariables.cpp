#include "filelist/forms/DlgChVariables.h"

#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::LicenseData;
using section::RegPrivateVar;
using section::Version;

constexpr int kFieldCharacters = 36;

} // namespace

DlgChVariables::DlgChVariables(Session& session, QWidget* parent)
    : EditorForm("DlgChVariables", "Ändra variabler", session, parent)
{
    Arrange(VBox({
        HBox({Growing(VersionFrames()), Growing(VBox({UserFrame(), OwnFrames(), Stretch()}))}),
        Stretch(),
        OkCancel(),
    }));
}

QLineEdit* DlgChVariables::VersionField(QLineEdit*& member, const char* name, Text Version::*field)
{
    return Field(member, name, session_.project.Version.*field, MaxTextLength(field));
}

QLineEdit* DlgChVariables::UserField(QLineEdit*& member, const char* name, Text LicenseData::*field)
{
    return Field(member, name, session_.project.LicenseData.*field, MaxTextLength(field));
}

QLineEdit* DlgChVariables::OwnField(QLineEdit*& member, const char* name,
                                    Text RegPrivateVar::*field)
{
    return Field(member, name, session_.project.RegPrivateVar.*field, MaxTextLength(field));
}

Piece DlgChVariables::VersionFrames()
{
    VersionField(NAMED(tVerXProductVersion), &Version::XProductVersionFName);
    Button(NAMED(CmdSelFile), "&Välj fil...", [this] { SelectFile(); });
    Button(NAMED(CmdClearField), "&Rensa", [this] { tVerXProductVersion->clear(); });
    return VBox({
        Frame(" Företagsnamn ", {MinWidth(kFieldCharacters, VersionField(NAMED(tVerOrganization),
                                                                         &Version::CompanyName))}),
        Frame(" Produktnamn ", {VersionField(NAMED(tVerProductName), &Version::ProductName)}),
        Frame(" Produkt, versionsnummer",
              {VersionField(NAMED(tVerProductVersion), &Version::ProductVersion)}),
        Frame(" Produkt, versionsnummer (hämtas från fil) ",
              {tVerXProductVersion, HBox({Stretch(), CmdSelFile, CmdClearField})}),
        Stretch(),
    });
}

Piece DlgChVariables::UserFrame()
{
    return Frame(
        "Licensuppgifter (användarens namn && företag)",
        {Fields({
            {"&Företag:",
             MinWidth(kFieldCharacters, UserField(NAMED(tUserCompany), &LicenseData::UserCompany))},
            {"&Namn:", UserField(NAMED(tUserName), &LicenseData::UserName)},
            {"&Adress:", UserField(NAMED(tUserAddress), &LicenseData::UserAddress)},
            {"&Telefon:", UserField(NAMED(tUserPhone), &LicenseData::UserPhone)},
            {"Fa&x:", UserField(NAMED(tUserFax), &LicenseData::UserFax)},
            {"&E-post:", UserField(NAMED(tUseremail), &LicenseData::Useremail)},
        })});
}

Piece DlgChVariables::OwnFrames()
{
    return VBox({
        Frame(" Egen variabel 1 ", {OwnField(NAMED(tReg1), &RegPrivateVar::Reg1)}),
        Frame(" Egen variabel 2 ", {OwnField(NAMED(tReg2), &RegPrivateVar::Reg2)}),
        Frame(" Egen variabel 3 ", {OwnField(NAMED(tReg3), &RegPrivateVar::Reg3)}),
    });
}

void DlgChVariables::SelectFile()
{
    const auto path =
        session_.ask.OpenFile({.title = "Välj fil",
                               .folder = "c:\\",
                               .filter = "Binära filer (*.dll;*.ocx;*.exe)|*.dll;*.ocx;*.exe"});
    if (!path)
        return;
    // The field would cut it, and name another file.
    if (ToQt(*path).size() > tVerXProductVersion->maxLength())
        session_.ask.Inform("Ogiltig fil", "Sökvägen '" + *path + "' är längre än " +
                                               NumberText(tVerXProductVersion->maxLength()) +
                                               " tecken!");
    else
        tVerXProductVersion->setText(ToQt(*path));
}

} // namespace quillon
