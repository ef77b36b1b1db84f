// The scripts that the setup runs before and after it copies files.
#pragma once

#include "ui/kit/Form.h"

class QLabel;
class QTabWidget;

namespace quillon {

class DlgRunScript : public EditorForm {
public:
    DlgRunScript(Session& session, QWidget* parent);

    QTabWidget* ScriptTab = nullptr;
    QPlainTextEdit* tRunScriptBefore = nullptr;
    QLabel* sRunScriptBeforeWarning = nullptr;
    QPlainTextEdit* tRunScriptAfter = nullptr;
    QLabel* sRunScriptAfterWarning = nullptr;
    QPushButton* cmdHelp = nullptr;
};

void ShowRunScript(Session& session, QWidget* parent);

} // namespace quillon
