// The letters of the pages: the system's own font for messages, at the scale of the display that
// the window is on, and larger bold ones for titles.
#pragma once

#include "runtime/pages/page_arrangement.h"

#include <windows.h>

namespace quillon {

class PageLetters : public PageRuler {
public:
    /// `dpi` is that of the display; 96 is a display of normal size.
    explicit PageLetters(int dpi);
    ~PageLetters() override;
    PageLetters(const PageLetters&) = delete;
    PageLetters& operator=(const PageLetters&) = delete;

    double UnitWidth() const override { return unitWidth_; }
    double UnitHeight() const override { return unitHeight_; }
    int TextHeight(const Text& text, int width, bool isTitle) const override;
    int LineWidth(const Text& line) const override;

    HFONT Font() const { return font_; }
    HFONT TitleFont() const { return titleFont_; }

private:
    void Measure();

    HDC device_ = nullptr;
    HFONT font_ = nullptr;
    HFONT titleFont_ = nullptr;
    double unitWidth_ = 0;
    double unitHeight_ = 0;
};

/// The scale of the display that the window is on; without one, that of the system.
int DpiOf(HWND window);

} // namespace quillon
