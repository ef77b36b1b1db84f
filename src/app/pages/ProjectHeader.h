// Name and main folder of the project, above the file list.
#pragma once

#include "shell/session.h"
#include "ui/kit/Page.h"

class QLineEdit;

namespace quillon {

class ProjectHeader : public Page {
public:
    explicit ProjectHeader(Session& session);

    void ShowSession() override;

private:
    void LeaveDestinationDirectory();

    Session& session_;
    QLineEdit* tProjectName = nullptr;
    QLineEdit* tDestinationDirectory = nullptr;
};

} // namespace quillon
