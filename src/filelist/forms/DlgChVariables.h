// The values that the project gives its variables.
#pragma once

#include "project/records.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgChVariables : public EditorForm {
public:
    DlgChVariables(Session& session, QWidget* parent);

    QLineEdit* tVerOrganization = nullptr;
    QLineEdit* tVerProductName = nullptr;
    QLineEdit* tVerProductVersion = nullptr;
    QLineEdit* tVerXProductVersion = nullptr;
    QPushButton* CmdSelFile = nullptr;
    QPushButton* CmdClearField = nullptr;
    QLineEdit* tUserCompany = nullptr;
    QLineEdit* tUserName = nullptr;
    QLineEdit* tUserAddress = nullptr;
    QLineEdit* tUserPhone = nullptr;
    QLineEdit* tUserFax = nullptr;
    QLineEdit* tUseremail = nullptr;
    QLineEdit* tReg1 = nullptr;
    QLineEdit* tReg2 = nullptr;
    QLineEdit* tReg3 = nullptr;

private:
    QLineEdit* VersionField(QLineEdit*& member, const char* name, Text section::Version::*field);
    QLineEdit* UserField(QLineEdit*& member, const char* name, Text section::LicenseData::*field);
    QLineEdit* OwnField(QLineEdit*& member, const char* name, Text section::RegPrivateVar::*field);
    Piece VersionFrames();
    Piece UserFrame();
    Piece OwnFrames();
    void SelectFile();
};

} // namespace quillon
