#include "runtime/win32/screen/screen_window.h"

#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/win32/windows/display.h"
#include "runtime/win32/windows/plain_window.h"

namespace quillon {

namespace {

constexpr const wchar_t* kWindowClass = L"QuillonScreen";
constexpr UINT_PTR kTimer = 1;

void RegisterKind(HINSTANCE instance, WNDPROC receive)
{
    WNDCLASSW kind{};
    kind.lpfnWndProc = receive;
    kind.hInstance = instance;
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.lpszClassName = kWindowClass;
    RegisterClassW(&kind);
}

} // namespace

ScreenWindow::ScreenWindow(HINSTANCE instance, const Text& title, SetupVariables variables,
                           MakeScreen make)
    : variables_(std::move(variables)), make_(std::move(make))
{
    RegisterKind(instance, Receive);
    const PixelRect display = DisplayWithPointer().whole;
    window_ = CreateWindowExW(WS_EX_TOOLWINDOW, kWindowClass, Wide(title).c_str(), WS_POPUP,
                              display.left, display.top, display.Width(), display.Height(), nullptr,
                              nullptr, instance, this);
    if (window_ == nullptr)
        FailAsWindowsSays(title);
}

ScreenWindow::~ScreenWindow()
{
    DestroyWindow(window_);
}

LRESULT CALLBACK ScreenWindow::Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    auto* const self = SelfOf<ScreenWindow>(window, message, data);
    return self != nullptr && self->window_ != nullptr
               ? self->OnMessage(message, word, data)
               : DefWindowProcW(window, message, word, data);
}

LRESULT ScreenWindow::OnMessage(UINT message, WPARAM word, LPARAM data)
{
    switch (message) {
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_TIMER:
        Paint(screen_->ShowNext());
        return 0;
    case WM_KEYDOWN:
        isLeft_ = isLeft_ || word == VK_ESCAPE;
        return 0;
    case WM_CLOSE:
        // During an installation Esc does nothing here; its own windows ask whether it is to end.
        isLeft_ = true;
        return 0;
    case WM_DISPLAYCHANGE:
        FitDisplay();
        return 0;
    default:
        return DefWindowProcW(window_, message, word, data);
    }
}

void ScreenWindow::Show()
{
    if (IsWindowVisible(window_))
        return;
    FitDisplay();
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    UpdateWindow(window_);
}

void ScreenWindow::FitDisplay()
{
    const PixelRect display = DisplayOf(window_).whole;
    const int width = display.Width();
    const int height = display.Height();
    SetWindowPos(window_, nullptr, display.left, display.top, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (screen_ && screen_->Width() == width && screen_->Height() == height)
        return;
    screen_ = make_(variables_, width, height);
    pixels_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    PaintWhole();
    if (screen_->Interval() > 0)
        SetTimer(window_, kTimer, static_cast<UINT>(screen_->Interval()), nullptr);
}

void ScreenWindow::SetPageShown(bool isShown)
{
    if (isShown == isPageShown_)
        return;
    isPageShown_ = isShown;
    PaintWhole();
}

void ScreenWindow::SetVariables(const SetupVariables& variables)
{
    variables_ = variables;
    if (screen_ && screen_->SetVariables(variables))
        PaintWhole();
}

void ScreenWindow::PaintWhole()
{
    if (screen_)
        Paint({0, 0, screen_->Width(), screen_->Height()});
}

void ScreenWindow::Paint(const PixelRect& part)
{
    if (part.IsEmpty())
        return;
    Canvas canvas = WholeCanvas(pixels_.data(), screen_->Width(), screen_->Height());
    canvas.clip = Intersect(canvas.clip, part);
    screen_->Paint(canvas, letters_, isPageShown_);
    const RECT rect{part.left, part.top, part.right, part.bottom};
    InvalidateRect(window_, &rect, FALSE);
}

void ScreenWindow::OnPaint()
{
    PAINTSTRUCT paint;
    const HDC device = BeginPaint(window_, &paint);
    if (screen_) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = screen_->Width();
        info.bmiHeader.biHeight = -screen_->Height(); // from the top
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        SetDIBitsToDevice(device, 0, 0, static_cast<DWORD>(screen_->Width()),
                          static_cast<DWORD>(screen_->Height()), 0, 0, 0,
                          static_cast<UINT>(screen_->Height()), pixels_.data(), &info,
                          DIB_RGB_COLORS);
    }
    EndPaint(window_, &paint);
}

void ScreenWindow::WaitForEscape()
{
    MSG message;
    while (!isLeft_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace quillon
