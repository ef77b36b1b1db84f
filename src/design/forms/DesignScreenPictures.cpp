// The pictures of the design tab: how they are read, what is kept of them, and what is reported
// about those that can't be shown. All together take no more than `kMaxPicturesMemory`: the next
// one is read into what the others leave, and then kept in no more pixels than the tab shows.
#include "design/forms/DesignScreen.h"

#include "pictures/picture_file.h"
#include "platform/run_error.h"
#include "shell/session.h"

#include <QtWidgets>
#include <utility>

namespace quillon {

/// Empty where it can't be read: then the blend is painted, as the setup does.
ScalablePicture DesignScreen::ReadBackground()
{
    ScalablePicture picture;
    try {
        MeasureAndKeep(session_.project.DesBackground.PictureFilename, picture);
        reported_.erase(PictureStep::Background);
    } catch (const RunError& error) {
        TellPictureError(PictureStep::Background, error);
        paint_.UsePicture = false;
        return {};
    }
    // The surface grows with its window, as far as the screen has room.
    backgroundRoom_ = screen()->size().expandedTo(colorblendBackground_->size());
    const QSize pixels = backgroundRoom_ * devicePixelRatioF();
    if (paint_.StretchPicture)
        picture.KeepOnly(pixels.width(), pixels.height());
    else
        CropToMiddle(picture, pixels.width(), pixels.height(), devicePixelRatioF());
    return picture;
}

PixelSize DesignScreen::ReadDesPicture(std::size_t index)
{
    const section::DesPictures& record = session_.project.DesPictures;
    ScalablePicture& kept = pictures_[index];
    const PixelSize size = MeasureAndKeep(record.Pictures[index].PictureFilename, kept);
    if (const auto transparent = TransparentColourOf(record, index))
        kept.MakeTransparent(*transparent);
    KeepOnlyIn(BoxOfPicture(record, index, size, place_, session_.surface.screen).place, kept);
    return size;
}

/// Nothing is kept of one that is too large.
PixelSize DesignScreen::ReadDesLogotype()
{
    const section::DesLogotype& record = session_.project.DesLogotype;
    const PixelSize size = MeasureAndKeep(record.LogotypeFilename, logotype_);
    const LogotypeBox box = PlaceLogotype(record, SurroundOfLogotype(), size);
    if (IsLogotypeTooLarge(box, place_)) {
        logotype_ = {};
        return size;
    }
    if (const auto transparent = TransparentColourOf(record))
        logotype_.MakeTransparent(*transparent);
    KeepOnlyIn(box.place, logotype_);
    return size;
}

PixelSize DesignScreen::MeasureAndKeep(const Text& file, ScalablePicture& kept)
{
    kept = {};
    PictureResult read =
        ReadPictureFile(session_.host.files, file, kMaxPicturesMemory - PicturesMemory());
    if (read.fault != PictureFault::None)
        throw RunError(read.fault == PictureFault::NotFound ? ErrorNumber::kFileNotFound
                                                            : kInvalidPicture,
                       file);
    kept = std::move(read.picture);
    return {kept.Width(), kept.Height()};
}

void DesignScreen::KeepOnlyIn(const SurfacePlace& place, ScalablePicture& picture) const
{
    const auto [across, down] = session_.surface.screen;
    const QSize shown =
        (QSizeF(PixelsOf(place.Width, across), PixelsOf(place.Height, down)) * devicePixelRatioF())
            .toSize();
    picture.KeepOnly(shown.width(), shown.height());
}

std::int64_t DesignScreen::PicturesMemory() const
{
    std::int64_t memory = colorblendBackground_->PictureMemory() + logotype_.Memory();
    for (const ScalablePicture& picture : pictures_)
        memory += picture.Memory();
    return memory;
}

bool DesignScreen::IsUnreported(PictureStep step, const Text& file)
{
    return std::exchange(reported_[step], file) != file;
}

void DesignScreen::TellPictureError(PictureStep step, const RunError& error)
{
    // Of a file that is missing nothing is said; once it is there again, it is reported as any
    // other.
    if (error.Number() == ErrorNumber::kFileNotFound)
        reported_.erase(step);
    else if (IsUnreported(step, error.Path()))
        ShowErrorBoxIfPictureError(session_.ask, error.Number());
}

} // namespace quillon
