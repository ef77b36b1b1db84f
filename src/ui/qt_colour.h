// Colours of the product (0x00BBGGRR) and of Qt.
#pragma once

#include "project/records.h"

#include <QColor>

namespace quillon {

inline QColor ToQtColour(Colour colour)
{
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

inline Colour FromQtColour(const QColor& colour)
{
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

} // namespace quillon
