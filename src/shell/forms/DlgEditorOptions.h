// The options of the tool. They are no part of a project, so they mark none changed.
#pragma once

#include "shell/main_window.h"
#include "ui/kit/Form.h"

class QTabWidget;

namespace quillon {

class DlgEditorOptions : public Form {
public:
    explicit DlgEditorOptions(Session& session, QWidget* parent = nullptr);

    QTabWidget* tabOptions = nullptr;
    QCheckBox* cShowAlsoSourcePathInFileList = nullptr;
    QCheckBox* cFileListShowGridLines = nullptr;
    QCheckBox* cOldStyleAddDialogBox = nullptr;
    QCheckBox* cHideRegistry = nullptr;
    QCheckBox* cHideINIFiles = nullptr;
    QCheckBox* cHideComponents = nullptr;
    QComboBox* cbCBarsStyle = nullptr;
    QCheckBox* cUpdateSetupDateTime = nullptr;
    QCheckBox* cPlaceCompressedFilesInFolderSetupFiles = nullptr;
    QCheckBox* cCreateFolderStructureInFolderSetupFiles = nullptr;
    QCheckBox* cUseTempZipPath = nullptr;
    QCheckBox* cCreateZipLogFile = nullptr;

private:
    QWidget* FileListTab(Session& session);
    QWidget* WindowTab(Session& session);
    QWidget* CreateTab(Session& session);
    void TurnOnOffSetupFilesOpt2();
};

/// Shows the form, and what it changed in the window at once.
void ShowEditorOptions(Session& session, MainWindow& window, QWidget* parent);

} // namespace quillon
