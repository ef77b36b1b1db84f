#include "runtime/win32/windows/page_letters.h"

#include "formats/page_layout.h"
#include "platform/win32/wide_text.h"

#include <cstddef>
#include <cwchar>

namespace quillon {

namespace {

int SystemDpi()
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

LOGFONTW MessageFont()
{
    NONCLIENTMETRICSW metrics{};
    // Windows XP refuses the size that the record has had since.
    metrics.cbSize = offsetof(NONCLIENTMETRICSW, lfMessageFont) + sizeof metrics.lfMessageFont;
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0))
        return metrics.lfMessageFont;
    LOGFONTW font{};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return font;
}

} // namespace

int DpiOf(HWND window)
{
    using Function = UINT(WINAPI*)(HWND);
    // Since Windows 10.
    const auto ask = reinterpret_cast<Function>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    const UINT dpi = ask != nullptr && window != nullptr ? ask(window) : 0;
    return dpi == 0 ? SystemDpi() : static_cast<int>(dpi);
}

PageLetters::PageLetters(int dpi) : device_(CreateCompatibleDC(nullptr))
{
    LOGFONTW font = MessageFont();
    const int systemDpi = SystemDpi();
    font.lfHeight = MulDiv(font.lfHeight, dpi, systemDpi);
    font_ = CreateFontIndirectW(&font);
    font.lfHeight = static_cast<LONG>(font.lfHeight * PageLayout::kTitleLetters);
    font.lfWeight = FW_BOLD;
    titleFont_ = CreateFontIndirectW(&font);
    Measure();
}

PageLetters::~PageLetters()
{
    DeleteDC(device_);
    DeleteObject(font_);
    DeleteObject(titleFont_);
}

void PageLetters::Measure()
{
    constexpr wchar_t kAlphabet[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kLetters = 52;
    SelectObject(device_, font_);
    SIZE size{};
    GetTextExtentPoint32W(device_, kAlphabet, kLetters, &size);
    TEXTMETRICW metrics{};
    GetTextMetricsW(device_, &metrics);
    unitWidth_ = double(size.cx) / kLetters / 4;
    unitHeight_ = double(metrics.tmHeight) / 8;
}

int PageLetters::TextHeight(const Text& text, int width, bool isTitle) const
{
    SelectObject(device_, isTitle ? titleFont_ : font_);
    RECT rect{0, 0, width, 0};
    DrawTextW(device_, Wide(text).c_str(), -1, &rect,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
    return rect.bottom;
}

int PageLetters::LineWidth(const Text& line) const
{
    SelectObject(device_, font_);
    RECT rect{};
    DrawTextW(device_, Wide(line).c_str(), -1, &rect, DT_CALCRECT | DT_SINGLELINE);
    return rect.right;
}

} // namespace quillon
