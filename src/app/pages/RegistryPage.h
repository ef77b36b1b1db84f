// The tab "Registry": the registry changes of the setup as one free text.
#pragma once

#include "shell/session.h"
#include "ui/kit/Page.h"

class QLabel;

namespace quillon {

class RegistryPage : public Page {
public:
    explicit RegistryPage(Session& session);

    void ShowSession() override;
    QPlainTextEdit* Editor() override { return editRegistryList; }

private:
    Piece Buttons();
    template <class Dialog>
    void AddLine();
    void AddVariable();
    void ShowWarning();

    Session& session_;
    QPlainTextEdit* editRegistryList = nullptr;
    QLabel* sRegistryWarning = nullptr;
    QPushButton* cmdAddRegistryKey = nullptr;
    QPushButton* cmdDeleteRegistryKey = nullptr;
    QPushButton* cmdUninstallRegistryKey = nullptr;
    QPushButton* cmdVariables1 = nullptr;
};

} // namespace quillon
