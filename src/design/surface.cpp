#include "design/surface.h"

#include "helpers/number_text.h"
#include "platform/run_error.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

constexpr Long kWidthBeside = 160;
constexpr Long kHeightBeside = 485;
constexpr Long kTallCaptionTakes = 30;
constexpr int kUsualCaption = 20;
constexpr Long kWholeDepth = 100;

Long DepthOf(const Text& depth)
{
    if (depth.empty())
        return kWholeDepth;
    return static_cast<Long>(std::clamp<std::int64_t>(
        LeadingNumber(depth), std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()));
}

} // namespace

void PlaceDesignArea(SurfacePlace& surface, Long tabWidth, Long tabHeight, bool hasTallCaption)
{
    surface.Left = kSurfaceMargin;
    surface.Top = kSurfaceMargin;
    const Long width = tabWidth - (kWidthBeside + (hasTallCaption ? kTallCaptionTakes : 0));
    if (width > 0)
        surface.Width = width;
    const Long height = tabHeight - kHeightBeside;
    if (height > 0)
        surface.Height = height;
}

bool HasTallCaption(bool isWindowsXP, int captionPixels)
{
    return isWindowsXP && captionPixels > kUsualCaption;
}

Blend BlendOf(const SurfacePaint& paint)
{
    return {paint.ColorFrom, paint.ColorTo, paint.BlendDepth, paint.BlendStyle};
}

bool IsOnPicture(const section::DesBackground& background)
{
    return background.Type == Integer(BackgroundType::Picture);
}

void SetBlend(SurfacePaint& paint, const section::DesBackground& background)
{
    paint.ColorFrom = background.BackColor1;
    if (background.BlendDirection <= kNoBlend) {
        paint.ColorTo = background.BackColor1;
        paint.BlendStyle = BlendStyle::ToTheLeft;
        return;
    }
    paint.ColorTo = background.BackColor2;
    paint.BlendDepth = DepthOf(background.BlendDepth);
    paint.BlendStyle = BlendStyle(background.BlendDirection - BlendDirectionOf(BlendStyle{}));
}

void ShowErrorBoxIfPictureError(Ask& ask, int errorNumber)
{
    if (errorNumber == kInvalidPicture)
        ask.Critical("Fel bildformat", "Filen som du valde är ej ett giltigt bildformat!");
    else if (errorNumber == ErrorNumber::kTypeMismatch)
        ask.Critical("Design Screen Error",
                     "Internal Error #13 - Type mismatch error occured in Design screen!");
}

} // namespace quillon
