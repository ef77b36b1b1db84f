#include "app/DesignPage.h"

#include <QtWidgets>

namespace quillon {

DesignPage::DesignPage(Session& session) : session_(session)
{
    setObjectName("DesignPage");
}

void DesignPage::ShowSession() {}

} // namespace quillon
