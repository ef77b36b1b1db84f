#include "runtime/win32/window_scale.h"

namespace quillon {

namespace {

constexpr int kNormalDpi = 96;

void ScaleControl(HWND window, HWND control, int dpi)
{
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    const auto scaled = [dpi](LONG pixels) {
        return MulDiv(static_cast<int>(pixels), dpi, kNormalDpi);
    };
    SetWindowPos(control, nullptr, scaled(place.left), scaled(place.top),
                 scaled(place.right - place.left), scaled(place.bottom - place.top),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// The frame has the right width already: it is Windows that draws it.
void ScaleFrame(HWND window, int dpi)
{
    RECT inside{};
    RECT place{};
    GetClientRect(window, &inside);
    GetWindowRect(window, &place);
    const int moreAcross = MulDiv(static_cast<int>(inside.right), dpi - kNormalDpi, kNormalDpi);
    const int moreDown = MulDiv(static_cast<int>(inside.bottom), dpi - kNormalDpi, kNormalDpi);
    SetWindowPos(window, nullptr, static_cast<int>(place.left) - moreAcross / 2,
                 static_cast<int>(place.top) - moreDown / 2,
                 static_cast<int>(place.right - place.left) + moreAcross,
                 static_cast<int>(place.bottom - place.top) + moreDown,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

WindowScale::WindowScale(HWND window) : letters_(DpiOf(window))
{
    const int dpi = DpiOf(window);
    for (HWND control = GetWindow(window, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        ScaleControl(window, control, dpi);
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(letters_.Font()), TRUE);
    }
    ScaleFrame(window, dpi);
}

} // namespace quillon
