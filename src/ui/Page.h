// One tab of the main window. A page shows a part of the session, writes edits straight back to it,
// and is told when to show it anew.
#pragma once

#include "ui/form_kit.h"

#include <QWidget>

namespace quillon {

class Page : public QWidget {
public:
    using QWidget::QWidget;

    /// Brings every control in line with the session. It changes nothing, so it marks nothing
    /// changed.
    virtual void ShowSession() = 0;
};

} // namespace quillon
