// The question for one line of text.
#pragma once

#include "ui/Form.h"

namespace quillon {

class XInputBox : public Form {
public:
    XInputBox(const Text& title, const Text& prompt, QWidget* parent);

    /// What was typed, once the form was left with OK.
    Text Input;
    QLineEdit* tInput = nullptr;
};

} // namespace quillon
