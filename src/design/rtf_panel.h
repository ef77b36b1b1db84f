// The RTF box of the screen: a coloured panel with a formatted text in it.
#pragma once

#include "design/title_block.h"
#include "rtf/rtf_text.h"

namespace quillon {

struct RtfPanel {
    PixelRect box; // pixels of the painted screen
    Colour backColor = 0;
    double scale = 1; // of letters and distances
};

/// Paints what of the text the box has room for.
void PaintRtfPanel(const Canvas& canvas, Letters& letters, const RtfPanel& panel,
                   const RtfText& text);

} // namespace quillon
