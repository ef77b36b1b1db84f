// The text box of the screen: a coloured panel with a heading and a text that wraps in it.
#pragma once

#include "design/title_block.h"

namespace quillon {

/// `box` is the panel in pixels of the painted screen. Lines below its edge are cut. With
/// `isFilled` off the text is painted on what is there already.
void PaintTextPanel(const Canvas& canvas, Letters& letters, const PixelRect& box,
                    const section::DesTextBox& record, const ScreenScale& scale, bool isFilled);

/// What the heading takes from above, in pixels of the author's surface.
int HeadingHeight(Letters& letters, const section::DesTextBox& record);

} // namespace quillon
