// A text that is shown and not edited: it can be selected, copied and scrolled.
#pragma once

#include "ui/kit/form_kit.h"

class QLineEdit;

namespace quillon {

/// On the form's own background, without a frame. The keyboard reaches it by Tab.
QLineEdit* ShownField(QLineEdit*& member, const char* name, const Text& text);

/// Shows another text, from its beginning.
void ShowText(QLineEdit* field, const Text& text);

} // namespace quillon
