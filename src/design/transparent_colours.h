// The colours that a picture can have taken out of it, in the order of the lists;
// `TransparentColorNr` counts them from 0.
#pragma once

#include "project/records.h"

#include <array>

namespace quillon {

struct NamedColour {
    const char* name;
    Colour colour;
};

// clang-format off
inline constexpr std::array<NamedColour, 12> kTransparentColors = {{
    {"Gul",     0x00FFFF},
    {"Röd",     0x0000FF},
    {"Blå",     0xFF0000},
    {"Grön",    0x00FF00},
    {"Cyan",    0xFFFF00},
    {"Magenta", 0xFF00FF},
    {"Mörkröd", 0x000080},
    {"Mörkblå", 0x800000},
    {"Svart",   0x000000},
    {"Grå",     0x808080},
    {"Ljusgrå", 0xC0C0C0},
    {"Vit",     0xFFFFFF},
}};
// clang-format on

inline constexpr std::array kTransparentColorNames = [] {
    std::array<const char*, kTransparentColors.size()> names{};
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = kTransparentColors[i].name;
    return names;
}();

/// The one that a list begins with: "Svart".
inline constexpr int kDefaultTransparentColor = 8;

} // namespace quillon
