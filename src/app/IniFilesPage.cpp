#include "app/IniFilesPage.h"

#include <QtWidgets>

namespace quillon {

IniFilesPage::IniFilesPage(Session& session) : session_(session)
{
    setObjectName("IniFilesPage");
}

void IniFilesPage::ShowSession() {}

} // namespace quillon
