// Plain windows are laid out for a display of normal size. The setup's manifest says that it scales
// its windows itself, so on other displays Windows leaves them as small as they are.
#pragma once

#include "runtime/win32/page_letters.h"

namespace quillon {

class WindowScale {
public:
    /// Makes the window with its controls as large as its display asks for, in the system's own
    /// letters, and keeps it in the middle of where it was. Outlives the window.
    explicit WindowScale(HWND window);

private:
    const PageLetters letters_;
};

} // namespace quillon
