// Plain windows are laid out for a display of normal size. The setup's manifest says that it scales
// its windows itself, so on other displays Windows leaves them as small as they are.
#pragma once

#include "runtime/win32/windows/page_letters.h"

#include <memory>
#include <vector>

namespace quillon {

/// WM_DPICHANGED, since Windows 8.1: the window has come to a display of another scale.
inline constexpr UINT kDpiChanged = 0x02E0;

class WindowScale {
public:
    /// Makes the window with its controls as large as its display asks for, in the system's own
    /// letters, and keeps it in the middle of where it was. Outlives the window, which has all of
    /// its controls by now.
    explicit WindowScale(HWND window);

    /// What the window does at `kDpiChanged`.
    void Change(WPARAM word, LPARAM data);

private:
    struct Control {
        HWND window;
        RECT place; // on a display of normal size
    };
    void PlaceControls(int dpi);

    HWND window_;
    SIZE inside_; // on a display of normal size
    std::vector<Control> controls_;
    std::unique_ptr<const PageLetters> letters_;
};

} // namespace quillon
