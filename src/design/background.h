// What the screen has behind everything else: a blend of two colours.
#pragma once

#include "design/canvas.h"

namespace quillon {

/// The ways of a blend, as `BlendDirection` less one counts them.
enum class BlendStyle : Integer { ToTheRight, ToTheLeft, Upwards, Downwards, Outwards };

struct Blend {
    Colour ColorFrom = 0;
    Colour ColorTo = 0;
    Long BlendDepth = 100; // percent, see `BlendColour`
    quillon::BlendStyle BlendStyle = quillon::BlendStyle::Downwards;
};

/// The blend over the whole of `area`, of which only the canvas's clip is painted. A style that
/// there is not falls downwards.
void PaintBlend(const Canvas& canvas, const PixelRect& area, const Blend& blend);

} // namespace quillon
