#include "design/dragging.h"

namespace quillon {

DesDrag::DesDrag(const SurfacePlace& object, const SurfacePlace& surface, ScreenMetrics screen,
                 Long x, Long y)
    : object_(object), surface_(surface), screen_(screen), downX_(x), downY_(y),
      DesDragOffsetX_(x - object.Left), DesDragOffsetY_(y - object.Top)
{
}

DragRect DesDrag::Move(Long x, Long y)
{
    DesDragging_ = true;
    return RectAt(x, y);
}

std::optional<SurfacePlace> DesDrag::Release(Long x, Long y) const
{
    if (!DesDragging_)
        return {};
    SurfacePlace place = object_;
    place.Left = x - DesDragOffsetX_;
    place.Top = y - DesDragOffsetY_;
    return place;
}

// Kept: object and surface are rounded each by itself, so the rectangle may lie a pixel beside the
// object.
DragRect DesDrag::RectAt(Long x, Long y) const
{
    return {.x =
                PixelsOf(x - DesDragOffsetX_, screen_.TPPX) - PixelsOf(surface_.Left, screen_.TPPX),
            .y = PixelsOf(y - DesDragOffsetY_, screen_.TPPY) - PixelsOf(surface_.Top, screen_.TPPY),
            .w = PixelsOf(object_.Width, screen_.TPPX),
            .h = PixelsOf(object_.Height, screen_.TPPY)};
}

SurfacePlace ClampDesPlace(SurfacePlace place, const SurfacePlace& surface, ScreenMetrics screen)
{
    place.Left = ClampDesX(surface, screen, place.Left, place.Width);
    place.Top = ClampDesY(surface, screen, place.Top, place.Height);
    return place;
}

} // namespace quillon
