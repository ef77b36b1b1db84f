#include "runtime/win32/test_window.h"

#include "runtime/win32/plain_window.h"

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
    AddControl(window,
               {L"STATIC", shown.note, kWords, {kMargin, kMargin, kRight, kMargin + kLine}});
    AddControl(window, {L"STATIC",
                        shown.heading,
                        kWords,
                        {kMargin, kMargin + kLine, kRight, kMargin + 2 * kLine}});
    if (!shown.lines.empty())
        AddControl(window, {L"EDIT",
                            Joined(shown.lines),
                            WS_BORDER | WS_VSCROLL | WS_TABSTOP | ES_MULTILINE | ES_READONLY,
                            {kMargin, kLines, kRight, kBottom - kButtonHeight - kMargin}});
    const HWND close =
        AddControl(window, {L"BUTTON",
                            shown.close,
                            WS_TABSTOP | BS_DEFPUSHBUTTON,
                            {kRight - kButtonWidth, kBottom - kButtonHeight, kRight, kBottom},
                            IDCANCEL});
    SetFocus(close);
}

} // namespace

void ShowTestWindow(HINSTANCE instance, const TestWindow& shown)
{
    const HWND window =
        MakePlainWindow(instance, shown.title, {kWindowClass, Receive, kWidth, kHeight});
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
    Fill(window, shown);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchTo(window, message);
}

} // namespace quillon
