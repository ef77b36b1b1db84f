// The test run: what it does in a few words, and the button that starts it.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

class DlgTest : public Form {
public:
    DlgTest(Session& session, QWidget* parent);

    void StartSimulation();

    QPushButton* cmdStartTest = nullptr;

private:
    Session& session_;
};

/// The command that tries the setup.
void ShowTest(Session& session, QWidget* parent);
/// The command that shows the setup's background.
void ShowDesignPreview(Session& session);

} // namespace quillon
