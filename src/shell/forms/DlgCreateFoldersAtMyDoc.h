// The one-time offer to make a folder for projects in My Documents.
#pragma once

#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

class DlgCreateFoldersAtMyDoc : public Form {
public:
    /// `hostFolder` is where the folder is on a machine without Windows' paths, or empty.
    explicit DlgCreateFoldersAtMyDoc(Session& session, QWidget* parent = nullptr,
                                     const Text& hostFolder = {});

    QLabel* lFolder = nullptr;
    QLabel* lHostFolder = nullptr; // null where the path above is the true one
    QPushButton* CmdYes = nullptr;
    QPushButton* CmdNo = nullptr;

    /// Esc and the window's close button answer No.
    void reject() override;

private:
    QLabel* PathInSight(QLabel*& member, const char* name, const Text& path);

    Session& session_;
};

void OfferProjectsFolder(Session& session, const Text& hostFolder, QWidget* parent);

} // namespace quillon
