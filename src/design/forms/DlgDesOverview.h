// Every file that the design uses, with its size.
#pragma once

#include "ui/kit/Form.h"

class QTreeWidget;

namespace quillon {

class DlgDesOverview : public EditorForm {
public:
    DlgDesOverview(Session& session, QWidget* parent);

    QTreeWidget* ListViewOverview = nullptr;

protected:
    // It shows and changes nothing, so OK marks nothing changed.
    void Store() override {}
};

} // namespace quillon
