#include "design/object_layout.h"

#include "design/number_fields.h"
#include "helpers/number_text.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

// The margin that an oversized picture leaves on the surface.
constexpr Long kOversizeMargin = 30;
// The logotype's distances from the left, the right and the lower edge.
constexpr Long kLogotypeSide = 380;
constexpr Long kLogotypeBelow = 200;
// A refused logotype's place.
constexpr Long kNoLogotype = 10;
constexpr Colour kDarkGrey = 0x1F1F1F;
// The text of a text box: its distances from the sides, the heading and the lower edge.
constexpr Long kTextSide = 60;
constexpr Long kBelowHeading = 210;
constexpr Long kAboveEdge = 30;
// The height that the frame of a text box takes.
constexpr Long kTextBoxFrame = 15;

Long Half(Long twips)
{
    return static_cast<Long>(RoundToEven(double(twips) / 2));
}

void LayOutPicture(section::DesPicture& picture, PictureBox& box, ScreenMetrics screen,
                   const MeasurePicture& measure)
{
    const bool hasFile = !picture.PictureFilename.empty();
    box.isVisible = false;
    box.isStretched = picture.StretchPicture != kOff;
    if (hasFile) {
        const PixelSize size = measure(picture.PictureFilename);
        if (!box.isStretched) {
            box.place.Width = size.width * screen.TPPX;
            box.place.Height = size.height * screen.TPPY;
            picture.PictureWidth = StoredPosition(size.width);
            picture.PictureHeight = StoredPosition(size.height);
        }
    }
    if (box.isStretched) {
        box.place.Width = picture.PictureWidth * screen.TPPX;
        box.place.Height = picture.PictureHeight * screen.TPPY;
    }
    // An empty slot has the size of no picture that was in it before.
    if (!hasFile && !box.isStretched)
        box.place.Width = box.place.Height = 0;
    box.isVisible = hasFile;
    box.file = picture.PictureFilename;
    box.isUnread = false;
    box.place.Left = picture.PictureXPos;
    box.place.Top = picture.PictureYPos;
}

void StretchOversized(section::DesPicture& picture, PictureBox& box, const SurfacePlace& surface)
{
    if (surface.Width <= box.place.Width) {
        picture.StretchPicture = kOn;
        box.place.Width = surface.Width - kOversizeMargin;
    }
    if (surface.Height <= box.place.Height) {
        picture.StretchPicture = kOn;
        box.place.Height = surface.Height - kOversizeMargin;
    }
    box.isStretched = picture.StretchPicture != kOff;
}

SurfacePlace InsideSurface(SurfacePlace box, const SurfacePlace& surface, ScreenMetrics screen)
{
    box.Left = std::max(ClampDesX(surface, screen, box.Left, box.Width), surface.Left);
    box.Top = ClampDesY(surface, screen, box.Top, box.Height);
    return box;
}

// Kept: the middle is reckoned from the page's edge, as if the surface began there.
Long CentredLeft(Long surfaceWidth, Long boxWidth)
{
    return std::max<Long>(Half(surfaceWidth) - Half(boxWidth), 0);
}

void LayOutLabels(TextBoxLayout& layout, Long headingHeight)
{
    layout.title = {.Left = 0, .Top = 0, .Width = layout.box.Width, .Height = headingHeight};
    layout.text.Left = kTextSide;
    layout.text.Width = layout.box.Width - 2 * kTextSide;
    layout.text.Top = layout.title.Top + headingHeight + kBelowHeading;
    layout.text.Height = std::max<Long>(layout.box.Height - layout.text.Top - kAboveEdge, 0);
}

} // namespace

Long PixelsOf(Long twips, Long twipsPerPixel)
{
    return static_cast<Long>(RoundToEven(double(twips) / twipsPerPixel));
}

Long ScreenHeightInPixels(Long screenHeight, ScreenMetrics screen)
{
    return PixelsOf(screenHeight, screen.TPPY);
}

Integer StoredPosition(Long twips)
{
    using Limits = std::numeric_limits<Integer>;
    return static_cast<Integer>(std::clamp<Long>(twips, Limits::min(), Limits::max()));
}

Long ClampDesX(const SurfacePlace& surface, ScreenMetrics screen, Long x, Long w)
{
    if (surface.Left > x)
        return StoredPosition(surface.Left);
    const Long right = surface.Left + surface.Width - screen.TPPX;
    return StoredPosition(right < x + w ? right - w : x);
}

Long ClampDesY(const SurfacePlace& surface, ScreenMetrics screen, Long y, Long h)
{
    if (surface.Top >= y)
        return StoredPosition(surface.Top + screen.TPPY);
    const Long bottom = surface.Top + surface.Height - screen.TPPY;
    return StoredPosition(bottom < y + h ? bottom - h : y);
}

void LayOutPictures(section::DesPictures& record, PictureBoxes& boxes, SurfacePlace& surface,
                    ScreenMetrics screen, const MeasurePicture& measure)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i].isVisible =
            boxes[i].isVisible && boxes[i].file == record.Pictures[i].PictureFilename;
        boxes[i].isUnread = true;
    }
    for (std::size_t i = 0; i < boxes.size(); ++i)
        LayOutPicture(record.Pictures[i], boxes[i], screen, measure);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        StretchOversized(record.Pictures[i], boxes[i], surface);
    KeepPicturesInsideDesign(record, boxes, surface, screen);
}

