#include "runtime/win32/windows/window_ask.h"

#include "platform/win32/wide_text.h"
#include "runtime/exit_codes.h"
#include "runtime/pages/window_place.h"
#include "runtime/win32/windows/display.h"
#include "runtime/win32/windows/folder_choice.h"
#include "runtime/win32/windows/message_box.h"
#include "runtime/win32/windows/plain_window.h"

#include <commctrl.h>

namespace quillon {

namespace {

constexpr const wchar_t* kWindowClass = L"QuillonSetup";
constexpr int kProgressSteps = 500;
// In pixels of a display of normal size.
constexpr int kWidth = 420;
constexpr int kHeight = 130;
constexpr int kHeightWithoutButton = 82;

} // namespace

WindowAsk::WindowAsk(HINSTANCE instance, const Text& title, const LanguageTexts& texts,
                     CanCancel canCancel, HWND behind)
    : texts_(texts), title_(title), canCancel_(canCancel == CanCancel::Yes)
{
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&controls);
    window_ = MakePlainWindow(
        instance, title,
        {kWindowClass, Receive, kWidth, canCancel_ ? kHeight : kHeightWithoutButton, this, behind});
    status_ =
        AddControl(window_, {L"STATIC", "", SS_LEFT | SS_ENDELLIPSIS, {16, 16, kWidth - 16, 36}});
    bar_ = AddControl(window_, {PROGRESS_CLASSW, "", 0, {16, 44, kWidth - 16, 64}});
    SendMessageW(bar_, PBM_SETRANGE, 0, MAKELPARAM(0, kProgressSteps));
    if (canCancel_)
        AddControl(window_, {L"BUTTON",
                             texts[Message::Cancel],
                             WS_TABSTOP | BS_PUSHBUTTON,
                             {kWidth - 106, 84, kWidth - 16, 110},
                             IDCANCEL});
    scale_ = std::make_unique<WindowScale>(window_);
}

WindowAsk::~WindowAsk()
{
    DestroyWindow(window_);
}

LRESULT CALLBACK WindowAsk::Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    auto* const self = SelfOf<WindowAsk>(window, message, data);
    // Windows are scaled once they have their controls.
    if (message == kDpiChanged && self != nullptr && self->scale_) {
        self->scale_->Change(word, data);
        return 0;
    }
    const bool cancels = message == WM_CLOSE || (message == WM_COMMAND && LOWORD(word) == IDCANCEL);
    if (self == nullptr || !cancels)
        return DefWindowProcW(window, message, word, data);
    self->cancelPressed_ = self->canCancel_;
    return 0;
}

void WindowAsk::Show()
{
    ShowWindow(window_, SW_SHOWNORMAL);
    SetForegroundWindow(window_);
    PumpMessages();
}

void WindowAsk::PlaceAt(int column, int row)
{
    RECT now{};
    GetWindowRect(window_, &now);
    const WindowPlace place = AtColumnAndRow(DisplayOf(window_).workArea, column, row,
                                             now.right - now.left, now.bottom - now.top);
    SetWindowPos(window_, nullptr, place.left, place.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void WindowAsk::Hide()
{
    ShowWindow(window_, SW_HIDE);
}

HWND WindowAsk::BoxOwner() const
{
    return IsWindowVisible(window_) ? window_ : owner_;
}

std::optional<Text> WindowAsk::SelectDir(const Text& text, const Text& folder)
{
    return ChooseFolder(BoxOwner(), text, folder);
}

int WindowAsk::ShowBox(const Text& title, const Text& text, UINT kind)
{
    return ShowMessageBox(BoxOwner(), {title, text, kind}, texts_);
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
    PumpMessages();
}

void WindowAsk::Beep()
{
    MessageBeep(MB_OK);
}

void WindowAsk::PumpMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchTo(window_, message);
}

void WindowAsk::ProcessEvents()
{
    PumpMessages();
    if (!cancelPressed_)
        return;
    cancelPressed_ = false;
    if (YesNo(title_, texts_[Message::CancelQuestion], Stops::OnYes))
        throw SetupFailure(ExitCode::Cancelled, {});
}

} // namespace quillon
