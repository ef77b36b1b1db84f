// The window of the pages. It stays the same from page to page; its contents are made for each
// page.
#pragma once

#include "design/scalable_picture.h"
#include "runtime/pages/page.h"
#include "runtime/texts/language_file.h"
#include "runtime/win32/pages/page_controls.h"

#include <memory>
#include <optional>

namespace quillon {

class ScreenWindow;
class WindowAsk;
struct Display;

class PageWindow : public PageView {
public:
    using PictureSource = std::function<ScalablePicture(const Text& bitmap)>;

    /// `ask` is the window of the installation, which is hidden while a page is shown.
    /// `behind` is the screen, if there is one; it is notified when a page is shown or hidden.
    PageWindow(HINSTANCE instance, WindowAsk& ask, const LanguageTexts& texts,
               PictureSource pictures, ScreenWindow* behind = nullptr);
    ~PageWindow() override;
    PageWindow(const PageWindow&) = delete;
    PageWindow& operator=(const PageWindow&) = delete;

    PageAction Show(SetupPage& page, const PageListener& listener) override;
    void Hide() override;
    void SetVariables(const SetupVariables& variables) override;

private:
    static INT_PTR CALLBACK Receive(HWND window, UINT message, WPARAM word, LPARAM data);
    INT_PTR OnMessage(UINT message, WPARAM word, LPARAM data);
    void OnCommand(int id, int what);
    void OnListChange(const NMHDR& note, LPARAM data);
    bool TakesKeyOfPaper(const MSG& message);
    void Notify(PageField field);
    void Leave(PageAction action);
    void Build();
    void MoveToDisplay(const Display& display);
    void FitWindow(const PageArrangement& arrangement);
    void LoadPicture(const PixelRect& place);
    void Paint();
    void ChangeScale(int dpi, const RECT& place);
    PageCaptions Captions() const;
    void ShowBehind(bool isPageShown);

    WindowAsk& ask_;
    const LanguageTexts& texts_;
    PictureSource pictures_;
    ScreenWindow* behind_;
    HWND window_ = nullptr;
    std::unique_ptr<PageLetters> letters_;
    std::unique_ptr<PageControls> controls_;
    SetupPage* page_ = nullptr; // while it is shown
    const PageListener* listener_ = nullptr;
    std::optional<PageAction> action_;
    bool isBusy_ = false; // controls are made or filled: notifications are ignored
    bool isPlaced_ = false;
    std::optional<Text> shownBitmap_;
    ScalablePicture original_;
    Picture picture_;
    PixelRect pictureRect_;
};

} // namespace quillon
