// The editor of the five pages that have a title, a text and a picture; its caption is the page's
// name.
#pragma once

#include "actions/forms/pages/PageEditor.h"
#include "actions/general_pages.h"

namespace quillon {

class DlgGeneral : public PageEditor {
public:
    DlgGeneral(const GeneralPage& page, Session& session, QWidget* parent);

    QLineEdit* tDialogTitle = nullptr;
    QPlainTextEdit* tDialogText = nullptr;

private:
    void Test();

    DialogSwitch page_;
    Text bitmap_;
};

} // namespace quillon
