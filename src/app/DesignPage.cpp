#include "app/DesignPage.h"

#include "design/forms/ColorblendBackground.h"
#include "platform/run_error.h"
#include "ui/picture.h"

#include <QtWidgets>

namespace quillon {

DesignPage::DesignPage(Session& session)
    : session_(session), colorblendBackground_(new ColorblendBackground)
{
    setObjectName("DesignPage");
    colorblendBackground_->setParent(this);
}

void DesignPage::ShowSession()
{
    DrawDesBackground();
}

void DesignPage::DrawDesBackground()
{
    section::DesBackground& background = session_.project.DesBackground;
    paint_.UsePicture = background.Type != 1;
    paint_.StretchPicture = background.StretchPicture != kOff;
    QImage picture;
    if (paint_.UsePicture) {
        const FileSystem& files = session_.host.files;
        if (const auto loaded = LoadPicture(files, background.PictureFilename)) {
            picture = *loaded;
        } else {
            const int reason = files.FileExists(background.PictureFilename)
                                   ? kInvalidPicture
                                   : ErrorNumber::kFileNotFound;
            ShowErrorBoxIfPictureError(session_.ask, reason);
            background.PictureFilename.clear();
            paint_.UsePicture = false;
            // Kept: the colours stay those that were painted last.
            colorblendBackground_->Show(paint_);
            return;
        }
    }
    SetBlend(paint_, background);
    colorblendBackground_->Show(paint_, picture);
}

bool DesignPage::event(QEvent* event)
{
    // A page behind another one is not resized, but the size of the surface goes into the package.
    if (event->type() == QEvent::ParentChange && parentWidget()) {
        parentWidget()->installEventFilter(this);
        PlaceSurface(parentWidget()->size());
    }
    if (event->type() == QEvent::Show)
        DrawDesBackground();
    return Page::event(event);
}

bool DesignPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        PlaceSurface(parentWidget()->size());
    return Page::eventFilter(watched, event);
}

void DesignPage::PlaceSurface(QSize page)
{
    DesignSurface& surface = session_.surface;
    const auto [across, down] = surface.screen;
    const bool hasTallCaption =
        HasTallCaption(session_.host.machine.IsWindowsXP(),
                       style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
    PlaceDesignArea(place_, page.width() * across, page.height() * down + kTabCaptionsHeight,
                    hasTallCaption);
    const auto pixels = [](Long twips, int perPixel) {
        return static_cast<int>(RoundToEven(double(twips) / perPixel));
    };
    surface.width = pixels(place_.Width, across);
    surface.height = pixels(place_.Height, down);
    colorblendBackground_->setGeometry(pixels(place_.Left, across), pixels(place_.Top, down),
                                       surface.width, surface.height);
}

} // namespace quillon
