// What the screen has behind everything else: a blend of two colours.
#pragma once

#include "design/canvas.h"

namespace quillon {

/// The values of `DesBackground::Type`.
enum class BackgroundType : Integer { Colours = 1, Picture = 2 };

enum class BlendStyle : Integer { ToTheRight, ToTheLeft, Upwards, Downwards, Outwards };

// The values of `DesBackground::BlendDirection`: no blend, then one for each style.
inline constexpr Integer kNoBlend = 0;

constexpr Integer BlendDirectionOf(BlendStyle style)
{
    return static_cast<Integer>(static_cast<Integer>(style) + 1);
}

inline constexpr Integer kMaxBlendDirection = BlendDirectionOf(BlendStyle::Outwards);

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
