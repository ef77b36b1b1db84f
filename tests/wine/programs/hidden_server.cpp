// A program that registers itself only where it was started without a window.
#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    STARTUPINFOW startup{};
    GetStartupInfoW(&startup);
    const bool isHidden =
        (startup.dwFlags & STARTF_USESHOWWINDOW) != 0 && startup.wShowWindow == SW_HIDE;
    return isHidden ? 0 : 1;
}
