// The tab "Fillista".
#pragma once

#include "shell/session.h"
#include "ui/Page.h"

namespace quillon {

class FilesPage : public Page {
public:
    explicit FilesPage(Session& session);

    void ShowSession() override;

private:
    Session& session_;
};

} // namespace quillon
