// The question for one line of text.
#pragma once

#include "ui/kit/Form.h"

#include <optional>

namespace quillon {

class XInputBox : public Form {
public:
    XInputBox(const Text& title, const Text& prompt, QWidget* parent);

    /// What was typed, once the form was left with OK.
    Text Input;
    QLineEdit* tInput = nullptr;
};

/// A line that is not shown while it is typed; nothing where the user cancels.
std::optional<Text> AskPassword(const Text& title, const Text& prompt, QWidget* parent);

} // namespace quillon
