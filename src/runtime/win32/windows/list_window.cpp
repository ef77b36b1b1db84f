#include "runtime/win32/windows/list_window.h"

#include "platform/win32/wide_text.h"
#include "runtime/win32/windows/plain_window.h"
#include "runtime/win32/windows/window_scale.h"

namespace quillon {

namespace {

// In pixels of a display of normal size.
constexpr int kWidth = 520;
constexpr int kHeight = 340;
constexpr int kEdge = 16;
constexpr int kTextHeight = 34;
constexpr int kButtonWidth = 110;
constexpr int kButtonHeight = 26;
constexpr int kButtonTop = kHeight - kEdge - kButtonHeight;

struct Shown {
    WindowScale scale;
    int pressed = 0; // the button's id
};

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    // Null until the window has its controls.
    auto* const shown = reinterpret_cast<Shown*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (shown == nullptr)
        return DefWindowProcW(window, message, word, data);
    if (message == kDpiChanged) {
        shown->scale.Change(word, data);
        return 0;
    }
    const int button = message == WM_CLOSE ? IDCANCEL : LOWORD(word);
    if (message != WM_CLOSE && (message != WM_COMMAND || (button != IDOK && button != IDCANCEL)))
        return DefWindowProcW(window, message, word, data);
    shown->pressed = button;
    return 0;
}

RECT ButtonPlace(int fromRight)
{
    const int right = kWidth - kEdge - fromRight * (kButtonWidth + 8);
    return {right - kButtonWidth, kButtonTop, right, kButtonTop + kButtonHeight};
}

Text AllLines(const ListPage& page)
{
    Text all;
    for (const Text& line : page.lines) {
        if (!all.empty())
            all += kLineBreak;
        all += line;
    }
    return all;
}

// Its first button.
HWND AddControls(HWND window, const ListPage& page)
{
    const bool canCancel = !page.cancelCaption.empty();
    AddControl(window, {L"STATIC",
                        page.text,
                        SS_LEFT | SS_NOPREFIX,
                        {kEdge, kEdge, kWidth - kEdge, kEdge + kTextHeight},
                        kListTextId});
    // A field, unlike a list, lets the user copy what is in it.
    const HWND lines =
        AddControl(window, {L"EDIT",
                            "",
                            WS_TABSTOP | WS_BORDER | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE |
                                ES_READONLY | ES_AUTOVSCROLL | ES_AUTOHSCROLL,
                            {kEdge, kEdge + kTextHeight, kWidth - kEdge, kButtonTop - 12},
                            kListLinesId});
    SendMessageW(lines, EM_SETLIMITTEXT, 0, 0);
    SetWindowTextW(lines, Wide(AllLines(page)).c_str());
    const HWND first = AddControl(window, {L"BUTTON", page.okCaption, WS_TABSTOP | BS_DEFPUSHBUTTON,
                                           ButtonPlace(canCancel ? 1 : 0), IDOK});
    if (canCancel)
        AddControl(window, {L"BUTTON", page.cancelCaption, WS_TABSTOP | BS_PUSHBUTTON,
                            ButtonPlace(0), IDCANCEL});
    return first;
}

} // namespace

bool ShowListWindow(HINSTANCE instance, const ListPage& page)
{
    const HWND window =
        MakePlainWindow(instance, page.title, {L"QuillonList", Receive, kWidth, kHeight});
    const HWND first = AddControls(window, page);
    Shown shown{WindowScale(window)};
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&shown));
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
    SetFocus(first);
    MSG message;
    while (shown.pressed == 0 && GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchTo(window, message);
    DestroyWindow(window);
    return shown.pressed == IDOK;
}

} // namespace quillon
