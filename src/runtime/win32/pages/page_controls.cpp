#include "runtime/win32/pages/page_controls.h"

#include "platform/win32/wide_text.h"
#include "runtime/win32/processes/program_start.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>

namespace quillon {

namespace {

constexpr UINT kTickedImage = 2; // of a check list's state images
constexpr DWORD kReadOnlyText =
    ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP;

Text TextOf(HWND control)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
    return Narrow(text);
}

bool IsTicked(HWND list, int item)
{
    const UINT state = ListView_GetItemState(list, item, LVIS_STATEIMAGEMASK);
    return state == INDEXTOSTATEIMAGEMASK(kTickedImage);
}

void Tick(HWND list, int item, bool isTicked)
{
    ListView_SetItemState(list, item, INDEXTOSTATEIMAGEMASK(isTicked ? kTickedImage : 1),
                          LVIS_STATEIMAGEMASK);
}

struct RtfSource {
    std::string_view rest;
};

DWORD CALLBACK NextRtf(DWORD_PTR cookie, LPBYTE to, LONG room, LONG* taken)
{
    auto& source = *reinterpret_cast<RtfSource*>(cookie);
    const std::size_t count = std::min(source.rest.size(), static_cast<std::size_t>(room));
    std::copy_n(source.rest.begin(), count, to);
    source.rest.remove_prefix(count);
    *taken = static_cast<LONG>(count);
    return 0;
}

void AddColumn(HWND list, int number, int width, int format)
{
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
    column.cx = width;
    column.fmt = format;
    column.iSubItem = number;
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(number),
                 reinterpret_cast<LPARAM>(&column));
}

void SetCell(HWND list, int row, int column, const Text& text)
{
    std::wstring wide = Wide(text);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = wide.data();
    SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0,
                 reinterpret_cast<LPARAM>(&item));
}

} // namespace

PageControls::PageControls(HWND window, const PageLetters& letters, const SetupPage& page,
                           const PageArrangement& arrangement, const PageCaptions& captions)
    : window_(window), letters_(letters), shown_(page)
{
    // In the order of the Tab key. A label is right before the control that it names, since screen
    // readers find the name there.
    AddTitle(page, arrangement);
    for (std::size_t i = 0; i < page.pieces.size(); ++i)
        AddPiece(page.pieces[i], arrangement.pieces[i]);
    AddButtons(page, arrangement, captions);
}

PageControls::~PageControls()
{
    for (const HWND control : all_)
        DestroyWindow(control);
}

HWND PageControls::Add(const wchar_t* kind, const Text& text, DWORD style, const PixelRect& place,
                       int id, DWORD exStyle)
{
    const HWND made = CreateWindowExW(
        exStyle, kind, Wide(WithWindowsLineEnds(text)).c_str(), WS_CHILD | WS_VISIBLE | style,
        place.left, place.top, place.Width(), place.Height(), window_,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(letters_.Font()), TRUE);
    all_.push_back(made);
    return made;
}

HWND PageControls::AddText(const Text& text, const PixelRect& place, int id, bool scrolls)
{
    return scrolls ? Add(L"EDIT", text, kReadOnlyText, place, id)
                   : Add(L"STATIC", text, SS_LEFT | SS_NOPREFIX, place, id);
}

void PageControls::AddTitle(const SetupPage& page, const PageArrangement& arrangement)
{
    if (page.title.empty())
        return;
    const HWND title = AddText(page.title, arrangement.title, -1, arrangement.titleScrolls);
    SendMessageW(title, WM_SETFONT, reinterpret_cast<WPARAM>(letters_.TitleFont()), TRUE);
}

void PageControls::AddPiece(const PagePiece& piece, const PlacedPiece& place)
{
    if (!place.label.IsEmpty())
        Add(L"STATIC", piece.label, SS_LEFT, place.label, -1);
    Shown shown;
    shown.control = AddField(piece, place);
    if (!piece.button.empty())
        shown.button = Add(L"BUTTON", piece.button, BS_PUSHBUTTON | WS_TABSTOP, place.button,
                           ControlId(piece.buttonField));
    Enable(shown, piece.isEnabled);
    pieces_.push_back(shown);
}

