#include "runtime/win32/windows/display.h"

namespace quillon {

namespace {

PixelRect RectOf(const RECT& rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

Display AreasOf(HMONITOR monitor)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    GetMonitorInfoW(monitor, &info);
    return {RectOf(info.rcMonitor), RectOf(info.rcWork)};
}

} // namespace

Display DisplayWithPointer()
{
    POINT pointer{};
    GetCursorPos(&pointer);
    return AreasOf(MonitorFromPoint(pointer, MONITOR_DEFAULTTOPRIMARY));
}

Display DisplayOf(HWND window)
{
    return AreasOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

} // namespace quillon
