#include "design/forms/font_records.h"

#include "design/font_description.h"
#include "project/text_limits.h"

namespace quillon {

using section::DesTextBox;

const BoxFont kBoxTitleFont = {&DesTextBox::BoxTitleFontName, &DesTextBox::BoxTitleFontSize,
                               &DesTextBox::BoxTitleFontBold, &DesTextBox::BoxTitleFontItalic,
                               &DesTextBox::BoxTitleColor};
const BoxFont kBoxTextFont = {&DesTextBox::BoxTextFontName, &DesTextBox::BoxTextFontSize,
                              &DesTextBox::BoxTextFontBold, &DesTextBox::BoxTextFontItalic,
                              &DesTextBox::BoxTextColor};

FontChoice TitleFontOf(const section::DesTitle& title)
{
    return {.name = title.TitleFontName,
            .size = title.TitleFontSize,
            .isBold = title.TitleFontBold != kOff,
            .isItalic = title.TitleFontItalic != kOff,
            .maxNameLength = MaxTextLength(&section::DesTitle::TitleFontName)};
}

void SetTitleFont(section::DesTitle& title, const FontChoice& font)
{
    title.TitleFontName = font.name;
    title.TitleFontSize = font.size;
    title.TitleFontBold = font.isBold ? kOn : kOff;
    title.TitleFontItalic = font.isItalic ? kOn : kOff;
}

FontChoice FontOf(const DesTextBox& box, const BoxFont& fields)
{
    return {.name = box.*fields.name,
            .size = box.*fields.size,
            .isBold = box.*fields.bold != kOff,
            .isItalic = box.*fields.italic != kOff,
            .colour = box.*fields.colour,
            .maxNameLength = MaxTextLength(fields.name)};
}

void SetFont(DesTextBox& box, const BoxFont& fields, const FontChoice& font)
{
    box.*fields.name = font.name;
    box.*fields.size = font.size;
    box.*fields.bold = font.isBold ? kOn : kOff;
    box.*fields.italic = font.isItalic ? kOn : kOff;
    if (font.colour)
        box.*fields.colour = *font.colour;
}

Text DescriptionOf(const DesTextBox& box, const BoxFont& fields)
{
    return FontDescription(box.*fields.name, box.*fields.size, box.*fields.bold,
                           box.*fields.italic);
}

} // namespace quillon
