#include "runtime/win32/programs/selfx/unpack_window.h"

#include "runtime/win32/windows/plain_window.h"

#include <commctrl.h>

namespace quillon {

namespace {

constexpr int kWidth = 360;
constexpr int kHeight = 84;
constexpr DWORD kLookEvery = 50; // milliseconds

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    // The unpacking can't be cancelled; it takes seconds.
    if (message == WM_CLOSE)
        return 0;
    return DefWindowProcW(window, message, word, data);
}

void HandleMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace

UnpackWindow::UnpackWindow(HINSTANCE instance, const Text& text)
{
    if (text.empty())
        return;
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&controls);
    window_ = MakePlainWindow(
        instance, text,
        {.kind = L"QuillonUnpack", .receive = Receive, .width = kWidth, .height = kHeight});
    SendMessageW(window_, WM_SETICON, ICON_BIG,
                 reinterpret_cast<LPARAM>(LoadIconW(instance, MAKEINTRESOURCEW(1))));
    AddControl(window_, {.kind = L"STATIC",
                         .text = text,
                         .style = SS_LEFT | SS_NOPREFIX,
                         .place = {16, 12, kWidth - 16, 44},
                         .id = 1});
    bar_ = AddControl(window_, {.kind = PROGRESS_CLASSW,
                                .text = text,
                                .style = 0,
                                .place = {16, 50, kWidth - 16, 68},
                                .id = 2});
    ShowWindow(window_, SW_SHOWNORMAL);
}

void UnpackWindow::Show(std::uint64_t done, std::uint64_t total, int from, int to)
{
    const DWORD now = GetTickCount();
    if (window_ == nullptr || (now - lastLook_ < kLookEvery && done < total))
        return;
    lastLook_ = now;
    const std::uint64_t part =
        total == 0 ? 0 : done * static_cast<std::uint64_t>(to - from) / total;
    SendMessageW(bar_, PBM_SETPOS, static_cast<WPARAM>(from) + static_cast<WPARAM>(part), 0);
    HandleMessages();
}

void UnpackWindow::Close()
{
    if (window_ != nullptr)
        DestroyWindow(window_);
    window_ = nullptr;
}

} // namespace quillon
