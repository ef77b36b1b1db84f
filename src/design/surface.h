// The preview surface of the setup's background: where it is on its tab, and what it is painted
// with.
#pragma once

#include "design/background.h"
#include "platform/ask.h"
#include "project/records.h"

namespace quillon {

/// In twips, from the top left of the tab's page.
struct SurfacePlace {
    Long Left = 0;
    Long Top = 0;
    Long Width = 0;
    Long Height = 0;

    bool operator==(const SurfacePlace&) const = default;
};

/// Between the tab's page and the surface, left and above, in twips.
inline constexpr Long kSurfaceMargin = 80;

/// What the tab's row of captions takes of the height that `PlaceDesignArea` reckons with.
inline constexpr Long kTabCaptionsHeight = 325;

/// `tabWidth` and `tabHeight` are the whole of `MainTab`, with its captions. A tab too small for a
/// surface leaves its size as it was.
void PlaceDesignArea(SurfacePlace& surface, Long tabWidth, Long tabHeight, bool hasTallCaption);

/// Whether windows on this machine have captions that take room from the surface.
bool HasTallCaption(bool isWindowsXP, int captionPixels);

struct SurfacePaint {
    bool UsePicture = false;
    bool StretchPicture = false;
    Colour ColorFrom = 0;
    Colour ColorTo = 0;
    Long BlendDepth = 100;
    quillon::BlendStyle BlendStyle = quillon::BlendStyle::Downwards;
};

/// The part of the paint that has no picture.
Blend BlendOf(const SurfacePaint& paint);

/// Whether the background is to be a picture, whatever can be shown of it.
bool IsOnPicture(const section::DesBackground& background);

/// The colours of the record. Kept: a single colour is a blend from the colour to itself, and
/// leaves the depth of the blend before it.
void SetBlend(SurfacePaint& paint, const section::DesBackground& background);

inline constexpr int kInvalidPicture = 481;

/// Kept: a box is shown for only two of the ways in which a picture can fail.
void ShowErrorBoxIfPictureError(Ask& ask, int errorNumber);

} // namespace quillon
