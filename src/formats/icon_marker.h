// The field of a row that says whether the setup makes a shortcut to its file, and where.
#pragma once

#include "helpers/text.h"

namespace quillon {

inline constexpr const char* kIconMarker = "Ikon"; // in the program group
inline constexpr const char* kIconMarkerDesktop = "IkonD";
inline constexpr const char* kIconMarkerStartMenu = "IkonS";
inline constexpr const char* kIconMarkerPrograms = "IkonP";

// What such a marker ends with, after the English word too.
inline constexpr char kDesktopLetter = 'D';
inline constexpr char kStartMenuLetter = 'S';
inline constexpr char kProgramsLetter = 'P';
static_assert(std::string_view(kIconMarkerDesktop).back() == kDesktopLetter &&
              std::string_view(kIconMarkerStartMenu).back() == kStartMenuLetter &&
              std::string_view(kIconMarkerPrograms).back() == kProgramsLetter);

/// Case is ignored. Older projects have the English word.
inline bool HasIconMarker(std::string_view marker)
{
    const std::string_view word = marker.substr(0, 4);
    return EqualIgnoreCase(word, kIconMarker) || EqualIgnoreCase(word, "Icon");
}

} // namespace quillon
