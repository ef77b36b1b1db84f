// Shows which files of a wizard's setup list the file list still lacks. It adds nothing itself.
#pragma once

#include "ui/kit/Form.h"

class QListWidget;

namespace quillon {

class PathLabel;

class DlgCompareLstFile : public Form {
public:
    explicit DlgCompareLstFile(Session& session, QWidget* parent = nullptr);

    PathLabel* sLSTFileName = nullptr;
    QListWidget* ListOfFiles = nullptr;
    QPushButton* CmdSelectLstFile = nullptr;
    QPushButton* CmdHelp = nullptr;
    QPushButton* cmdClose = nullptr;

private:
    void SelectLstFile();
    void Compare(const Text& lstFile);

    Session& session_;
};

void ShowCompareLstFile(Session& session, QWidget* parent);

} // namespace quillon
