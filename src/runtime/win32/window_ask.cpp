#include "runtime/win32/window_ask.h"

#include "platform/win32/wide_text.h"
#include "runtime/exit_codes.h"

#include <commctrl.h>

namespace quillon {

namespace {

constexpr const wchar_t* kWindowClass = L"QuillonSetup";
constexpr int kProgressSteps = 500;
// In pixels of a display of normal size.
constexpr int kWidth = 420;
constexpr int kHeight = 130;

} // namespace

WindowAsk::WindowAsk(HINSTANCE instance, const Text& title, const LanguageTexts& texts)
    : texts_(texts), title_(title)
{
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&controls);
    WNDCLASSW kind{};
    kind.lpfnWndProc = Receive;
    kind.hInstance = instance;
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    kind.lpszClassName = kWindowClass;
    RegisterClassW(&kind);
    RECT frame{0, 0, kWidth, kHeight};
    constexpr DWORD kStyle = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    AdjustWindowRect(&frame, kStyle, FALSE);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    window_ = CreateWindowExW(0, kWindowClass, Wide(title).c_str(), kStyle,
                              (GetSystemMetrics(SM_CXSCREEN) - width) / 2,
                              (GetSystemMetrics(SM_CYSCREEN) - height) / 2, width, height, nullptr,
                              nullptr, instance, this);
    status_ = AddControl(L"STATIC", "", SS_LEFT | SS_ENDELLIPSIS, {16, 16, kWidth - 16, 36}, 0);
    bar_ = AddControl(PROGRESS_CLASSW, "", 0, {16, 44, kWidth - 16, 64}, 0);
    SendMessageW(bar_, PBM_SETRANGE, 0, MAKELPARAM(0, kProgressSteps));
    AddControl(L"BUTTON", texts[Message::Cancel], WS_TABSTOP | BS_PUSHBUTTON,
               {kWidth - 106, 84, kWidth - 16, 110}, IDCANCEL);
}

WindowAsk::~WindowAsk()
{
    DestroyWindow(window_);
}

HWND WindowAsk::AddControl(const wchar_t* kind, const Text& text, DWORD style, RECT place, int id)
{
    const HWND control =
        CreateWindowExW(0, kind, Wide(text).c_str(), WS_CHILD | WS_VISIBLE | style, place.left,
                        place.top, place.right - place.left, place.bottom - place.top, window_,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 TRUE);
    return control;
}

LRESULT CALLBACK WindowAsk::Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    if (message == WM_NCCREATE)
        SetWindowLongPtrW(
            window, GWLP_USERDATA,
            reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(data)->lpCreateParams));
    auto* const self = reinterpret_cast<WindowAsk*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    const bool cancels = message == WM_CLOSE || (message == WM_COMMAND && LOWORD(word) == IDCANCEL);
    if (self == nullptr || !cancels)
        return DefWindowProcW(window, message, word, data);
    self->cancelPressed_ = true;
    return 0;
}

void WindowAsk::Show()
{
    ShowWindow(window_, SW_SHOWNORMAL);
    SetForegroundWindow(window_);
    PumpMessages();
}

void WindowAsk::Hide()
{
    ShowWindow(window_, SW_HIDE);
}

int WindowAsk::ShowBox(const Text& title, const Text& text, UINT kind)
{
    const HWND owner = IsWindowVisible(window_) ? window_ : nullptr;
    return MessageBoxW(owner, Wide(text).c_str(), Wide(title).c_str(), kind | MB_SETFOREGROUND);
}

void WindowAsk::Inform(const Text& title, const Text& text)
{
    ShowBox(title, text, MB_OK | MB_ICONINFORMATION);
}

void WindowAsk::Warn(const Text& title, const Text& text)
{
    ShowBox(title, text, MB_OK | MB_ICONEXCLAMATION);
}

void WindowAsk::Critical(const Text& title, const Text& text)
{
    ShowBox(title, text, MB_OK | MB_ICONSTOP);
}

bool WindowAsk::YesNo(const Text& title, const Text& text, Stops)
{
    return ShowBox(title, text, MB_YESNO | MB_ICONEXCLAMATION) == IDYES;
}

bool WindowAsk::OkCancel(const Text& title, const Text& text)
{
    return ShowBox(title, text, MB_OKCANCEL | MB_ICONEXCLAMATION) == IDOK;
}

Answer WindowAsk::YesNoCancel(const Text& title, const Text& text)
{
    const int pressed = ShowBox(title, text, MB_YESNOCANCEL | MB_ICONQUESTION);
    return pressed == IDYES ? Answer::Yes : pressed == IDNO ? Answer::No : Answer::Cancel;
}

void WindowAsk::AddStatusLine(const Text& line)
{
    SetWindowTextW(status_, Wide(line).c_str());
    PumpMessages();
}

void WindowAsk::ShowProgress(std::uint64_t done, std::uint64_t total)
{
    const int step =
        total == 0 ? 0 : static_cast<int>(double(done) / double(total) * kProgressSteps);
    if (step == shownProgress_)
        return;
    shownProgress_ = step;
    SendMessageW(bar_, PBM_SETPOS, static_cast<WPARAM>(step), 0);
}

void WindowAsk::Beep()
{
    MessageBeep(MB_OK);
}

void WindowAsk::PumpMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (IsDialogMessageW(window_, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void WindowAsk::YieldToEvents()
{
    PumpMessages();
    if (!cancelPressed_)
        return;
    cancelPressed_ = false;
    if (YesNo(title_, texts_[Message::CancelQuestion], Stops::OnYes))
        throw SetupFailure(ExitCode::Cancelled, {});
}

} // namespace quillon
