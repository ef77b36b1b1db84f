// The editor of the agreement page that shows an RTF document, which travels in the package.
#pragma once

#include "actions/forms/pages/PageEditor.h"

class QLabel;

namespace quillon {

class PathLabel;

class DlgLicenseInfoRtf : public PageEditor {
public:
    DlgLicenseInfoRtf(Session& session, QWidget* parent);

    QLineEdit* tDialogTitle = nullptr;
    QLineEdit* tFootText = nullptr;
    PathLabel* labRtfFilename = nullptr;
    // Says why there is no document to show.
    QLabel* sRtfNote = nullptr;
    QPushButton* CmdSelectRtfFile = nullptr;
    QPushButton* CmdOpenRtfFile = nullptr;
    QPushButton* CmdDel = nullptr;

private:
    QWidget* DocumentFrame();
    void UseDocument(const Text& path);
    void Test();

    Text document_;
};

} // namespace quillon
