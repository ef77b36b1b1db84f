// A button that shows a colour and lets the user choose another.
#pragma once

#include "helpers/number_text.h"

#include <QPushButton>
#include <functional>

namespace quillon {

class Ask;

class ColourButton : public QPushButton {
public:
    /// `onChoice` runs after each choice, not after `SetColour`.
    ColourButton(const Text& caption, Ask& ask, std::function<void()> onChoice = {});

    /// 0x00BBGGRR, as records have it.
    void SetColour(Long colour);
    Long GetColour() const { return colour_; }

private:
    void Choose();

    Ask& ask_;
    std::function<void()> onChoice_;
    Long colour_ = 0;
};

} // namespace quillon
