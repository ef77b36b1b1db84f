// What the setup's own windows share: a plain window in the middle of its display, with controls
// that are placed in pixels of a display of normal size.
#pragma once

#include "helpers/text.h"

#include <windows.h>

namespace quillon {

struct PlainWindow {
    const wchar_t* kind; // the window class, registered under this name
    WNDPROC receive;
    int width; // inside the frame
    int height;
    void* data = nullptr; // what WM_NCCREATE brings
    HWND owner = nullptr; // the window stays in front of it, on its display
};

/// Makes the window; it is not shown yet. Throws RunError where Windows makes none.
HWND MakePlainWindow(HINSTANCE instance, const Text& title, const PlainWindow& window);

/// The object that `PlainWindow::data`, or the last argument of CreateWindowEx, gave the window;
/// null before WM_NCCREATE.
template <class Window>
Window* SelfOf(HWND window, UINT message, LPARAM data)
{
    if (message == WM_NCCREATE)
        SetWindowLongPtrW(
            window, GWLP_USERDATA,
            reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(data)->lpCreateParams));
    return reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

struct Control {
    const wchar_t* kind;
    Text text;
    DWORD style;
    RECT place;
    int id = 0;
};

HWND AddControl(HWND window, const Control& control);

/// The message goes to the window's controls first, as in a dialog: Tab, Enter and Esc.
inline void DispatchTo(HWND window, MSG& message)
{
    if (IsDialogMessageW(window, &message))
        return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

} // namespace quillon