PictureBox BoxOfPicture(section::DesPictures record, std::size_t index, PixelSize size,
                        SurfacePlace surface, ScreenMetrics screen)
{
    for (std::size_t i = 0; i < record.Pictures.size(); ++i)
        if (i != index)
            record.Pictures[i].PictureFilename.clear();
    PictureBoxes boxes;
    LayOutPictures(record, boxes, surface, screen, [size](const Text&) { return size; });
    return boxes[index];
}

void KeepPicturesInsideDesign(section::DesPictures& record, PictureBoxes& boxes,
                              SurfacePlace& surface, ScreenMetrics screen)
{
    for (Long* edge : {&surface.Left, &surface.Top, &surface.Height, &surface.Width})
        *edge = std::max<Long>(*edge, 0);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (boxes[i].isUnread)
            continue;
        SurfacePlace& place = boxes[i].place;
        place.Left = ClampDesX(surface, screen, place.Left, place.Width);
        place.Top = ClampDesY(surface, screen, place.Top, place.Height);
        record.Pictures[i].PictureXPos = StoredPosition(place.Left);
        record.Pictures[i].PictureYPos = StoredPosition(place.Top);
    }
}

ShownBox LayOutPicturesAnim(const section::DesPicturesAnim& record, ScreenMetrics screen)
{
    return {.place = {.Left = record.PictureXPos,
                      .Top = record.PictureYPos,
                      .Width = record.PictureWidth * screen.TPPX,
                      .Height = record.PictureHeight * screen.TPPY},
            .isVisible = record.NrAnimPictures > 0};
}

bool IsMetafileName(const Text& file)
{
    return ContainsText(LowerCase(file), ".wmf");
}

Colour LogotypeBackColor(Colour ColorFrom, Colour ColorTo, bool isOnPicture)
{
    if (isOnPicture)
        return ColorFrom;
    return ColorTo == 0 ? kDarkGrey : ColorTo;
}

LogotypeBox PlaceLogotype(const section::DesLogotype& record, const LogotypeSurround& surround,
                          PixelSize size)
{
    LogotypeBox box{.isVisible = true,
                    .isMetafile = IsMetafileName(record.LogotypeFilename),
                    .BackColor = LogotypeBackColor(surround.paint.ColorFrom, surround.paint.ColorTo,
                                                   surround.isOnPicture)};
    if (box.isMetafile)
        size = {record.LogotypeWMFWidth, record.LogotypeWMFHeight};
    box.place.Width = size.width * surround.screen.TPPX;
    box.place.Height = size.height * surround.screen.TPPY;
    box.place.Left = record.LogotypeAlignment == Integer(DesignAlignment::Begin)
                         ? kLogotypeSide
                         : surround.tabWidth - box.place.Width - kLogotypeSide;
    box.place.Top = surround.surface.Height - box.place.Height - kLogotypeBelow;
    return box;
}

bool IsLogotypeTooLarge(const LogotypeBox& logotype, const SurfacePlace& surface)
{
    return surface.Width <= logotype.place.Width || surface.Height <= logotype.place.Height;
}

LogotypeBox LayOutLogotype(const section::DesLogotype& record, const LogotypeSurround& surround,
                           const MeasurePicture& measure)
{
    if (record.LogotypeFilename.empty())
        return {};
    LogotypeBox box = PlaceLogotype(record, surround, measure(record.LogotypeFilename));
    if (IsLogotypeTooLarge(box, surround.surface)) {
        box.isTooLarge = true;
        box.isVisible = false;
        box.place.Width = kNoLogotype;
        box.place.Height = kNoLogotype;
    }
    return box;
}

void TellLogotypeTooLarge(Ask& ask)
{
    ask.Critical("Kan ej lägga in bilden",
                 "Logotype-bildens bredd och höjd är för stor! Välj en bild som har mindre "
                 "dimensioner. Logotype-bildens mått får inte vara större än design-editorns "
                 "fönster.");
}

TextBoxLayout LayOutTextBox(section::DesTextBox& record, const SurfacePlace& surface,
                            ScreenMetrics screen, Long titleBottom, Long headingHeight)
{
    TextBoxLayout layout;
    SurfacePlace& box = layout.box;
    box.Width = record.BoxWidth * screen.TPPX;
    box.Height = std::max<Long>(record.BoxHeight * screen.TPPY - kTextBoxFrame, 0);
    box.Left = record.BoxCenter == kOff ? record.BoxXPos : CentredLeft(surface.Width, box.Width);
    box.Top = record.BoxPlaceBelowTitle == kOff ? record.BoxYPos : titleBottom * screen.TPPY;
    box = InsideSurface(box, surface, screen);
    record.BoxXPos = StoredPosition(box.Left);
    record.BoxYPos = StoredPosition(box.Top);
    layout.isVisible = record.ShowTextBox != kOff;
    LayOutLabels(layout, headingHeight);
    return layout;
}

ShownBox LayOutRTFbox(section::DesRTFbox& record, const SurfacePlace& surface, ScreenMetrics screen)
{
    const SurfacePlace place{.Left = record.RTFboxXPos,
                             .Top = record.RTFboxYPos,
                             .Width = record.RTFboxWidth * screen.TPPX,
                             .Height = record.RTFboxHeight * screen.TPPY};
    const ShownBox box{InsideSurface(place, surface, screen), record.ShowRTFbox != kOff};
    record.RTFboxXPos = StoredPosition(box.place.Left);
    record.RTFboxYPos = StoredPosition(box.place.Top);
    return box;
}

} // namespace quillon
