// Moving an object of the design with the mouse or the arrow keys: the rectangle that is shown on
// the way and the place that is left at the end.
#pragma once

#include "design/object_layout.h"

#include <optional>

namespace quillon {

/// The colour of the rectangle while an object is dragged.
inline constexpr Colour kDesDragRectColor = 0xE0E0E0;

/// In pixels, from the surface's top left.
struct DragRect {
    Long x = 0;
    Long y = 0;
    Long w = 0;
    Long h = 0;

    bool operator==(const DragRect&) const = default;
};

/// One drag, from the press to the release. Mouse positions are twips from the object's own top
/// left, as its window gives them.
class DesDrag {
public:
    DesDrag(const SurfacePlace& object, const SurfacePlace& surface, ScreenMetrics screen, Long x,
            Long y);

    /// The rectangle of the press itself.
    DragRect Start() const { return RectAt(downX_, downY_); }
    DragRect Move(Long x, Long y);
    /// The object's new place before it is moved inside the surface; nothing where the mouse did
    /// not move.
    std::optional<SurfacePlace> Release(Long x, Long y) const;

private:
    DragRect RectAt(Long x, Long y) const;

    SurfacePlace object_;
    SurfacePlace surface_;
    ScreenMetrics screen_;
    Long downX_;
    Long downY_;
    Long DesDragOffsetX_;
    Long DesDragOffsetY_;
    bool DesDragging_ = false;
};

/// The place inside the surface, by the rules of `ClampDesX` and `ClampDesY`.
SurfacePlace ClampDesPlace(SurfacePlace place, const SurfacePlace& surface, ScreenMetrics screen);

} // namespace quillon
