// The page that registers the end user: name and company, and the address where it is wanted.
#pragma once

#include "actions/forms/previews/InstDlg.h"
#include "actions/forms/previews/previews.h"

namespace quillon {

class InstDlgNameCompany : public InstDlg {
public:
    InstDlgNameCompany(const NameCompanyPreview& page, Session& session, QWidget* parent);

    RunningText* sText = nullptr;
    QLineEdit* tUserName = nullptr;
    QLineEdit* tUserCompany = nullptr;
    // Only where the address is asked for.
    QLineEdit* tUserAddress = nullptr;
    QLineEdit* tUserPhone = nullptr;
    QLineEdit* tUserFax = nullptr;
    QLineEdit* tUseremail = nullptr;

private:
    Piece NameFields();
    Piece AddressFields();
    void TakeRegisteredOwner();
};

} // namespace quillon
