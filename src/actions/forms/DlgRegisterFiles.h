// The files that the setup registers, a path a line, typed or gathered from the file list.
#pragma once

#include "actions/after_install.h"
#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

class DlgRegisterFiles : public EditorForm {
public:
    DlgRegisterFiles(Session& session, QWidget* parent);

    QPlainTextEdit* tRegFileList = nullptr;
    QLabel* sRegFileListWarning = nullptr;
    QPushButton* cmdGetRFiles = nullptr;
    QPushButton* cmdGetDllFiles = nullptr;
    QPushButton* cmdHelp = nullptr;

private:
    void Gather(RowsToRegister which);
};

void ShowRegisterFiles(Session& session, QWidget* parent);

} // namespace quillon
