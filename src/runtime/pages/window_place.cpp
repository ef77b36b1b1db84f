#include "runtime/pages/window_place.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr int kFirst = 1;
constexpr int kLast = 3;
constexpr int kFromEdge = 24; // pixels

int Middle(int first, int last, int size)
{
    return std::max(first, first + (last - first - size) / 2);
}

int PlaceOf(int number, int first, int last, int size)
{
    if (number == kFirst)
        return first + kFromEdge;
    if (number == kLast)
        return std::max(first, last - kFromEdge - size);
    return Middle(first, last, size);
}

} // namespace

WindowPlace InTheMiddle(const PixelRect& area, int width, int height)
{
    return {Middle(area.left, area.right, width), Middle(area.top, area.bottom, height)};
}

WindowPlace AtColumnAndRow(const PixelRect& area, int column, int row, int width, int height)
{
    return {PlaceOf(column, area.left, area.right, width),
            PlaceOf(row, area.top, area.bottom, height)};
}

} // namespace quillon
