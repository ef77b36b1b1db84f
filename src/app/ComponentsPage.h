// The tab "Komponenter".
#pragma once

#include "shell/session.h"
#include "ui/Page.h"

namespace quillon {

class ComponentsPage : public Page {
public:
    explicit ComponentsPage(Session& session);

    void ShowSession() override;

private:
    Session& session_;
};

} // namespace quillon
