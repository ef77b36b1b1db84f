#include "runtime/win32/windows/plain_window.h"

#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/pages/window_place.h"
#include "runtime/win32/windows/display.h"

namespace quillon {

HWND MakePlainWindow(HINSTANCE instance, const Text& title, const PlainWindow& window)
{
    WNDCLASSW kind{};
    kind.lpfnWndProc = window.receive;
    kind.hInstance = instance;
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    kind.lpszClassName = window.kind;
    RegisterClassW(&kind);
    RECT frame{0, 0, window.width, window.height};
    constexpr DWORD kStyle = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    AdjustWindowRect(&frame, kStyle, FALSE);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    const Display display = window.owner ? DisplayOf(window.owner) : DisplayWithPointer();
    const WindowPlace place = InTheMiddle(display.workArea, width, height);
    const HWND made =
        CreateWindowExW(WS_EX_APPWINDOW, window.kind, Wide(title).c_str(), kStyle, place.left,
                        place.top, width, height, window.owner, nullptr, instance, window.data);
    if (made == nullptr)
        FailAsWindowsSays(title);
    return made;
}

HWND AddControl(HWND window, const Control& control)
{
    const RECT& place = control.place;
    const HWND made = CreateWindowExW(
        0, control.kind, Wide(control.text).c_str(), WS_CHILD | WS_VISIBLE | control.style,
        place.left, place.top, place.right - place.left, place.bottom - place.top, window,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(control.id)), nullptr, nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 TRUE);
    return made;
}

} // namespace quillon
