// How a setup that unpacks itself does so, and the program that it runs. The values go to the
// project when the dialog that opened this one is left with OK, too.
#pragma once

#include "actions/install_options.h"
#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

class PathLabel;

class DlgInstallOptInternetAdv : public EditorForm {
public:
    /// Shows and, on OK, sets the values.
    DlgInstallOptInternetAdv(InternetAdvanced& values, Session& session, QWidget* parent);

    QCheckBox* cADExpandEXEInWinTempMap = nullptr;
    PathLabel* sProgramFilename = nullptr;
    QPushButton* cmdSelectProgram = nullptr;
    QPushButton* cmdReset = nullptr;
    QLineEdit* tParam = nullptr;
    QRadioButton* oVisible = nullptr;
    QRadioButton* oInvisible = nullptr;
    QLineEdit* tReturnValueExit = nullptr;
    QLineEdit* tReturnValueBack = nullptr;
    QLineEdit* tReturnValueDD = nullptr;
    QPushButton* CmdSelRegKey = nullptr;
    QLabel* sProgramWarning = nullptr;

protected:
    void Store() override;

private:
    Piece ProgramFrame();
    Piece ReturnValuesFrame();
    void SelectProgram();
    void SelectRegKey();
    void Reset();
    void ShowProgram();
    void ShowWarning();

    InternetAdvanced& values_;
    InternetAdvanced edited_;
};

} // namespace quillon
