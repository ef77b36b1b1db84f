#include "actions/forms/pages/DlgNameCompany.h"

#include "actions/forms/pages/PictureChoice.h"
#include "actions/forms/previews/previews.h"

#include <QtWidgets>

namespace quillon {

using section::DialogBoxData;

DlgNameCompany::DlgNameCompany(Session& session, QWidget* parent)
    : PageEditor("DlgNameCompany", &section::DialogBoxes::NameCompanyDlg, session, parent)
{
    Check(NAMED(cExtendedInfo), "Fråga även efter &adressuppgifter", data_.NameCompanyExtendedInfo);
    Check(NAMED(cGetNameCompanyFromRegistry),
          "&Hämta namn och företag från den installerande datorns Registry",
          data_.GetNameCompanyFromRegistry);
    Arrange(VBox({
        Frame("Uppgifter om användaren", {cExtendedInfo, cGetNameCompanyFromRegistry}),
        Growing(OwnPicture(&DialogBoxData::NameCompanyDlgBitmap, bitmap_)),
        Ending([this] { Test(); }),
    }));
    cExtendedInfo->setFocus();
}

void DlgNameCompany::Test()
{
    ShowInstDlgNameCompany(session_,
                           {.asksAddress = cExtendedInfo->isChecked(),
                            .takesRegisteredOwner = cGetNameCompanyFromRegistry->isChecked(),
                            .bitmap = bitmap_},
                           this);
}

} // namespace quillon
