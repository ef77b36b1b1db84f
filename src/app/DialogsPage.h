// The tab "Dialogrutor".
#pragma once

#include "shell/session.h"
#include "ui/Page.h"

namespace quillon {

class DialogsPage : public Page {
public:
    explicit DialogsPage(Session& session);

    void ShowSession() override;

private:
    Session& session_;
};

} // namespace quillon
