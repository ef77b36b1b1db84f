// The line below the title.
#pragma once

#include "design/canvas.h"
#include "design/number_fields.h"

namespace quillon {

/// Over the whole of `rect`:
/// - simple: the first colour;
/// - misty: the first colour along the middle, towards both edges the second one, which thins out;
/// - blended: from the first colour at the left end to the second at the right one.
void PaintUnderline(const Canvas& canvas, const PixelRect& rect,
                    const section::DesTitleUnderline& record);

} // namespace quillon
