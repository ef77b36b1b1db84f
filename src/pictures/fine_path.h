// Outlines on a raster, in sixteenths of a pixel, and how pens and curves become outlines. Whole
// numbers throughout, so that every machine fills the same pixels.
#pragma once

#include <cstdint>
#include <vector>

namespace quillon {

inline constexpr int kFine = 16; // parts of a pixel

struct FinePoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const FinePoint&) const = default;
};

// Beyond every picture, and small enough that products of two fit in 64 bits with room to spare.
inline constexpr std::int32_t kMaxCoordinate = 1 << 24;

using FinePoints = std::vector<FinePoint>;

/// Closed outlines, one after the other.
struct FinePath {
    FinePoints points;
    std::vector<std::size_t> ends; // after each outline's last point

    void Close()
    {
        if (points.size() > (ends.empty() ? 0 : ends.back()))
            ends.push_back(points.size());
    }
};

/// The first row or column of pixels whose middle is at or after the place.
inline std::int32_t FirstPixelFrom(std::int64_t fine)
{
    const std::int64_t shifted = fine + kFine / 2 - 1;
    return static_cast<std::int32_t>(shifted >= 0 ? shifted / kFine
                                                  : -((-shifted + kFine - 1) / kFine));
}

struct FineRect {
    FinePoint first;
    FinePoint last;
};

/// The ellipse inside the rectangle, from its right end counterclockwise as it is seen.
FinePoints EllipseOf(const FineRect& rect);

/// The part of it from the direction of one point to that of another, counterclockwise; all of it
/// where both are the same.
FinePoints ArcOf(const FineRect& rect, FinePoint from, FinePoint to);

/// `across` and `down` are the corners' full sizes.
FinePoints RoundRectOf(const FineRect& rect, std::int32_t across, std::int32_t down);

/// What a round pen of that width covers on its way from point to point.
FinePath StrokeOf(const FinePoints& line, bool isClosed, std::int32_t width);

/// The dashes of a line: lengths that are drawn and left out in turn. At most `maxDashes` come
/// back.
std::vector<FinePoints> DashesOf(const FinePoints& line, const std::vector<std::int32_t>& lengths,
                                 std::size_t maxDashes);

} // namespace quillon
