// The controls of one page: real ones of the system, made from a page's description. They are
// destroyed with this object.
#pragma once

#include "runtime/pages/page_arrangement.h"
#include "runtime/win32/windows/page_letters.h"

#include <windows.h>

#include <vector>

namespace quillon {

/// The id of a page's control. The buttons have the ids that Enter and Esc stand for.
constexpr int ControlId(PageField field)
{
    return 100 + static_cast<int>(field);
}
inline constexpr int kForwardId = IDOK;
inline constexpr int kAwayId = IDCANCEL;
inline constexpr int kBackId = 3;

struct PageCaptions {
    Text back;
    Text forward;
    Text away;
};

class PageControls {
public:
    PageControls(HWND window, const PageLetters& letters, const SetupPage& page,
                 const PageArrangement& arrangement, const PageCaptions& captions);
    ~PageControls();
    PageControls(const PageControls&) = delete;
    PageControls& operator=(const PageControls&) = delete;

    /// Takes what the user has typed and chosen into the page.
    void Read(SetupPage& page) const;
    /// Shows what has changed in the page since it was read.
    void Refresh(const SetupPage& page);
    void FocusOn(PageField field) const;
    /// Whether it is a text on paper, whose Tab, Enter and Esc belong to the page.
    bool IsPaper(HWND control) const;

private:
    struct Shown {
        HWND control = nullptr;
        HWND button = nullptr;
    };

    HWND Add(const wchar_t* kind, const Text& text, DWORD style, const PixelRect& place, int id,
             DWORD exStyle = 0);
    HWND AddText(const Text& text, const PixelRect& place, int id, bool scrolls);
    void AddTitle(const SetupPage& page, const PageArrangement& arrangement);
    void AddPiece(const PagePiece& piece, const PlacedPiece& place);
    HWND AddField(const PagePiece& piece, const PlacedPiece& place);
    HWND AddRichPaper(const PagePiece& piece, const PlacedPiece& place);
    HWND AddList(const PagePiece& piece, const PlacedPiece& place);
    HWND AddCheckList(const PagePiece& piece, const PlacedPiece& place);
    void AddButtons(const SetupPage& page, const PageArrangement& arrangement,
                    const PageCaptions& captions);
    void Enable(const Shown& shown, bool isEnabled) const;

    HWND window_;
    const PageLetters& letters_;
    std::vector<HWND> all_;
    std::vector<Shown> pieces_; // of the piece at the same place
    SetupPage shown_;           // as the controls were last filled
};

} // namespace quillon
