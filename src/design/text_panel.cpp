#include "design/text_panel.h"

namespace quillon {

namespace {

// In pixels of the author's surface, as the preview lays its labels out.
constexpr double kTextSide = 4;
constexpr double kBelowHeading = 14;
constexpr double kAboveEdge = 2;

ScreenFont HeadingFont(const section::DesTextBox& record, double scale)
{
    return ScaledFont(record.BoxTitleFontName, record.BoxTitleFontSize, record.BoxTitleFontBold,
                      record.BoxTitleFontItalic, scale);
}

ScreenFont BodyFont(const section::DesTextBox& record, double scale)
{
    return ScaledFont(record.BoxTextFontName, record.BoxTextFontSize, record.BoxTextFontBold,
                      record.BoxTextFontItalic, scale);
}

} // namespace

int HeadingHeight(Letters& letters, const section::DesTextBox& record)
{
    return letters.Height(HeadingFont(record, 1)).Line();
}

void PaintTextPanel(const Canvas& canvas, Letters& letters, const PixelRect& box,
                    const section::DesTextBox& record, const ScreenScale& scale, bool isFilled)
{
    Canvas inside = canvas;
    inside.clip = Intersect(canvas.clip, box);
    if (inside.clip.IsEmpty())
        return;
    if (isFilled)
        FillRect(inside, box, PixelOf(record.BoxBackColor));
    const ScreenFont headingFont = HeadingFont(record, scale.Both());
    const FontHeight heading = letters.Height(headingFont);
    PaintLine(inside, MakeLine(letters, headingFont, record.BoxTitle), box.left,
              box.top + heading.ascent, record.BoxTitleColor);

    const ScreenFont bodyFont = BodyFont(record, scale.Both());
    const FontHeight body = letters.Height(bodyFont);
    const int side = scale.HorizontalPixels(kTextSide);
    int top = box.top + heading.Line() + scale.VerticalPixels(kBelowHeading);
    inside.clip.bottom =
        std::min(inside.clip.bottom, box.bottom - scale.VerticalPixels(kAboveEdge));
    for (const Text& line : WrapText(letters, bodyFont, record.BoxText, box.Width() - 2 * side)) {
        if (top >= inside.clip.bottom)
            break;
        PaintLine(inside, MakeLine(letters, bodyFont, line), box.left + side, top + body.ascent,
                  record.BoxTextColor);
        top += body.Line();
    }
}

} // namespace quillon
