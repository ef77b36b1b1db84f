// The editor of the page that asks for the end user's name and company.
#pragma once

#include "actions/forms/pages/PageEditor.h"

namespace quillon {

class DlgNameCompany : public PageEditor {
public:
    DlgNameCompany(Session& session, QWidget* parent);

    QCheckBox* cExtendedInfo = nullptr;
    QCheckBox* cGetNameCompanyFromRegistry = nullptr;

private:
    void Test();

    Text bitmap_;
};

} // namespace quillon
