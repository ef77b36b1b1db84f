// The tab "Design".
#pragma once

#include "shell/session.h"
#include "ui/Page.h"

namespace quillon {

class DesignPage : public Page {
public:
    explicit DesignPage(Session& session);

    void ShowSession() override;

private:
    Session& session_;
};

} // namespace quillon
