#include "pictures/raster.h"

#include "design/picture.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr Pixel kPaper = 0xFFFFFFFF;
// Against a pixel that is only filled.
constexpr int kWorkOfCombining = 4;
// For each row: it is found, sorted among the others and looked at.
constexpr int kWorkOfEdge = 24;

struct Edge {
    std::int32_t firstRow;
    std::int32_t endRow;
    FinePoint top;
    FinePoint bottom;
    int winding;

    std::int64_t At(std::int32_t row) const
    {
        const std::int64_t down = std::int64_t{row} * kFine + kFine / 2 - top.y;
        return top.x + std::int64_t{bottom.x - top.x} * down / (bottom.y - top.y);
    }
};

void AddEdge(std::vector<Edge>& edges, FinePoint from, FinePoint to, const PixelRect& bounds)
{
    if (from.y == to.y)
        return;
    const bool isDown = from.y < to.y;
    Edge edge{0, 0, isDown ? from : to, isDown ? to : from, isDown ? 1 : -1};
    edge.firstRow = std::max(FirstPixelFrom(edge.top.y), bounds.top);
    edge.endRow = std::min(FirstPixelFrom(edge.bottom.y), bounds.bottom);
    if (edge.firstRow < edge.endRow)
        edges.push_back(edge);
}

std::vector<Edge> EdgesOf(const FinePath& path, const PixelRect& bounds)
{
    std::vector<Edge> edges;
    edges.reserve(path.points.size());
    std::size_t begin = 0;
    for (const std::size_t end : path.ends) {
        for (std::size_t i = begin; i < end; ++i)
            AddEdge(edges, path.points[i], path.points[i + 1 < end ? i + 1 : begin], bounds);
        begin = end;
    }
    std::ranges::stable_sort(edges, {}, &Edge::firstRow);
    return edges;
}

struct Crossing {
    std::int32_t column;
    int winding;
};

/// Goes down the rows and calls `span(row, left, right)` for what lies inside.
template <class Span>
void EachSpan(const std::vector<Edge>& edges, FillRule rule, WorkBudget& work, Span span)
{
    std::vector<const Edge*> active;
    std::vector<Crossing> crossings;
    std::size_t next = 0;
    for (std::int32_t row = 0; (next < edges.size() || !active.empty()) && !work.IsExhausted();
         ++row) {
        if (active.empty() && next < edges.size())
            row = edges[next].firstRow;
        for (; next < edges.size() && edges[next].firstRow <= row; ++next)
            active.push_back(&edges[next]);
        std::erase_if(active, [row](const Edge* edge) { return edge->endRow <= row; });
        crossings.clear();
        for (const Edge* edge : active)
            crossings.push_back({FirstPixelFrom(edge->At(row)), edge->winding});
        std::ranges::sort(crossings, {}, &Crossing::column);
        work.Use(kWorkOfEdge * static_cast<std::int64_t>(active.size() + 1));
        int winding = 0;
        for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
            winding += rule == FillRule::NonZero ? crossings[i].winding : 1;
            const bool isInside = rule == FillRule::NonZero ? winding != 0 : winding % 2 != 0;
            if (isInside)
                span(row, crossings[i].column, crossings[i + 1].column);
        }
    }
}

Pixel Combined(Combination combination, Pixel source, Pixel below)
{
    const Pixel bits = ((combination & 1) != 0 ? ~source & ~below : 0) |
                       ((combination & 2) != 0 ? ~source & below : 0) |
                       ((combination & 4) != 0 ? source & ~below : 0) |
                       ((combination & 8) != 0 ? source & below : 0);
    return bits | kOpaquePixel;
}

// What is not painted yet counts as white paper. A combination that would paint it white leaves it
// unpainted, so that a picture drawn with its mask has no white box round it.
Pixel Result(Pixel result, Pixel before)
{
    return before >> 24 != 255 && result == Over(before, kPaper) ? before : result;
}

} // namespace