HWND PageControls::AddField(const PagePiece& piece, const PlacedPiece& place)
{
    const int id = ControlId(piece.field);
    switch (piece.kind) {
    case PieceKind::Paragraph:
    case PieceKind::Rest:
    case PieceKind::Value:
        return AddText(piece.text, place.field, id, place.scrolls);
    case PieceKind::Paper:
        return Add(L"EDIT", piece.text, kReadOnlyText, place.field, id, WS_EX_CLIENTEDGE);
    case PieceKind::RichPaper:
        return AddRichPaper(piece, place);
    case PieceKind::Entry:
    case PieceKind::Password: {
        const DWORD secret = piece.kind == PieceKind::Password ? ES_PASSWORD : 0;
        const HWND made = Add(L"EDIT", piece.text, ES_AUTOHSCROLL | WS_TABSTOP | secret,
                              place.field, id, WS_EX_CLIENTEDGE);
        SendMessageW(made, EM_LIMITTEXT, static_cast<WPARAM>(piece.maxLength), 0);
        return made;
    }
    case PieceKind::List:
        return AddList(piece, place);
    case PieceKind::CheckList:
        return AddCheckList(piece, place);
    case PieceKind::Button:
        return Add(L"BUTTON", piece.label, BS_PUSHBUTTON | WS_TABSTOP, place.field, id);
    case PieceKind::CheckBox: {
        const HWND made =
            Add(L"BUTTON", piece.label, BS_AUTOCHECKBOX | WS_TABSTOP, place.field, id);
        SendMessageW(made, BM_SETCHECK, piece.isTicked ? BST_CHECKED : BST_UNCHECKED, 0);
        return made;
    }
    case PieceKind::Gap:
        break;
    }
    return nullptr;
}

HWND PageControls::AddRichPaper(const PagePiece& piece, const PlacedPiece& place)
{
    // Stays loaded: the next page may need it.
    LoadFromSystemFolder("riched20.dll");
    const HWND made = Add(RICHEDIT_CLASSW, {}, kReadOnlyText, place.field, ControlId(piece.field),
                          WS_EX_CLIENTEDGE);
    // Unlike a plain field, this one would begin its lines at its very edge.
    RECT inside{};
    GetClientRect(made, &inside);
    const int margin = static_cast<int>(4 * letters_.UnitWidth());
    InflateRect(&inside, -margin, -margin);
    SendMessageW(made, EM_SETRECT, 0, reinterpret_cast<LPARAM>(&inside));
    SendMessageW(made, EM_EXLIMITTEXT, 0, static_cast<LPARAM>(piece.text.size()) + 1);
    RtfSource source{piece.text};
    EDITSTREAM stream{};
    stream.dwCookie = reinterpret_cast<DWORD_PTR>(&source);
    stream.pfnCallback = NextRtf;
    SendMessageW(made, EM_STREAMIN, SF_RTF, reinterpret_cast<LPARAM>(&stream));
    SendMessageW(made, EM_SETSEL, 0, 0);
    return made;
}

HWND PageControls::AddList(const PagePiece& piece, const PlacedPiece& place)
{
    const HWND made =
        Add(L"LISTBOX", {}, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP,
            place.field, ControlId(piece.field), WS_EX_CLIENTEDGE);
    for (const PageItem& item : piece.items)
        SendMessageW(made, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(item.text).c_str()));
    SendMessageW(made, LB_SETCURSEL, static_cast<WPARAM>(piece.selected), 0);
    return made;
}

