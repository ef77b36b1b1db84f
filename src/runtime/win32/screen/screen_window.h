// The screen behind the pages: a window over the whole of one display, behind all other windows of
// the setup; other displays are not covered. It is painted once into memory; only the place of the
// changing pictures is painted again.
#pragma once

#include "runtime/pages/design_screen.h"
#include "runtime/win32/screen/gdi_letters.h"

#include <windows.h>

#include <functional>
#include <memory>

namespace quillon {

class ScreenWindow {
public:
    /// Makes the screen in the size of the display, with these variables in its texts.
    using MakeScreen = std::function<std::unique_ptr<DesignScreen>(const SetupVariables& variables,
                                                                   int width, int height)>;

    ScreenWindow(HINSTANCE instance, const Text& title, SetupVariables variables, MakeScreen make);
    ~ScreenWindow();
    ScreenWindow(const ScreenWindow&) = delete;
    ScreenWindow& operator=(const ScreenWindow&) = delete;

    void Show();
    /// Shown until the user presses Esc.
    void WaitForEscape();
    void SetPageShown(bool isShown);
    void SetVariables(const SetupVariables& variables);
    HWND Handle() const { return window_; }

private:
    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM word, LPARAM data);
    LRESULT OnMessage(UINT message, WPARAM word, LPARAM data);
    void FitDisplay();
    void PaintWhole();
    void Paint(const PixelRect& part);
    void OnPaint();

    SetupVariables variables_;
    MakeScreen make_;
    HWND window_ = nullptr;
    std::unique_ptr<DesignScreen> screen_;
    GdiLetters letters_;
    std::vector<Pixel> pixels_;
    bool isPageShown_ = false;
    bool isLeft_ = false;
};

} // namespace quillon
