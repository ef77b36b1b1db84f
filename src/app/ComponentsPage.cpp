#include "app/ComponentsPage.h"

#include <QtWidgets>

namespace quillon {

ComponentsPage::ComponentsPage(Session& session) : session_(session)
{
    setObjectName("ComponentsPage");
}

void ComponentsPage::ShowSession() {}

} // namespace quillon
