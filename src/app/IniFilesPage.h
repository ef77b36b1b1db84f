// The tab "INI-filer".
#pragma once

#include "shell/session.h"
#include "ui/Page.h"

namespace quillon {

class IniFilesPage : public Page {
public:
    explicit IniFilesPage(Session& session);

    void ShowSession() override;

private:
    Session& session_;
};

} // namespace quillon
