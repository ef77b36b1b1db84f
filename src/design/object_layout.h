// Where each object of the setup's screen is on the preview surface: a record in, places out.
// Nothing here draws; the windows move their controls to what is answered.
//
// Places are twips in the coordinates of the tab's page, as the surface's own place is. They are
// worked out in 32 bits; a record keeps 16 of them. On a surface wider than 32767 twips no object
// goes beyond that: it would be shown at one place, and stored and installed at another.
#pragma once

#include "design/surface.h"
#include "project/project_file.h"

#include <array>
#include <functional>

namespace quillon {

struct PixelSize {
    Long width = 0;
    Long height = 0;
};

/// Twips to the nearest pixel, a half to the even neighbour.
Long PixelsOf(Long twips, Long twipsPerPixel);

/// The height of the machine's screen.
Long ScreenHeightInPixels(Long screenHeight, ScreenMetrics screen);

/// The left edge that keeps an object of width `w` inside the surface, as far as records reach.
Long ClampDesX(const SurfacePlace& surface, ScreenMetrics screen, Long x, Long w);
/// The same from top to bottom. Kept: here an object at the very top is moved one pixel down.
Long ClampDesY(const SurfacePlace& surface, ScreenMetrics screen, Long y, Long h);

/// The size of the picture in a file, in pixels. Throws `RunError` where there is none.
using MeasurePicture = std::function<PixelSize(const Text& file)>;

/// One of the three free pictures. The box is the area that reacts to the mouse; a stretched
/// picture fills it, any other is in it in its own size.
struct PictureBox {
    SurfacePlace place;
    bool isVisible = false;
    bool isStretched = false;
    // The file that it shows; empty where it shows none.
    Text file;
    // Its file, or one in front of it, could not be read: the record keeps its place.
    bool isUnread = false;
};
using PictureBoxes = std::array<PictureBox, section::kDesPictureCount>;

/// Lays the free pictures out. The record follows: a picture that isn't stretched gives it its
/// size, one that is larger than the surface becomes a stretched one, and every place is moved
/// inside the surface. A picture that can't be read ends the work with its `RunError` and is
/// hidden; a slot after it stays as it was, and is hidden where the record names another file by
/// now.
void LayOutPictures(section::DesPictures& record, PictureBoxes& boxes, SurfacePlace& surface,
                    ScreenMetrics screen, const MeasurePicture& measure);

/// The box of one picture of that size, whatever the others are.
PictureBox BoxOfPicture(section::DesPictures record, std::size_t index, PixelSize size,
                        SurfacePlace surface, ScreenMetrics screen);

/// Moves every box inside the surface and keeps the places in the record.
void KeepPicturesInsideDesign(section::DesPictures& record, PictureBoxes& boxes,
                              SurfacePlace& surface, ScreenMetrics screen);

struct ShownBox {
    SurfacePlace place;
    bool isVisible = false;
};

/// The rectangle of the changing pictures. Kept: it is not moved inside the surface.
ShownBox LayOutPicturesAnim(const section::DesPicturesAnim& record, ScreenMetrics screen);

struct LogotypeBox {
    SurfacePlace place;
    bool isVisible = false;
    bool isMetafile = false;
    bool isTooLarge = false;
    Colour BackColor = 0; // behind a metafile, which has no background of its own
};

/// What the logotype's place follows beside its record.
struct LogotypeSurround {
    SurfacePlace surface;
    Long tabWidth = 0; // of the whole `MainTab`, twips
    ScreenMetrics screen;
    SurfacePaint paint;
    // The background is to be a picture, also where its file can't be shown.
    bool isOnPicture = false;
};

/// Where a logotype of that size is. Kept: one placed right follows the width of the tab and
/// not the surface's. A metafile takes the size of its record in place of its own.
LogotypeBox PlaceLogotype(const section::DesLogotype& record, const LogotypeSurround& surround,
                          PixelSize size);

/// Whether the logotype is as wide or as high as the surface, which no setup shows.
bool IsLogotypeTooLarge(const LogotypeBox& logotype, const SurfacePlace& surface);

/// Lays the logotype out. One that is too large is hidden and `isTooLarge`. A picture that can't be
/// read is a `RunError`.
LogotypeBox LayOutLogotype(const section::DesLogotype& record, const LogotypeSurround& surround,
                           const MeasurePicture& measure);

/// Tells that the logotype is too large. The record keeps its name: it was perhaps made for a
/// larger window.
void TellLogotypeTooLarge(Ask& ask);

bool IsMetafileName(const Text& file);

/// The colour behind a metafile. Kept: black gives way to a dark grey, since metafiles are often
/// drawn in black.
Colour LogotypeBackColor(Colour ColorFrom, Colour ColorTo, bool isOnPicture);

struct TextBoxLayout {
    SurfacePlace box;
    SurfacePlace title; // inside the box; its height is the heading's own
    SurfacePlace text;  // inside the box
    bool isVisible = false;
};

/// `titleBottom` is the surface's pixel row below the title, `headingHeight` what the heading's
/// letters take, in twips. The box's place is kept in the record, also where a rule made it.
TextBoxLayout LayOutTextBox(section::DesTextBox& record, const SurfacePlace& surface,
                            ScreenMetrics screen, Long titleBottom, Long headingHeight);

/// The place of the RTF box, which the record keeps.
ShownBox LayOutRTFbox(section::DesRTFbox& record, const SurfacePlace& surface,
                      ScreenMetrics screen);

/// Where the file's name is in the RTF box, in twips.
inline constexpr Long kRTFNameLeft = 360;
inline constexpr Long kRTFNameTop = 30;

/// The value as far as a record's 16 bits reach.
Integer StoredPosition(Long twips);

} // namespace quillon
