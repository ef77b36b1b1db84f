// The records that draw lines and areas.
#include "pictures/metafile_player.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::uint8_t kHatches[][8] = {{0, 0, 0, 0, 0xFF, 0, 0, 0},
                                        {0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08, 0x08},
                                        {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},
                                        {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},
                                        {0x08, 0x08, 0x08, 0x08, 0xFF, 0x08, 0x08, 0x08},
                                        {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81}};

// Drawn and left out in turn, in pixels of the picture.
const std::vector<std::int32_t>& DashesOf(PenStyle style)
{
    static const std::vector<std::int32_t> kDash = {18, 6};
    static const std::vector<std::int32_t> kDot = {3, 3};
    static const std::vector<std::int32_t> kDashDot = {9, 6, 3, 6};
    static const std::vector<std::int32_t> kDashDotDot = {9, 3, 3, 3, 3, 3};
    switch (style) {
    case PenStyle::Dash:
        return kDash;
    case PenStyle::Dot:
        return kDot;
    case PenStyle::DashDot:
        return kDashDot;
    default:
        return kDashDotDot;
    }
}

constexpr std::size_t kMaxDashes = 20'000;
constexpr int kWorkOfStroke = 200; // for each point or dash

} // namespace

Paint MetafilePlayer::BrushPaint() const
{
    Paint paint{.colour = quillon::PixelOf(state_.brush.colour),
                .patternScale = scale_,
                .combination = state_.combination};
    paint.tile = state_.brush.tile.get();
    const bool isHatch = state_.brush.style == BrushStyle::Hatched && state_.brush.hatch >= 0 &&
                         state_.brush.hatch < static_cast<int>(std::size(kHatches));
    if (isHatch) {
        paint.hatch = kHatches[state_.brush.hatch];
        paint.background = state_.isBkOpaque ? quillon::PixelOf(state_.bkColour) : 0;
    }
    return paint;
}

void MetafilePlayer::FillAndStroke(const FinePath& path)
{
    if (HasBrush())
        raster_.Fill(path, state_.fillRule, BrushPaint(), state_.clip);
    std::size_t begin = 0;
    for (const std::size_t end : path.ends) {
        Stroke({path.points.begin() + static_cast<std::ptrdiff_t>(begin),
                path.points.begin() + static_cast<std::ptrdiff_t>(end)},
               true);
        begin = end;
    }
}

void MetafilePlayer::FillAndStroke(FinePoints outline)
{
    FinePath path{std::move(outline), {}};
    path.Close();
    FillAndStroke(path);
}

void MetafilePlayer::Stroke(const FinePoints& line, bool isClosed)
{
    const MetafilePen& pen = state_.pen;
    if (pen.style == PenStyle::None || line.empty() || raster_.Work().IsExhausted())
        return;
    // No pen is thinner than one pixel of the picture.
    const std::int32_t pixel = scale_ * kFine;
    const std::int32_t width = std::max(HBox(pen.width), pixel);
    const Paint paint{.colour = quillon::PixelOf(pen.colour), .combination = state_.combination};
    const bool isDashed = pen.style != PenStyle::Solid && pen.style != PenStyle::InsideFrame;
    raster_.Work().Use(kWorkOfStroke * static_cast<std::int64_t>(line.size()));
    if (isDashed && width == pixel)
        StrokeDashes(line, isClosed, width, paint);
    else
        raster_.Fill(StrokeOf(line, isClosed, width), FillRule::NonZero, paint, state_.clip);
}

void MetafilePlayer::StrokeDashes(const FinePoints& line, bool isClosed, std::int32_t width,
                                  const Paint& paint)
{
    FinePoints whole = line;
    if (isClosed)
        whole.push_back(line[0]);
    std::vector<std::int32_t> lengths = DashesOf(state_.pen.style);
    for (std::int32_t& length : lengths)
        length *= scale_ * kFine;
    for (const FinePoints& dash : quillon::DashesOf(whole, lengths, kMaxDashes)) {
        raster_.Work().Use(kWorkOfStroke);
        raster_.Fill(StrokeOf(dash, false, width), FillRule::NonZero, paint, state_.clip);
    }
}

