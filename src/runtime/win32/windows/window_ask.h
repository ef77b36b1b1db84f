// The setup's one window: a line that says what is being done, a bar, and a button to cancel.
// Message boxes are shown in front of it.
#pragma once

#include "platform/ask.h"
#include "runtime/texts/language_file.h"
#include "runtime/win32/windows/window_scale.h"

#include <memory>

namespace quillon {

class WindowAsk : public Ask {
public:
    /// Whether the window has a button to cancel; `ProcessEvents` throws only where it has.
    enum class CanCancel { Yes, No };
    /// The window stays in front of `behind`, if there is one.
    WindowAsk(HINSTANCE instance, const Text& title, const LanguageTexts& texts,
              CanCancel canCancel = CanCancel::Yes, HWND behind = nullptr);
    ~WindowAsk() override;
    WindowAsk(const WindowAsk&) = delete;
    WindowAsk& operator=(const WindowAsk&) = delete;

    void Show();
    void Hide();
    /// Where the window stands on the display: 1 to 3 from the left and from the top.
    void PlaceAt(int column, int row);
    /// While this window is hidden, boxes are shown in front of the given one.
    void SetOwner(HWND owner) { owner_ = owner; }

    void Inform(const Text& title, const Text& text) override;
    void Warn(const Text& title, const Text& text) override;
    void Critical(const Text& title, const Text& text) override;
    bool YesNo(const Text& title, const Text& text, Stops stops) override;
    bool OkCancel(const Text& title, const Text& text) override;
    Answer YesNoCancel(const Text& title, const Text& text) override;
    std::optional<Text> SelectDir(const Text& text, const Text& folder) override;
    void AddStatusLine(const Text& line) override;
    void ShowProgress(std::uint64_t done, std::uint64_t total) override;
    void ShowBusyPointer(bool) override {}
    void Beep() override;
    /// Throws `SetupFailure` of the code `Cancelled` after the user has cancelled and confirmed it.
    void ProcessEvents() override;

private:
    HWND BoxOwner() const;
    int ShowBox(const Text& title, const Text& text, UINT kind);
    void PumpMessages();
    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM word, LPARAM data);

    const LanguageTexts& texts_;
    Text title_;
    HWND window_ = nullptr;
    HWND owner_ = nullptr;
    HWND status_ = nullptr;
    HWND bar_ = nullptr;
    std::unique_ptr<WindowScale> scale_;
    int shownProgress_ = -1;
    const bool canCancel_;
    bool cancelPressed_ = false;
};

} // namespace quillon
