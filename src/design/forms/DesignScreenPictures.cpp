// The pictures of the design tab: how they are read, what is kept of them, and what is reported
// about those that can't be shown. All together take no more than `kMaxPicturesMemory`: the next
// one is read into what the others leave, and then kept in no more pixels than the tab shows.
#include "design/forms/DesignScreen.h"

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
        TellShown(PictureStep::Background);
    } catch (const PictureError& error) {
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

void DesignScreen::ForgetPictures()
{
    pictures_ = {};
    boxes_ = {};
}

std::optional<PictureError> DesignScreen::LayOutDesPictures()
{
    section::DesPictures& record = session_.project.DesPictures;
    // A slot keeps its picture until it is read again, also while an earlier picture can't be read.
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        if (boxes_[i].file != record.Pictures[i].PictureFilename)
            pictures_[i] = {};
    std::size_t next = 0;
    const auto measure = [&](const Text&) {
        while (record.Pictures[next].PictureFilename.empty())
            ++next;
        return ReadDesPicture(next++);
    };
    return PictureErrorOf(
        [&] { LayOutPictures(record, boxes_, place_, session_.surface.screen, measure); });
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
        throw PictureError(read.fault, file);
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

void DesignScreen::TellPictureError(PictureStep step, const PictureError& error)
{
    // A file that is no picture is reported once in a box, and again after it was missing or could
    // not be read in between.
    if (error.Number() != kInvalidPicture)
        reported_.erase(step);
    else if (IsUnreported(step, error.Path()))
        ShowErrorBoxIfPictureError(session_.ask, error.Number());
    // No picture is chosen: nothing is missing.
    if (error.Path().empty())
        return ShowWhyMissing(step, {});
    ShowWhyMissing(step, PictureFaultText(error.Fault(), error.Path()) + " " +
                             PictureFaultAdvice(error.Fault()));
}

void DesignScreen::TellShown(PictureStep step)
{
    reported_.erase(step);
    ShowWhyMissing(step, {});
}

void DesignScreen::TellTooLargeLogotype()
{
    ShowWhyMissing(PictureStep::Logotype, {});
    if (IsUnreported(PictureStep::Logotype, session_.project.DesLogotype.LogotypeFilename))
        TellLogotypeTooLarge(session_.ask);
}

void DesignScreen::ForgetWhyMissing()
{
    for (const PictureStep step :
         {PictureStep::Background, PictureStep::Pictures, PictureStep::Logotype})
        ShowWhyMissing(step, {});
}

void DesignScreen::ShowWhyMissing(PictureStep step, const Text& why)
{
    // What others say in the status bar stays there. Behind another tab nothing is missing that
    // can be seen; the tab that comes in front is drawn anew.
    if (why.empty() ? !whyMissing_.contains(step) : !isVisible())
        return;
    if (why.empty())
        whyMissing_.erase(step);
    else
        whyMissing_[step] = why;
    session_.ask.ShowStatusText(whyMissing_.empty() ? Text() : whyMissing_.begin()->second);
}

} // namespace quillon
