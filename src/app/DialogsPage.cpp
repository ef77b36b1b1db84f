#include "app/DialogsPage.h"

#include <QtWidgets>

namespace quillon {

DialogsPage::DialogsPage(Session& session) : session_(session)
{
    setObjectName("DialogsPage");
}

void DialogsPage::ShowSession() {}

} // namespace quillon
