// The whole screen behind the setup, painted from the records of a project: what the setup shows,
// what `quillonc screen` writes, and, part by part, what the design tab previews.
#pragma once

#include "design/object_layout.h"
#include "design/rtf_panel.h"
#include "design/scalable_picture.h"

namespace quillon {

/// The decoded files of a design; what it lacks is empty.
struct ScreenPictures {
    ScalablePicture background;
    std::array<ScalablePicture, section::kDesPictureCount> pictures;
    ScalablePicture changing;
    ScalablePicture logotype;
};

struct ScreenDesign {
    // Its design sections; the texts have their variables expanded.
    const Project& project;
    // The surface on which the author made it, in pixels.
    int width = 640;
    int height = 480;
    ScreenMetrics metrics;

    const ScreenPictures& pictures;
    const RtfText* rtfBox = nullptr; // null where it can't be read
    // The three free pictures, while a page of the setup is shown; no other object has that field.
    bool hidesPictures = false;
};

/// Paints the canvas's clip. The design is scaled to the canvas: places and sizes in both
/// directions, letters and pictures of their own size by the smaller factor.
void PaintScreen(const Canvas& canvas, Letters& letters, const ScreenDesign& design);

/// Keeps of the pictures no more than what a screen of that size shows: `PaintScreen` makes the
/// same of them, and needs no further memory for it. `design.pictures` are these.
void KeepOnlyShown(ScreenPictures& pictures, const ScreenDesign& design, int width, int height);

/// Where the changing pictures are shown on a canvas of that size; empty where there are none.
PixelRect ChangingPicturesRect(const ScreenDesign& design, int width, int height);

} // namespace quillon