void MetafilePlayer::MoveTo(const Record& record)
{
    state_.x = record[metafile::point::kX];
    state_.y = record[metafile::point::kY];
}

void MetafilePlayer::LineTo(const Record& record)
{
    const FinePoint from = Place(state_.x, state_.y);
    MoveTo(record);
    Stroke({from, Place(state_.x, state_.y)}, false);
}

FinePoints MetafilePlayer::PointsAt(const Record& record, std::size_t byte, std::size_t count) const
{
    FinePoints points;
    if (!record.given.Has(byte, std::uint64_t{count} * 4))
        return points;
    points.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        points.push_back(
            Place(record.given.Short(byte + i * 4), record.given.Short(byte + i * 4 + 2)));
    return points;
}

void MetafilePlayer::Polygon(const Record& record)
{
    FillAndStroke(PointsAt(record, metafile::polygon::kPointsAtByte, record.Count()));
}

void MetafilePlayer::Polyline(const Record& record)
{
    Stroke(PointsAt(record, metafile::polygon::kPointsAtByte, record.Count()), false);
}

void MetafilePlayer::PolyPolygon(const Record& record)
{
    constexpr std::size_t kCounts = metafile::polygon::kCountsAtByte;
    const std::size_t count = record.Count();
    std::size_t at = kCounts + count * 2;
    FinePath path;
    for (std::size_t i = 0; i < count && record.given.Has(0, at); ++i) {
        const std::size_t length = record.given.Word(kCounts + i * 2);
        const FinePoints points = PointsAt(record, at, length);
        path.points.insert(path.points.end(), points.begin(), points.end());
        path.Close();
        at += length * 4;
    }
    FillAndStroke(path);
}

void MetafilePlayer::Rectangle(const Record& record)
{
    const FineRect rect = RectAt(record, 0);
    FillAndStroke(
        {rect.first, {rect.last.x, rect.first.y}, rect.last, {rect.first.x, rect.last.y}});
}

void MetafilePlayer::RoundRect(const Record& record)
{
    namespace at = metafile::round_rect;
    FillAndStroke(RoundRectOf(RectAt(record, at::kRect), HBox(record[at::kWidth]),
                              VBox(record[at::kHeight])));
}

void MetafilePlayer::Ellipse(const Record& record)
{
    FillAndStroke(EllipseOf(RectAt(record, 0)));
}

FineRect MetafilePlayer::ArcRect(const Record& record) const
{
    return RectAt(record, metafile::arc::kRect);
}

FinePoints MetafilePlayer::ArcPoints(const Record& record) const
{
    namespace at = metafile::arc;
    return ArcOf(ArcRect(record), Place(record[at::kStartX], record[at::kStartY]),
                 Place(record[at::kEndX], record[at::kEndY]));
}

void MetafilePlayer::Arc(const Record& record)
{
    Stroke(ArcPoints(record), false);
}

void MetafilePlayer::Pie(const Record& record)
{
    const FineRect rect = ArcRect(record);
    FinePoints points = ArcPoints(record);
    points.push_back({rect.first.x + (rect.last.x - rect.first.x) / 2,
                      rect.first.y + (rect.last.y - rect.first.y) / 2});
    FillAndStroke(std::move(points));
}

void MetafilePlayer::Chord(const Record& record)
{
    FillAndStroke(ArcPoints(record));
}

void MetafilePlayer::SetPixel(const Record& record)
{
    namespace at = metafile::set_pixel;
    const FinePoint place = Place(record[at::kX], record[at::kY]);
    const int left = FirstPixelFrom(place.x);
    const int top = FirstPixelFrom(place.y);
    raster_.FillPixels({left, top, left + scale_, top + scale_},
                       {.colour = quillon::PixelOf(record.Colour())}, state_.clip);
}

} // namespace quillon
