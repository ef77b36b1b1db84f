#include "app/FilesPage.h"

#include <QtWidgets>

namespace quillon {

FilesPage::FilesPage(Session& session) : session_(session)
{
    setObjectName("FilesPage");
}

void FilesPage::ShowSession() {}

} // namespace quillon
