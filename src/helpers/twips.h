// The unit of the places and sizes in projects and in RTF, 1/1440 inch.
#pragma once

namespace quillon {

/// Of a screen with 96 pixels per inch.
inline constexpr int kTwipsPerPixel = 15;

} // namespace quillon
