// The fonts of the design's records, as the user is asked for them.
#pragma once

#include "platform/ask_looks.h"
#include "project/records.h"

namespace quillon {

FontChoice TitleFontOf(const section::DesTitle& title);
void SetTitleFont(section::DesTitle& title, const FontChoice& font);

/// The fields of one of the text box's two fonts, which have a colour each.
struct BoxFont {
    Text section::DesTextBox::*name;
    Integer section::DesTextBox::*size;
    Flag section::DesTextBox::*bold;
    Flag section::DesTextBox::*italic;
    Colour section::DesTextBox::*colour;
};
extern const BoxFont kBoxTitleFont;
extern const BoxFont kBoxTextFont;

FontChoice FontOf(const section::DesTextBox& box, const BoxFont& fields);
void SetFont(section::DesTextBox& box, const BoxFont& fields, const FontChoice& font);
Text DescriptionOf(const section::DesTextBox& box, const BoxFont& fields);

} // namespace quillon
