#include "runtime/win32/pages/page_window.h"

#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/pages/window_place.h"
#include "runtime/win32/screen/gdi_letters.h"
#include "runtime/win32/screen/screen_window.h"
#include "runtime/win32/windows/display.h"
#include "runtime/win32/windows/window_ask.h"
#include "runtime/win32/windows/window_scale.h"

#include <commctrl.h>

#include <algorithm>

namespace quillon {

namespace {

constexpr const wchar_t* kWindowClass = L"QuillonPages";
constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

// A dialog without controls of its own kind, so that boxes of the system can be distinguished from
// it.
struct EmptyDialog {
    DLGTEMPLATE header;
    WORD menu;
    wchar_t kind[13];
    wchar_t title;
};

void RegisterKind(HINSTANCE instance)
{
    WNDCLASSW kind{};
    kind.lpfnWndProc = DefDlgProcW;
    kind.cbWndExtra = DLGWINDOWEXTRA;
    kind.hInstance = instance;
    kind.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    kind.lpszClassName = kWindowClass;
    RegisterClassW(&kind);
}

} // namespace

PageWindow::PageWindow(HINSTANCE instance, WindowAsk& ask, const LanguageTexts& texts,
                       PictureSource pictures, ScreenWindow* behind)
    : ask_(ask), texts_(texts), pictures_(std::move(pictures)), behind_(behind)
{
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    RegisterKind(instance);
    alignas(DWORD) EmptyDialog dialog{};
    dialog.header.style = kStyle;
    dialog.header.dwExtendedStyle = WS_EX_APPWINDOW | WS_EX_CONTROLPARENT;
    std::copy_n(kWindowClass, std::size(dialog.kind), dialog.kind);
    window_ =
        CreateDialogIndirectParamW(instance, &dialog.header, behind ? behind->Handle() : nullptr,
                                   Receive, reinterpret_cast<LPARAM>(this));
    if (window_ == nullptr)
        FailAsWindowsSays("QuillonPages");
    MoveToDisplay(behind ? DisplayOf(behind->Handle()) : DisplayWithPointer());
    letters_ = std::make_unique<PageLetters>(DpiOf(window_));
}

// Before it is measured, since letters have another size on another display.
void PageWindow::MoveToDisplay(const Display& display)
{
    SetWindowPos(window_, nullptr, display.workArea.left, display.workArea.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

PageWindow::~PageWindow()
{
    ask_.SetOwner(nullptr);
    controls_.reset();
    DestroyWindow(window_);
}

INT_PTR CALLBACK PageWindow::Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, GWLP_USERDATA, data);
        return FALSE;
    }
    auto* const self = reinterpret_cast<PageWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self == nullptr ? FALSE : self->OnMessage(message, word, data);
}

INT_PTR PageWindow::OnMessage(UINT message, WPARAM word, LPARAM data)
{
    switch (message) {
    case WM_COMMAND:
        OnCommand(LOWORD(word), HIWORD(word));
        return TRUE;
    case WM_NOTIFY:
        OnListChange(*reinterpret_cast<const NMHDR*>(data), data);
        return FALSE;
    case WM_CLOSE:
        OnCommand(kAwayId, BN_CLICKED);
        return TRUE;
    case WM_PAINT:
        Paint();
        return TRUE;
    case WM_CTLCOLORSTATIC:
        if (controls_ && controls_->IsPaper(reinterpret_cast<HWND>(data)))
            return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
        return FALSE;
    case kDpiChanged:
        ChangeScale(HIWORD(word), *reinterpret_cast<const RECT*>(data));
        return TRUE;
    default:
        return FALSE;
    }
}

void PageWindow::OnCommand(int id, int what)
{
    if (page_ == nullptr || isBusy_ || action_)
        return;
    const bool isLast = page_->buttons == PageButtons::Finish;
    if (id == kForwardId)
        Leave(PageAction::Next);
    else if (id == kAwayId && page_->canCancel)
        Leave(isLast ? PageAction::Next : PageAction::Cancel);
    else if (id == kBackId && page_->canGoBack)
        Leave(PageAction::Back);
    const int field = id - ControlId(PageField::None);
    if (field <= 0 || field >= static_cast<int>(PageField::Count))
        return;
    // BN_CLICKED and LBN_SELCHANGE have the same number, while a line sends EN_KILLFOCUS when it
    // loses the focus.
    const bool isLine = id == ControlId(PageField::Folder);
    if (what == (isLine ? int(EN_KILLFOCUS)
                 : id == ControlId(PageField::Drives) || id == ControlId(PageField::Groups)
                     ? int(LBN_SELCHANGE)
                     : int(BN_CLICKED)))
        Notify(static_cast<PageField>(field));
}

void PageWindow::OnListChange(const NMHDR& note, LPARAM data)
{
    if (page_ == nullptr || isBusy_ || note.code != static_cast<UINT>(LVN_ITEMCHANGED))
        return;
    const auto& change = *reinterpret_cast<const NMLISTVIEW*>(data);
    const UINT was = change.uOldState & (LVIS_STATEIMAGEMASK | LVIS_SELECTED);
    const UINT is = change.uNewState & (LVIS_STATEIMAGEMASK | LVIS_SELECTED);
    if (was != is)
        Notify(static_cast<PageField>(static_cast<int>(note.idFrom) - ControlId(PageField::None)));
}

void PageWindow::Notify(PageField field)
{
    controls_->Read(*page_);
    (*listener_)(*page_, field);
    isBusy_ = true;
    controls_->Refresh(*page_);
    isBusy_ = false;
}

