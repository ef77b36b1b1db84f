#include "runtime/win32/windows/window_scale.h"

namespace quillon {

namespace {

constexpr int kNormalDpi = 96;

int Scaled(LONG pixels, int dpi)
{
    return MulDiv(static_cast<int>(pixels), dpi, kNormalDpi);
}

RECT PlaceOf(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

// The frame is as wide as Windows draws it at that scale, so the window gets its size by what is
// missing inside.
void SetInside(HWND window, int width, int height)
{
    RECT inside{};
    GetClientRect(window, &inside);
    const RECT place = PlaceOf(window);
    SetWindowPos(window, nullptr, 0, 0, place.right - place.left + width - inside.right,
                 place.bottom - place.top + height - inside.bottom,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Move(HWND window, int left, int top)
{
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

WindowScale::WindowScale(HWND window) : window_(window)
{
    RECT inside{};
    GetClientRect(window, &inside);
    inside_ = {inside.right, inside.bottom};
    for (HWND control = GetWindow(window, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        RECT place = PlaceOf(control);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        controls_.push_back({control, place});
    }
    const int dpi = DpiOf(window);
    const RECT place = PlaceOf(window);
    PlaceControls(dpi);
    Move(window, static_cast<int>(place.left) - (Scaled(inside_.cx, dpi) - inside_.cx) / 2,
         static_cast<int>(place.top) - (Scaled(inside_.cy, dpi) - inside_.cy) / 2);
}

void WindowScale::Change(WPARAM word, LPARAM data)
{
    const RECT& place = *reinterpret_cast<const RECT*>(data);
    Move(window_, place.left, place.top);
    PlaceControls(HIWORD(word));
}

// From the measures of a normal display each time, since rounded ones would drift.
void WindowScale::PlaceControls(int dpi)
{
    // The controls use the former letters until they have the new ones.
    auto letters = std::make_unique<const PageLetters>(dpi);
    for (const Control& control : controls_) {
        const RECT& place = control.place;
        SetWindowPos(control.window, nullptr, Scaled(place.left, dpi), Scaled(place.top, dpi),
                     Scaled(place.right - place.left, dpi), Scaled(place.bottom - place.top, dpi),
                     SWP_NOZORDER | SWP_NOACTIVATE);
        SendMessageW(control.window, WM_SETFONT, reinterpret_cast<WPARAM>(letters->Font()), TRUE);
    }
    letters_ = std::move(letters);
    SetInside(window_, Scaled(inside_.cx, dpi), Scaled(inside_.cy, dpi));
}

} // namespace quillon
