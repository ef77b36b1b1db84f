// Where the arguments of a metafile's calls stand in their records (the source of the numbers is
// [MS-WMF], 2.3): words counted from the end of the record's header, the last argument of a call
// first; what begins at a byte says so in its name.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quillon::metafile {

using Word = std::size_t;

/// In bytes from the begin of a file that a program which draws has written.
namespace placeable {
inline constexpr std::size_t kLeft = 6, kTop = 8, kRight = 10, kBottom = 12, kUnitsPerInch = 14;
}

/// In bytes from the begin of the header that every metafile has.
namespace header {
inline constexpr std::size_t kType = 0, kHeaderWords = 2, kVersion = 4, kFileWords = 6;
inline constexpr std::uint16_t kInMemory = 1, kOnDisk = 2, kVersion1 = 0x0100, kVersion3 = 0x0300;
} // namespace header

/// MoveTo, LineTo, SetWindowOrg, OffsetWindowOrg, OffsetClipRgn.
namespace point {
inline constexpr Word kY = 0, kX = 1;
}

/// SetWindowExt.
namespace extent {
inline constexpr Word kHeight = 0, kWidth = 1;
}

/// ScaleWindowExt.
namespace scale {
inline constexpr Word kYDivisor = 0, kYFactor = 1, kXDivisor = 2, kXFactor = 3;
}

/// A rectangle that begins at any word.
namespace rectangle {
inline constexpr Word kBottom = 0, kRight = 1, kTop = 2, kLeft = 3;
}

namespace round_rect {
inline constexpr Word kHeight = 0, kWidth = 1, kRect = 2;
}

/// Arc, Pie, Chord: the two rays from the centre, and the ellipse's rectangle.
namespace arc {
inline constexpr Word kEndY = 0, kEndX = 1, kStartY = 2, kStartX = 3, kRect = 4;
}

namespace set_pixel {
inline constexpr Word kY = 2, kX = 3; // after the colour
}

/// Polygon, Polyline: a count and the points. PolyPolygon: a count, the counts and the points.
namespace polygon {
inline constexpr std::size_t kPointsAtByte = 2, kCountsAtByte = 2;
}

namespace pen {
inline constexpr Word kStyle = 0, kWidth = 1;
inline constexpr std::size_t kColourAtByte = 6; // the width is a point, whose y nothing uses
} // namespace pen

namespace brush {
inline constexpr Word kStyle = 0, kHatch = 3;
inline constexpr std::size_t kColourAtByte = 2, kPatternAtByte = 4;
} // namespace brush

namespace font {
inline constexpr Word kHeight = 0, kWeight = 4;
inline constexpr std::size_t kItalicAtByte = 10, kUnderlineAtByte = 11, kStrikeOutAtByte = 12,
                             kNameAtByte = 18, kNameBytes = 32;
} // namespace font

/// The region's bounds follow seven words about the rest.
namespace region {
inline constexpr Word kLeft = 7, kTop = 8, kRight = 9, kBottom = 10, kWords = 11;
}

/// A count, the text, padded to words, and the place.
namespace text_out {
inline constexpr std::size_t kTextAtByte = 2, kYAfterText = 0, kXAfterText = 2, kPlaceBytes = 4;
}

/// The rectangle is there only where an option uses it.
namespace ext_text_out {
inline constexpr Word kY = 0, kX = 1, kCount = 2, kOptions = 3, kLeft = 4, kTop = 5, kRight = 6,
                      kBottom = 7;
inline constexpr std::size_t kTextAtByte = 8, kTextAfterRectAtByte = 16;
} // namespace ext_text_out

/// The operation of PatBlt and of the bitmaps: four bytes, of which the third is its table.
inline constexpr std::size_t kOperationTableAtByte = 2;

namespace pat_blt {
inline constexpr Word kHeight = 2, kWidth = 3, kTop = 4, kLeft = 5;
}

/// Where one of the calls that bring a bitmap has its rectangles.
struct BitmapLayout {
    Word height, width, top, left;                         // of the target
    Word sourceHeight, sourceWidth, sourceTop, sourceLeft; // in the bitmap
    std::size_t bitmapAtByte;
    bool hasOperation = true;
    bool countsFromBottom = false;
};

// As large in the bitmap as in the target.
inline constexpr BitmapLayout kDIBBitBltLayout{.height = 4,
                                               .width = 5,
                                               .top = 6,
                                               .left = 7,
                                               .sourceHeight = 4,
                                               .sourceWidth = 5,
                                               .sourceTop = 2,
                                               .sourceLeft = 3,
                                               .bitmapAtByte = 16};

inline constexpr BitmapLayout kDIBStretchBltLayout{.height = 6,
                                                   .width = 7,
                                                   .top = 8,
                                                   .left = 9,
                                                   .sourceHeight = 2,
                                                   .sourceWidth = 3,
                                                   .sourceTop = 4,
                                                   .sourceLeft = 5,
                                                   .bitmapAtByte = 20};

inline constexpr BitmapLayout kStretchDIBitsLayout{.height = 7,
                                                   .width = 8,
                                                   .top = 9,
                                                   .left = 10,
                                                   .sourceHeight = 3,
                                                   .sourceWidth = 4,
                                                   .sourceTop = 5,
                                                   .sourceLeft = 6,
                                                   .bitmapAtByte = 22,
                                                   .countsFromBottom = true};

inline constexpr BitmapLayout kSetDIBitsToDeviceLayout{.height = 5,
                                                       .width = 6,
                                                       .top = 7,
                                                       .left = 8,
                                                       .sourceHeight = 5,
                                                       .sourceWidth = 6,
                                                       .sourceTop = 3,
                                                       .sourceLeft = 4,
                                                       .bitmapAtByte = 18,
                                                       .hasOperation = false,
                                                       .countsFromBottom = true};

} // namespace quillon::metafile
