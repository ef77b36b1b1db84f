// The one-time offer to make a folder for projects in My Documents.
#pragma once

#include "ui/Form.h"

class QLabel;

namespace quillon {

class DlgCreateFoldersAtMyDoc : public Form {
public:
    explicit DlgCreateFoldersAtMyDoc(Session& session, QWidget* parent = nullptr);

    QLabel* lFolder = nullptr;
    QPushButton* CmdYes = nullptr;
    QPushButton* CmdNo = nullptr;

    /// Esc and the window's close button answer No.
    void reject() override;

private:
    Session& session_;
};

void OfferProjectsFolder(Session& session, QWidget* parent);

} // namespace quillon
