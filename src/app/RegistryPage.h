// The tab "Registry".
#pragma once

#include "shell/session.h"
#include "ui/Page.h"

namespace quillon {

class RegistryPage : public Page {
public:
    explicit RegistryPage(Session& session);

    void ShowSession() override;

private:
    Session& session_;
};

} // namespace quillon