HWND PageControls::AddCheckList(const PagePiece& piece, const PlacedPiece& place)
{
    const HWND list =
        Add(WC_LISTVIEWW, {},
            LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP,
            place.field, ControlId(piece.field), WS_EX_CLIENTEDGE);
    ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    RECT inside{};
    GetClientRect(list, &inside);
    const int room = inside.right - GetSystemMetrics(SM_CXVSCROLL);
    AddColumn(list, 0, room * 3 / 4, LVCFMT_LEFT);
    AddColumn(list, 1, room / 4, LVCFMT_RIGHT);
    for (int i = 0; i < static_cast<int>(piece.items.size()); ++i) {
        const PageItem& item = piece.items[static_cast<std::size_t>(i)];
        SetCell(list, i, 0, item.text);
        SetCell(list, i, 1, item.detail);
        Tick(list, i, item.isTicked);
    }
    ListView_SetItemState(list, piece.selected, LVIS_SELECTED | LVIS_FOCUSED,
                          LVIS_SELECTED | LVIS_FOCUSED);
    return list;
}

void PageControls::AddButtons(const SetupPage& page, const PageArrangement& arrangement,
                              const PageCaptions& captions)
{
    Add(L"STATIC", {}, SS_ETCHEDHORZ,
        {0, arrangement.line, arrangement.width, arrangement.line + 2}, -1);
    const auto button = [&](const Text& caption, const PixelRect& place, int id, DWORD style) {
        if (!place.IsEmpty())
            return Add(L"BUTTON", caption, style | WS_TABSTOP, place, id);
        return HWND{};
    };
    const HWND back = button(captions.back, arrangement.back, kBackId, BS_PUSHBUTTON);
    if (back != nullptr)
        EnableWindow(back, page.canGoBack);
    button(captions.forward, arrangement.forward, kForwardId, BS_DEFPUSHBUTTON);
    const HWND away = button(captions.away, arrangement.away, kAwayId, BS_PUSHBUTTON);
    if (away != nullptr)
        EnableWindow(away, page.canCancel);
}

void PageControls::Enable(const Shown& shown, bool isEnabled) const
{
    for (const HWND control : {shown.control, shown.button})
        if (control != nullptr)
            EnableWindow(control, isEnabled);
}

void PageControls::Read(SetupPage& page) const
{
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        PagePiece& piece = page.pieces[i];
        const HWND control = pieces_[i].control;
        switch (piece.kind) {
        case PieceKind::Entry:
        case PieceKind::Password:
            piece.text = TextOf(control);
            break;
        case PieceKind::List:
            piece.selected = static_cast<int>(SendMessageW(control, LB_GETCURSEL, 0, 0));
            break;
        case PieceKind::CheckList:
            piece.selected = ListView_GetNextItem(control, -1, LVNI_SELECTED);
            for (int row = 0; row < static_cast<int>(piece.items.size()); ++row)
                piece.items[static_cast<std::size_t>(row)].isTicked = IsTicked(control, row);
            break;
        case PieceKind::CheckBox:
            piece.isTicked = SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
            break;
        default:
            break;
        }
    }
}

void PageControls::Refresh(const SetupPage& page)
{
    SetupPage now = shown_;
    Read(now);
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        const PagePiece& piece = page.pieces[i];
        const Shown& shown = pieces_[i];
        if (piece.text != now.pieces[i].text)
            SetWindowTextW(shown.control, Wide(WithWindowsLineEnds(piece.text)).c_str());
        for (std::size_t row = 0; row < piece.items.size(); ++row)
            if (piece.kind == PieceKind::CheckList &&
                piece.items[row].isTicked != now.pieces[i].items[row].isTicked)
                Tick(shown.control, static_cast<int>(row), piece.items[row].isTicked);
        if (piece.isEnabled != now.pieces[i].isEnabled)
            Enable(shown, piece.isEnabled);
    }
    shown_ = page;
}

void PageControls::FocusOn(PageField field) const
{
    const HWND control =
        GetDlgItem(window_, field == PageField::None ? kForwardId : ControlId(field));
    // As the Tab key does it, which also selects what is in a line.
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

bool PageControls::IsPaper(HWND control) const
{
    for (std::size_t i = 0; i < pieces_.size(); ++i)
        if (pieces_[i].control == control)
            return shown_.pieces[i].kind == PieceKind::Paper ||
                   shown_.pieces[i].kind == PieceKind::RichPaper;
    return false;
}

} // namespace quillon
