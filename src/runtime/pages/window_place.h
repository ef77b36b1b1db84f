// Where the setup's windows stand on the display that it is shown on. A display that lies left of
// the first one, or above it, has negative numbers.
#pragma once

#include "design/canvas.h"

namespace quillon {

struct WindowPlace {
    int left = 0;
    int top = 0;

    bool operator==(const WindowPlace&) const = default;
};

/// In the middle. A window that is larger than the display begins at its corner, where its caption
/// can be taken hold of.
WindowPlace InTheMiddle(const PixelRect& area, int width, int height);

/// At one of nine places, 1 to 3 from the left and from the top; the outer ones keep away from the
/// edge.
WindowPlace AtColumnAndRow(const PixelRect& area, int column, int row, int width, int height);

} // namespace quillon
