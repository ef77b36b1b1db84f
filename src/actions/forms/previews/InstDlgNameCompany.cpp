#include "actions/forms/previews/InstDlgNameCompany.h"

#include "formats/page_layout.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/controls/RunningText.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::LicenseData;

constexpr const char* kAsksName = "Skriv in ditt namn och företag.";
constexpr const char* kAsksAddress = "Skriv in ditt namn, företag och adressuppgifter.";

/// A field that the end user may fill in, with what the project proposes.
QLineEdit* UserField(QLineEdit*& member, const char* name, Text LicenseData::*field,
                     const Session& session)
{
    Named(member, name, new QLineEdit(ToQt(session.project.LicenseData.*field)));
    LimitTyping(member, MaxTextLength(field));
    return member;
}

} // namespace

InstDlgNameCompany::InstDlgNameCompany(const NameCompanyPreview& page, Session& session,
                                       QWidget* parent)
    : InstDlg("InstDlgNameCompany", &section::DialogBoxes::NameCompanyDlg, "Registrering",
              page.bitmap, session, parent)
{
    Paragraph(NAMED(sText), page.asksAddress ? kAsksAddress : kAsksName, "Text",
              PageLayout::kMaxTextHeight);
    ArrangePage(VBox({sText, page.asksAddress ? AddressFields() : NameFields(), Stretch()}));
    if (page.takesRegisteredOwner)
        TakeRegisteredOwner();
    tUserName->setFocus();
}

Piece InstDlgNameCompany::NameFields()
{
    return Fields({
        {"Na&mn:", UserField(NAMED(tUserName), &LicenseData::UserName, session_)},
        {"&Företag:", UserField(NAMED(tUserCompany), &LicenseData::UserCompany, session_)},
    });
}

Piece InstDlgNameCompany::AddressFields()
{
    return Fields({
        {"Na&mn:", UserField(NAMED(tUserName), &LicenseData::UserName, session_)},
        {"&Företag:", UserField(NAMED(tUserCompany), &LicenseData::UserCompany, session_)},
        {"&Adress:", UserField(NAMED(tUserAddress), &LicenseData::UserAddress, session_)},
        {"&Telefon:", UserField(NAMED(tUserPhone), &LicenseData::UserPhone, session_)},
        {"Fa&x:", UserField(NAMED(tUserFax), &LicenseData::UserFax, session_)},
        {"&E-post:", UserField(NAMED(tUseremail), &LicenseData::Useremail, session_)},
    });
}

/// What the machine does not know stays as the project proposes it.
void InstDlgNameCompany::TakeRegisteredOwner()
{
    const RegisteredOwner owner = session_.host.machine.GetWindowsRegisteredOwner();
    if (!owner.owner.empty())
        tUserName->setText(ToQt(owner.owner));
    if (!owner.organization.empty())
        tUserCompany->setText(ToQt(owner.organization));
}

void ShowInstDlgNameCompany(Session& session, const NameCompanyPreview& page, QWidget* parent)
{
    InstDlgNameCompany(page, session, parent).ShowModal();
}

} // namespace quillon
