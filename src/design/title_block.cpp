#include "design/title_block.h"

#include "design/number_fields.h"
#include "design/underline.h"
#include "helpers/number_text.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72;
// In pixels of the author's surface.
constexpr int kSide = 20;
constexpr int kAboveTitle = 5;
constexpr int kRoundTitle = 10; // above and below together
constexpr int kAboveUnderline = 13;
constexpr int kBelowUnderline = 1;
constexpr int kAboveSubTitle = 2;
constexpr int kSubTitleHeight = 18;
constexpr int kSubTitleAloneHeight = 20;
constexpr Integer kSubTitlePoints = 10;
// The shadow lies this part of the letters' size to the right and down.
constexpr int kShadowPart = 14;
constexpr Colour kShadowColour = 0;

// A title's spacing is a number kept as text, within what its editor allows.
int Spacing(const Text& text)
{
    return static_cast<int>(std::clamp<std::int64_t>(LeadingNumber(text), -10, 100));
}

int LeftOf(int lineWidth, Integer alignment, int side, int width)
{
    if (alignment == Integer(DesignAlignment::Centre))
        return (width - lineWidth) / 2;
    return alignment == Integer(DesignAlignment::End) ? width - side - lineWidth : side;
}

ScreenFont TitleFont(const section::DesTitle& title, double scale)
{
    return ScaledFont(title.TitleFontName, title.TitleFontSize, title.TitleFontBold,
                      title.TitleFontItalic, scale);
}

// Lays the parts out from the top down, in pixels of the author's surface.
class Layout {
public:
    Layout(Letters& letters, const TitleRecords& records, const ScreenScale& scale, int width)
        : letters_(letters), records_(records), scale_(scale), width_(width),
          side_(scale.HorizontalPixels(kSide))
    {
    }

    TitleBlock Run()
    {
        PlaceTitle();
        if (records_.underline.UnderlineType > 0)
            PlaceUnderline();
        if (!records_.subTitle.SubTitleText.empty())
            PlaceSubTitle();
        block_.TitleBottom = scale_.VerticalPixels(bottom_);
        return block_;
    }

private:
    void PlaceTitle()
    {
        const section::DesTitle& title = records_.title;
        const ScreenFont font = TitleFont(title, scale_.Both());
        block_.title = MakeLine(letters_, font, title.TitleText,
                                scale_.BothPixels(Spacing(title.TitleCharInterSpace)));
        block_.titleLeft = LeftOf(block_.title.width, title.TitleAlignment, side_, width_);
        block_.titleBaseline = scale_.VerticalPixels(kAboveTitle) + letters_.Height(font).ascent;
        if (title.TitleShadow != kOff)
            block_.shadow = std::max(font.size / kShadowPart, 1);
        bottom_ =
            static_cast<double>(RoundToEven(title.TitleFontSize * kPixelsPerPoint)) + kRoundTitle;
    }

    void PlaceUnderline()
    {
        const section::DesTitleUnderline& line = records_.underline;
        const bool textOnly = line.UnderlineTextOnly != 0;
        const int height = std::max<int>(line.UnderlineHeight, 0);
        block_.underline.left = textOnly ? block_.titleLeft : side_;
        block_.underline.right = textOnly ? block_.titleLeft + block_.title.width : width_ - side_;
        block_.underline.top = scale_.VerticalPixels(bottom_ + kAboveUnderline);
        block_.underline.bottom = scale_.VerticalPixels(bottom_ + kAboveUnderline + height);
        bottom_ += kAboveUnderline + height + kBelowUnderline;
    }

    void PlaceSubTitle()
    {
        const ScreenFont font = ScaledFont(records_.title.TitleFontName, kSubTitlePoints, kOff,
                                           records_.title.TitleFontItalic, scale_.Both());
        const bool isAlone = records_.underline.UnderlineType <= 0;
        const double top = bottom_ + (isAlone ? kAboveSubTitle : 1);
        block_.subTitle = MakeLine(letters_, font, records_.subTitle.SubTitleText);
        block_.subTitleLeft =
            LeftOf(block_.subTitle.width, records_.title.TitleAlignment, side_, width_);
        block_.subTitleBaseline = scale_.VerticalPixels(top) + letters_.Height(font).ascent;
        bottom_ = top + (isAlone ? kSubTitleAloneHeight : kSubTitleHeight);
    }

    Letters& letters_;
    const TitleRecords& records_;
    const ScreenScale& scale_;
    int width_;
    int side_;
    double bottom_ = 0;
    TitleBlock block_;
};

} // namespace

int ScreenScale::HorizontalPixels(double pixels) const
{
    return static_cast<int>(RoundToEven(pixels * x));
}

int ScreenScale::VerticalPixels(double pixels) const
{
    return static_cast<int>(RoundToEven(pixels * y));
}

int ScreenScale::BothPixels(double pixels) const
{
    return static_cast<int>(RoundToEven(pixels * Both()));
}

ScreenFont ScaledFont(const Text& name, Integer points, Flag bold, Flag italic, double scale)
{
    return {.name = name,
            .size = std::max(static_cast<int>(RoundToEven(points * kPixelsPerPoint * scale)), 1),
            .isBold = bold != kOff,
            .isItalic = italic != kOff};
}

TitleBlock LayOutTitle(Letters& letters, const TitleRecords& records, const ScreenScale& scale,
                       int width)
{
    return Layout(letters, records, scale, width).Run();
}

void PaintTitle(const Canvas& canvas, const TitleBlock& block, const TitleRecords& records)
{
    const Colour colour = records.title.TitleForeColor;
    PaintUnderline(canvas, block.underline, records.underline);
    if (block.shadow > 0)
        PaintLine(canvas, block.title, block.titleLeft + block.shadow,
                  block.titleBaseline + block.shadow, kShadowColour);
    PaintLine(canvas, block.title, block.titleLeft, block.titleBaseline, colour);
    PaintLine(canvas, block.subTitle, block.subTitleLeft, block.subTitleBaseline, colour);
}

} // namespace quillon
