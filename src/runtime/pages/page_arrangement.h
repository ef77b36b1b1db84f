// Where everything on a page stands, in pixels: arithmetic alone, so that it is the same at every
// scale and can be tested without a window. The shape is that of `formats/page_layout.h`.
#pragma once

#include "design/canvas.h"
#include "runtime/pages/page.h"

namespace quillon {

/// What the page's letters measure.
class PageRuler {
public:
    virtual ~PageRuler() = default;

    // A dialog unit in pixels.
    virtual double UnitWidth() const = 0;
    virtual double UnitHeight() const = 0;
    /// The height of a text that is broken into lines of that width.
    virtual int TextHeight(const Text& text, int width, bool isTitle) const = 0;
    /// The width of a line; '&' marks an access letter and takes no room.
    virtual int LineWidth(const Text& line) const = 0;
};

struct PlacedPiece {
    PixelRect label;
    PixelRect field;
    PixelRect button;
    bool scrolls = false; // a text that is higher than its place
};

struct PageArrangement {
    int width = 0; // inside the window's frame
    int height = 0;
    PixelRect picture;
    PixelRect title; // empty where there is none
    bool titleScrolls = false;
    std::vector<PlacedPiece> pieces; // of the piece at the same place
    int line = 0;                    // where the line above the buttons is
    // The buttons from left to right; the first ones are empty on a page that lacks them.
    PixelRect back;
    PixelRect forward;
    PixelRect away;
};

PageArrangement ArrangePage(const SetupPage& page, const PageRuler& ruler);

} // namespace quillon
