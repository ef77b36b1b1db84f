// The options of the setup as a whole, on four tabs.
#pragma once

#include "actions/forms/NetFrameworkForm.h"
#include "actions/install_options.h"

#include <array>

class QTabWidget;

namespace quillon {

class DlgInstallOptions : public NetFrameworkForm {
public:
    DlgInstallOptions(Session& session, QWidget* parent);

    QTabWidget* XTab = nullptr;

    QComboBox* ComboSetupFilename = nullptr;
    QComboBox* ComboRestartOption = nullptr;
    QRadioButton* oDelOldGroup = nullptr;
    QRadioButton* oDoNotDelOldGroup = nullptr;
    QCheckBox* cUninstallSupport = nullptr;
    QCheckBox* cCreateUninstallIcon = nullptr;
    QCheckBox* cCreateAutorunFile = nullptr;
    QCheckBox* cDontInstallSysFilesOnNewWin = nullptr;
    QCheckBox* cExpandVariablesInRegistryKeys = nullptr;
    QCheckBox* cExpandVariablesInDialogBoxes = nullptr;

    QRadioButton* oWarnIfWrongOS = nullptr;
    QRadioButton* oStopIfWrongOS = nullptr;

    QLineEdit* tSelfExtractFilename = nullptr;
    QLineEdit* tSelfExtractIconFilename = nullptr;
    QPushButton* cmdBrowseIcon = nullptr;
    QPushButton* CmdInternetAdvanced = nullptr;

    QCheckBox* cUseSign = nullptr;
    QLineEdit* tDesc = nullptr;
    QLineEdit* tURL = nullptr;
    QLineEdit* tSPC = nullptr;
    QPushButton* cmdBrowseSPC = nullptr;
    QLineEdit* tPVK = nullptr;
    QPushButton* cmdBrowsePVK = nullptr;
    QComboBox* ComboTimeStamp = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    QWidget* GeneralTab();
    Piece UninstallFrame();
    Piece OtherFrame();
    QWidget* SystemTab();
    Piece TargetSystemFrame();
    QWidget* InternetTab();
    QWidget* SignTab();

    void MakeSetupNames();
    void MakeRestartOptions();
    QCheckBox* CheckText(QCheckBox*& member, const char* name, const Text& caption, Text& value);
    QPushButton* BrowseButton(QPushButton*& member, const char* name, const Text& caption,
                              QLineEdit*& field, int maxLength, const FileQuestion& question);
    void Browse(QLineEdit& field, int maxLength, const FileQuestion& question);

    section::InstallOptions ShownUninstall() const;
    void ShowUninstall(const section::InstallOptions& options);
    void ClickSystem(std::size_t clicked);
    void LeaveSelfExtractFilename();
    void ReturnToSelfExtractFilename();
    void GatherSigning();
    void EnableSigning();
    void FocusTab(int tab);

    InternetAdvanced advanced_;
    std::array<QCheckBox*, kTargetSystems.size()> systems_{}; // in the order of kTargetSystems
    std::vector<QWidget*> signing_;                           // what only a signature needs
    QWidget* internetTab_ = nullptr;
    // Set while the focus goes back to a file name that was refused when its field was left.
    bool isReturning_ = false;
};

void ShowInstallOptions(Session& session, QWidget* parent);

} // namespace quillon