void PageWindow::Leave(PageAction action)
{
    controls_->Read(*page_);
    action_ = action;
}

// The text scrolls by the arrow and page keys. Tab, Enter and Esc must still work as on the rest of
// the page, so the field does not get them.
bool PageWindow::TakesKeyOfPaper(const MSG& message)
{
    if (message.message != WM_KEYDOWN || !controls_->IsPaper(message.hwnd))
        return false;
    switch (message.wParam) {
    case VK_TAB:
        SendMessageW(window_, WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0 ? 1 : 0, FALSE);
        return true;
    case VK_RETURN:
        OnCommand(kForwardId, BN_CLICKED);
        return true;
    case VK_ESCAPE:
        OnCommand(kAwayId, BN_CLICKED);
        return true;
    default:
        return false;
    }
}

PageAction PageWindow::Show(SetupPage& page, const PageListener& listener)
{
    page_ = &page;
    listener_ = &listener;
    action_.reset();
    Build();
    ShowBehind(true);
    ask_.Hide();
    ask_.SetOwner(window_);
    if (!IsWindowVisible(window_)) {
        ShowWindow(window_, SW_SHOWNORMAL);
        SetForegroundWindow(window_);
    }
    controls_->FocusOn(page.focus);
    MSG message;
    while (!action_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (TakesKeyOfPaper(message) || IsDialogMessageW(window_, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    page_ = nullptr;
    return action_.value_or(PageAction::Cancel);
}

// Called when a page comes and when it goes. Pages are shown only after the package's files have
// been checked, so the screen too is shown only then.
void PageWindow::ShowBehind(bool isPageShown)
{
    if (behind_ == nullptr)
        return;
    behind_->SetPageShown(isPageShown);
    behind_->Show();
}

void PageWindow::Hide()
{
    ask_.SetOwner(nullptr);
    ShowWindow(window_, SW_HIDE);
    ShowBehind(false);
    ask_.Show();
}

void PageWindow::SetVariables(const SetupVariables& variables)
{
    if (behind_ != nullptr)
        behind_->SetVariables(variables);
}

void PageWindow::Build()
{
    isBusy_ = true;
    const PageArrangement arrangement = ArrangePage(*page_, *letters_);
    // WM_SETREDRAW would make a hidden window visible.
    const bool isVisible = IsWindowVisible(window_) != FALSE;
    if (isVisible)
        SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
    controls_.reset();
    SetWindowTextW(window_, Wide(page_->windowTitle).c_str());
    FitWindow(arrangement);
    LoadPicture(arrangement.picture);
    controls_ = std::make_unique<PageControls>(window_, *letters_, *page_, arrangement, Captions());
    if (isVisible)
        SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    RedrawWindow(window_, nullptr, nullptr, RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN);
    isBusy_ = false;
}

PageCaptions PageWindow::Captions() const
{
    PageCaptions captions{texts_[Message::Back], texts_[Message::Next], texts_[Message::Cancel]};
    if (page_->buttons == PageButtons::BackYesNo) {
        captions.forward = texts_[Message::Accept];
        captions.away = texts_[Message::Decline];
    }
    if (page_->buttons == PageButtons::Finish)
        captions.forward = texts_[Message::Finish];
    return captions;
}

void PageWindow::FitWindow(const PageArrangement& arrangement)
{
    RECT frame{0, 0, arrangement.width, arrangement.height};
    AdjustWindowRectEx(&frame, kStyle, FALSE, 0);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    RECT now{};
    GetWindowRect(window_, &now);
    // In the middle at first; afterwards at the place to which the user has moved it.
    const WindowPlace place = isPlaced_ ? WindowPlace{now.left, now.top}
                                        : InTheMiddle(DisplayOf(window_).workArea, width, height);
    SetWindowPos(window_, nullptr, place.left, place.top, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    isPlaced_ = true;
}

// As high as the page or as wide as its place, its shape kept.
void PageWindow::LoadPicture(const PixelRect& place)
{
    if (shownBitmap_ != page_->bitmap)
        original_ = pictures_(page_->bitmap);
    shownBitmap_ = page_->bitmap;
    if (original_.IsEmpty())
        return;
    const double scale = std::min(double(place.Width()) / original_.Width(),
                                  double(place.Height()) / original_.Height());
    const int width = std::max(1, static_cast<int>(original_.Width() * scale + 0.5));
    const int height = std::max(1, static_cast<int>(original_.Height() * scale + 0.5));
    GdiLetters letters;
    picture_ = original_.InSize(width, height, letters);
    pictureRect_ = RectAt(place.left + (place.Width() - width) / 2,
                          place.top + (place.Height() - height) / 2, width, height);
}

void PageWindow::Paint()
{
    PAINTSTRUCT paint;
    const HDC device = BeginPaint(window_, &paint);
    if (!picture_.IsEmpty()) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = picture_.width;
        info.bmiHeader.biHeight = -picture_.height; // from the top
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        SetDIBitsToDevice(device, pictureRect_.left, pictureRect_.top,
                          static_cast<DWORD>(picture_.width), static_cast<DWORD>(picture_.height),
                          0, 0, 0, static_cast<UINT>(picture_.height), picture_.pixels.data(),
                          &info, DIB_RGB_COLORS);
    }
    EndPaint(window_, &paint);
}

void PageWindow::ChangeScale(int dpi, const RECT& place)
{
    SetWindowPos(window_, nullptr, place.left, place.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (page_ == nullptr)
        return;
    controls_->Read(*page_);
    controls_.reset();
    letters_ = std::make_unique<PageLetters>(dpi);
    Build();
    controls_->FocusOn(page_->focus);
}

} // namespace quillon
