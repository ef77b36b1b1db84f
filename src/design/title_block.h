// The top of the screen: the title with its shadow, its underline and the subtitle.
#pragma once

#include "design/text_line.h"

namespace quillon {

/// How much larger the painted screen is than the surface on which the author made it.
struct ScreenScale {
    double x = 1;
    double y = 1;

    /// For what must keep its proportions: letters, pictures in their own size.
    double Both() const { return x < y ? x : y; }
    int HorizontalPixels(double pixels) const;
    int VerticalPixels(double pixels) const;
    int BothPixels(double pixels) const;
};

struct TitleRecords {
    const section::DesTitle& title;
    const section::DesTitleUnderline& underline;
    const section::DesSubTitle& subTitle;
};

/// The places of the parts, in pixels of the painted screen.
struct TitleBlock {
    TextLine title;
    TextLine subTitle;
    int titleLeft = 0;
    int titleBaseline = 0;
    int subTitleLeft = 0;
    int subTitleBaseline = 0;
    int shadow = 0; // how far right and down; 0: none
    PixelRect underline;
    /// The pixel row below all of it.
    int TitleBottom = 0;
};

/// `width` is the painted screen's. The bands reckon with the em square, as a double click on the
/// surface does, so they do not depend on the system's fonts.
TitleBlock LayOutTitle(Letters& letters, const TitleRecords& records, const ScreenScale& scale,
                       int width);

void PaintTitle(const Canvas& canvas, const TitleBlock& block, const TitleRecords& records);

/// A font of a record at that scale. Records count points, of which an inch of 96 pixels has 72.
ScreenFont ScaledFont(const Text& name, Integer points, Flag bold, Flag italic, double scale);

} // namespace quillon
