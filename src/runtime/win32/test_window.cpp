#include "runtime/win32/test_window.h"

#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"

namespace quillon {

namespace {

constexpr const wchar_t* kWindowClass = L"QuillonTest";
// In pixels of a display of normal size.
constexpr int kWidth = 420;
constexpr int kHeight = 320;
constexpr int kMargin = 16;
constexpr int kLine = 20;
constexpr int kButtonWidth = 90;
constexpr int kButtonHeight = 26;

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    const bool closes = message == WM_CLOSE || (message == WM_COMMAND &&
                                                (LOWORD(word) == IDOK || LOWORD(word) == IDCANCEL));
    if (closes)
        DestroyWindow(window);
    else if (message == WM_DESTROY)
        PostQuitMessage(0);
    else
        return DefWindowProcW(window, message, word, data);
    return 0;
}

HWND MakeWindow(HINSTANCE instance, const Text& title)
{
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
    const HWND window = CreateWindowExW(0, kWindowClass, Wide(title).c_str(), kStyle,
                                        (GetSystemMetrics(SM_CXSCREEN) - width) / 2,
                                        (GetSystemMetrics(SM_CYSCREEN) - height) / 2, width, height,
                                        nullptr, nullptr, instance, nullptr);
    if (window == nullptr)
        FailAsWindowsSays(title);
    return window;
}

struct Control {
    const wchar_t* kind;
    Text text;
    DWORD style;
    RECT place;
    int id = 0;
};

HWND Add(HWND window, const Control& control)
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

Text Joined(const std::vector<Text>& lines)
{
    Text text;
    for (const Text& line : lines)
        text += (text.empty() ? "" : Text(kLineBreak)) + line;
    return text;
}

void Fill(HWND window, const TestWindow& shown)
{
    constexpr int kRight = kWidth - kMargin;
    constexpr int kBottom = kHeight - kMargin;
    constexpr int kLines = kMargin + 2 * kLine + kMargin / 2;
    // A file's name may hold an "&", which is no access letter.
    constexpr DWORD kWords = SS_LEFT | SS_NOPREFIX;
    Add(window, {L"STATIC", shown.note, kWords, {kMargin, kMargin, kRight, kMargin + kLine}});
    Add(window, {L"STATIC",
                 shown.heading,
                 kWords,
                 {kMargin, kMargin + kLine, kRight, kMargin + 2 * kLine}});
    if (!shown.lines.empty())
        Add(window, {L"EDIT",
                     Joined(shown.lines),
                     WS_BORDER | WS_VSCROLL | WS_TABSTOP | ES_MULTILINE | ES_READONLY,
                     {kMargin, kLines, kRight, kBottom - kButtonHeight - kMargin}});
    const HWND close =
        Add(window, {L"BUTTON",
                     shown.close,
                     WS_TABSTOP | BS_DEFPUSHBUTTON,
                     {kRight - kButtonWidth, kBottom - kButtonHeight, kRight, kBottom},
                     IDCANCEL});
    SetFocus(close);
}

} // namespace

void ShowTestWindow(HINSTANCE instance, const TestWindow& shown)
{
    const HWND window = MakeWindow(instance, shown.title);
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
    Fill(window, shown);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageW(window, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace quillon
