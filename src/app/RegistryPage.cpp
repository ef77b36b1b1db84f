#include "app/RegistryPage.h"

#include <QtWidgets>

namespace quillon {

RegistryPage::RegistryPage(Session& session) : session_(session)
{
    setObjectName("RegistryPage");
}

void RegistryPage::ShowSession() {}

} // namespace quillon
