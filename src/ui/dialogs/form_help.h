// What the controls of a form are for: said once, beside the control, and shown as its tool tip, by
// Shift+F1 ("What's this?") and in the form's help.
#pragma once

#include "ui/kit/Form.h"

#include <vector>

namespace quillon {

class RunningText;

/// Says what a widget is for. A form that has a "What's this?" text too begins its help with it.
template <class Widget>
Widget* Explained(Widget* widget, const Text& text)
{
    const QString shown = QString::fromStdString(text);
    widget->setToolTip(shown);
    widget->setWhatsThis(shown);
    return widget;
}

struct HelpTopic {
    Text caption;
    Text text;

    bool operator==(const HelpTopic&) const = default;
};

/// The form, then each of its controls that has been explained, in the order of the Tab key.
std::vector<HelpTopic> HelpTopicsOf(const QWidget& form);

/// The help of a form, to be read beside it.
class DlgFormHelp : public Form {
public:
    DlgFormHelp(const QWidget& form, QWidget* parent);

    RunningText* tHelp = nullptr;
};

} // namespace quillon