bool Contains(const RasterClip& clip, int x, int y)
{
    const auto has = [x, y](const PixelRect& rect) {
        return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
    };
    return has(clip.bounds) && std::ranges::none_of(clip.holes, has);
}

void Raster::Fill(const FinePath& path, FillRule rule, const Paint& paint, const RasterClip& clip)
{
    const PixelRect bounds = Intersect(clip.bounds, canvas_.clip);
    if (bounds.IsEmpty())
        return;
    work_.Use(static_cast<std::int64_t>(path.points.size()));
    EachSpan(EdgesOf(path, bounds), rule, work_,
             [&](int row, int left, int right) { Span(row, left, right, paint, clip); });
}

void Raster::FillPixels(const PixelRect& rect, const Paint& paint, const RasterClip& clip)
{
    const PixelRect part = Intersect(Intersect(rect, clip.bounds), canvas_.clip);
    for (int y = part.top; y < part.bottom && !work_.IsExhausted(); ++y)
        Span(y, part.left, part.right, paint, clip);
}

void Raster::Span(int y, int left, int right, const Paint& paint, const RasterClip& clip)
{
    const PixelRect bounds = Intersect(clip.bounds, canvas_.clip);
    left = std::max(left, bounds.left);
    right = std::min(right, bounds.right);
    work_.Use(1);
    // Piece by piece between the holes of this row.
    while (left < right) {
        int end = right;
        int next = right;
        for (const PixelRect& hole : clip.holes) {
            if (y < hole.top || y >= hole.bottom || hole.right <= left || hole.left >= end)
                continue;
            end = std::max(hole.left, left);
            next = hole.right;
        }
        PlainSpan(y, left, end, paint);
        left = std::max(next, end);
    }
}

void Raster::PlainSpan(int y, int left, int right, const Paint& paint)
{
    if (left >= right)
        return;
    Pixel* row = canvas_.Row(y);
    if (!paint.hatch && !paint.tile && paint.combination == kCopy) {
        work_.Use(right - left);
        std::fill(row + left, row + right, paint.colour);
        return;
    }
    work_.Use(std::int64_t{right - left} * kWorkOfCombining);
    const int down = y / paint.patternScale;
    for (int x = left; x < right; ++x) {
        const int across = x / paint.patternScale;
        Pixel colour = paint.colour;
        if (paint.tile)
            colour = paint.tile->pixels[static_cast<std::size_t>(down % paint.tile->height) *
                                            static_cast<std::size_t>(paint.tile->width) +
                                        static_cast<std::size_t>(across % paint.tile->width)];
        else if (paint.hatch && (paint.hatch[down % 8] >> (7 - across % 8) & 1) == 0)
            colour = paint.background;
        if (colour == 0)
            continue;
        row[x] = paint.combination == kCopy
                     ? colour
                     : Result(Combined(paint.combination, colour, Over(row[x], kPaper)), row[x]);
    }
}

void Raster::Combine(int x, int y, Pixel pattern, Pixel source, std::uint8_t table)
{
    Pixel& pixel = canvas_.Row(y)[x];
    const Pixel below = Over(pixel, kPaper);
    const Pixel without = Combined(table & 0xF, source, below);
    const Pixel with = Combined(table >> 4, source, below);
    pixel = Result((with & pattern) | (without & ~pattern) | kOpaquePixel, pixel);
}

void Raster::Cover(int x, int y, Pixel colour, Pixel coverage)
{
    Pixel& pixel = canvas_.Row(y)[x];
    const Pixel over = Covering(colour, coverage);
    // The colour is mixed as on opaque paper; the alpha grows with the coverage.
    const Pixel below = pixel >> 24;
    const Pixel mixed = Over(over, pixel) & 0xFFFFFF;
    const Pixel alpha = coverage + (below * (255 - coverage) + 127) / 255;
    pixel = alpha << 24 | mixed;
}

} // namespace quillon
