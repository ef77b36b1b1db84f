#include "ui/controls/character_widths.h"

#include "helpers/utf8.h"

#include <QString>

namespace quillon {

int CharacterWidths::WidthOf(std::string_view text)
{
    int width = 0;
    for (std::size_t position = 0; position < text.size();)
        width += WidthOf(NextCodePoint(text, position));
    return width;
}

int CharacterWidths::WidthOf(char32_t character)
{
    const bool isAscii = character < ascii_.size();
    int& width = isAscii ? ascii_[character] : others_.try_emplace(character, -1).first->second;
    if (width < 0)
        width = metrics_.horizontalAdvance(QString::fromUcs4(&character, 1));
    return width;
}

} // namespace quillon
