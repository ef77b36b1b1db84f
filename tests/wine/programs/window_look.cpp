#include "window_look.h"

#include "runtime/win32/windows/page_letters.h"

namespace quillon {

namespace {

bool IsClipped(HDC letters, HWND window, HWND control)
{
    RECT inside{};
    RECT place{};
    if (KindOf(control) == L"Static" && TextOf(control).empty())
        return false; // a line, which may end outside, or a picture
    GetClientRect(window, &inside);
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    if (place.left < 0 || place.top < 0 || place.right > inside.right ||
        place.bottom > inside.bottom)
        return true;
    const bool isButton = KindOf(control) == L"Button";
    // The other ones scroll.
    if (!isButton && KindOf(control) != L"Static")
        return false;
    const auto style = static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE));
    const bool isShortened = !isButton && (style & SS_ELLIPSISMASK) != 0;
    const LONG width = place.right - place.left;
    RECT needed{0, 0, width, 0};
    DrawTextW(letters, TextOf(control).c_str(), -1, &needed,
              DT_CALCRECT | (isButton || isShortened ? DT_SINGLELINE : DT_WORDBREAK));
    return (needed.right > width && !isShortened) || needed.bottom > place.bottom - place.top;
}

} // namespace

std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1,
                      L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

std::wstring KindOf(HWND window)
{
    wchar_t kind[64] = {};
    GetClassNameW(window, kind, 64);
    return kind;
}

Text BitmapOf(HWND window)
{
    RECT inside{};
    GetClientRect(window, &inside);
    POINT corner{};
    ClientToScreen(window, &corner);
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = inside.right;
    info.bmiHeader.biHeight = inside.bottom;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, inside.right, inside.bottom, screen, corner.x, corner.y, SRCCOPY);
    GdiFlush();
    const auto size = static_cast<DWORD>(inside.right * inside.bottom * 4);
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof header + sizeof info.bmiHeader;
    header.bfSize = header.bfOffBits + size;
    Text file(reinterpret_cast<const char*>(&header), sizeof header);
    file.append(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
    file.append(static_cast<const char*>(pixels), size);
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return file;
}

// In the letters that the setup gives its controls, which another program can't ask for.
std::vector<HWND> ClippedControls(HWND window, int dpi)
{
    std::vector<HWND> clipped;
    const PageLetters letters(dpi);
    const HDC device = GetDC(window);
    const HGDIOBJ before = SelectObject(device, letters.Font());
    for (HWND control = GetWindow(window, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        if (IsWindowVisible(control) && IsClipped(device, window, control))
            clipped.push_back(control);
    SelectObject(device, before);
    ReleaseDC(window, device);
    return clipped;
}

} // namespace quillon
