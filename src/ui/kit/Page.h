// One tab of the main window. A page shows a part of the session, writes edits straight back to it,
// and is called when it has to show the session again.
#pragma once

#include "ui/kit/form_kit.h"

#include <QWidget>
#include <functional>

class QPlainTextEdit;
class QPushButton;

namespace quillon {

class Page : public QWidget {
public:
    using QWidget::QWidget;

    /// Brings every control in line with the session. It changes nothing, so it marks nothing
    /// changed.
    virtual void ShowSession() = 0;

    /// The text that copy and paste are about; null on a page that has none.
    virtual QPlainTextEdit* Editor() { return nullptr; }

protected:
    /// A button that has nothing to run is disabled.
    QPushButton* Button(QPushButton*& member, const char* name, const Text& caption,
                        std::function<void()> press = {});
};

} // namespace quillon
