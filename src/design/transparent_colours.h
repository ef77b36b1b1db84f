// The colours that a picture can have taken out of it, under their names and in the order of the
// lists; `TransparentColorNr` counts them from 0.
#pragma once

namespace quillon {

inline constexpr const char* kTransparentColorNames[] = {"Gul",   "Röd",     "Blå",     "Grön",
                                                         "Cyan",  "Magenta", "Mörkröd", "Mörkblå",
                                                         "Svart", "Grå",     "Ljusgrå", "Vit"};

/// The one that a list begins with: "Svart".
inline constexpr int kDefaultTransparentColor = 8;

} // namespace quillon
