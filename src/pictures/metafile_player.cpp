#include "pictures/metafile_player.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace quillon {

namespace {

// No real drawing nests deeper.
constexpr std::size_t kMaxSaved = 256;
constexpr std::size_t kMaxHoles = 32;
constexpr int kWorkOfRecord = 50;

} // namespace

// In the order of the numbers, by which they are found.
// clang-format off
const MetafilePlayer::Call MetafilePlayer::kCalls[] = {
    {metafile::kSaveDC,               0, &MetafilePlayer::SaveDC},
    {metafile::kCreatePalette,        0, &MetafilePlayer::CreateUnused},
    {metafile::kSetBkMode,            1, &MetafilePlayer::SetBkMode},
    {metafile::kSetROP2,              1, &MetafilePlayer::SetROP2},
    {metafile::kSetPolyFillMode,      1, &MetafilePlayer::SetPolyFillMode},
    {metafile::kSetTextCharExtra,     1, &MetafilePlayer::SetTextCharExtra},
    {metafile::kRestoreDC,            1, &MetafilePlayer::RestoreDC},
    {metafile::kSelectClipRegion,     1, &MetafilePlayer::SelectClipRegion},
    {metafile::kSelectObject,         1, &MetafilePlayer::SelectObject},
    {metafile::kSetTextAlign,         1, &MetafilePlayer::SetTextAlign},
    {metafile::kDIBCreatePatternBrush, 2, &MetafilePlayer::DIBCreatePatternBrush},
    {metafile::kDeleteObject,         1, &MetafilePlayer::DeleteObject},
    {metafile::kCreatePatternBrush,   0, &MetafilePlayer::CreatePatternBrush},
    {metafile::kSetBkColor,           2, &MetafilePlayer::SetBkColor},
    {metafile::kSetTextColor,         2, &MetafilePlayer::SetTextColor},
    {metafile::kSetWindowOrg,         2, &MetafilePlayer::SetWindowOrg},
    {metafile::kSetWindowExt,         2, &MetafilePlayer::SetWindowExt},
    {metafile::kOffsetWindowOrg,      2, &MetafilePlayer::OffsetWindowOrg},
    {metafile::kLineTo,               2, &MetafilePlayer::LineTo},
    {metafile::kMoveTo,               2, &MetafilePlayer::MoveTo},
    {metafile::kOffsetClipRgn,        2, &MetafilePlayer::OffsetClipRgn},
    {metafile::kCreatePenIndirect,    5, &MetafilePlayer::CreatePenIndirect},
    {metafile::kCreateFontIndirect,   9, &MetafilePlayer::CreateFontObject},
    {metafile::kCreateBrushIndirect,  4, &MetafilePlayer::CreateBrushIndirect},
    {metafile::kPolygon,              1, &MetafilePlayer::Polygon},
    {metafile::kPolyline,             1, &MetafilePlayer::Polyline},
    {metafile::kScaleWindowExt,       4, &MetafilePlayer::ScaleWindowExt},
    {metafile::kExcludeClipRect,      4, &MetafilePlayer::ExcludeClipRect},
    {metafile::kIntersectClipRect,    4, &MetafilePlayer::IntersectClipRect},
    {metafile::kEllipse,              4, &MetafilePlayer::Ellipse},
    {metafile::kRectangle,            4, &MetafilePlayer::Rectangle},
    {metafile::kSetPixel,             4, &MetafilePlayer::SetPixel},
    {metafile::kTextOut,              1, &MetafilePlayer::WriteText},
    {metafile::kPolyPolygon,          1, &MetafilePlayer::PolyPolygon},
    {metafile::kRoundRect,            6, &MetafilePlayer::RoundRect},
    {metafile::kPatBlt,               6, &MetafilePlayer::PatBlt},
    {metafile::kCreateRegion,         0, &MetafilePlayer::CreateRegion},
    {metafile::kArc,                  8, &MetafilePlayer::Arc},
    {metafile::kPie,                  8, &MetafilePlayer::Pie},
    {metafile::kChord,                8, &MetafilePlayer::Chord},
    {metafile::kDIBBitBlt,            8, &MetafilePlayer::DIBBitBlt},
    {metafile::kExtTextOut,           4, &MetafilePlayer::WriteExtendedText},
    {metafile::kDIBStretchBlt,       10, &MetafilePlayer::DIBStretchBlt},
    {metafile::kSetDIBitsToDevice,    9, &MetafilePlayer::SetDIBitsToDevice},
    {metafile::kStretchDIBits,       11, &MetafilePlayer::StretchDIBits},
};
// clang-format on

MetafilePlayer::MetafilePlayer(Raster& raster, Letters& letters, const MetafileWindow& window,
                               int scale)
    : raster_(raster), letters_(letters), scale_(scale)
{
    state_.window = window;
    state_.clip.bounds = raster.Target().clip;
}

void MetafilePlayer::Play(PictureBytes records)
{
    MetafileReader reader(records);
    for (Record record; reader.Next(record) && !raster_.Work().IsExhausted();) {
        raster_.Work().Use(kWorkOfRecord);
        const auto call = std::ranges::lower_bound(kCalls, record.function, {}, &Call::function);
        if (call != std::end(kCalls) && call->function == record.function &&
            record.given.Has(0, call->words * 2))
            (this->*call->play)(record);
    }
}

FinePoint MetafilePlayer::Place(int x, int y) const
{
    const Canvas& canvas = raster_.Target();
    const auto fine = [](std::int64_t away, int pixels, int units) {
        const std::int64_t place = away * pixels * kFine / units;
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(place, -kMaxCoordinate, kMaxCoordinate));
    };
    return {fine(x - state_.window.left, canvas.width, state_.window.width),
            fine(y - state_.window.top, canvas.height, state_.window.height)};
}

FineRect MetafilePlayer::Rect(int left, int top, int right, int bottom) const
{
    return {Place(left, top), Place(right, bottom)};
}

void SetOrigin(const MetafileRecord& record, MetafileWindow& window)
{
    window.left = record[metafile::point::kX];
    window.top = record[metafile::point::kY];
}

bool SetExtent(const MetafileRecord& record, MetafileWindow& window)
{
    const int width = record[metafile::extent::kWidth];
    const int height = record[metafile::extent::kHeight];
    if (width == 0 || height == 0)
        return false;
    window.width = width;
    window.height = height;
    return true;
}

FineRect MetafilePlayer::RectAt(const Record& record, std::size_t word) const
{
    namespace at = metafile::rectangle;
    return Rect(record[word + at::kLeft], record[word + at::kTop], record[word + at::kRight],
                record[word + at::kBottom]);
}

PixelRect MetafilePlayer::PixelsOf(const FineRect& rect) const
{
    return {FirstPixelFrom(std::min(rect.first.x, rect.last.x)),
            FirstPixelFrom(std::min(rect.first.y, rect.last.y)),
            FirstPixelFrom(std::max(rect.first.x, rect.last.x)),
            FirstPixelFrom(std::max(rect.first.y, rect.last.y))};
}

std::int32_t MetafilePlayer::HBox(int width) const
{
    return std::abs(Place(state_.window.left + width, 0).x);
}

std::int32_t MetafilePlayer::VBox(int height) const
{
    return std::abs(Place(0, state_.window.top + height).y);
}

void MetafilePlayer::SaveDC(const Record&)
{
    if (saved_.size() < kMaxSaved)
        saved_.push_back(state_);
}

void MetafilePlayer::RestoreDC(const Record& record)
{
    // Negative counts back from the last one, positive from the first.
    const int number = record.Value();
    const auto count = static_cast<int>(saved_.size());
    const int index = number < 0 ? count + number : number - 1;
    if (number == 0 || index < 0 || index >= count)
        return;
    state_ = saved_[static_cast<std::size_t>(index)];
    saved_.resize(static_cast<std::size_t>(index));
}

void MetafilePlayer::SetBkMode(const Record& record)
{
    constexpr int kTransparent = 1;
    state_.isBkOpaque = record.Value() != kTransparent;
}

void MetafilePlayer::SetROP2(const Record& record)
{
    // Its numbers are the tables of the combinations, from 1 on.
    if (record.Value() >= 1 && record.Value() <= 16)
        state_.combination = static_cast<Combination>(record.Value() - 1);
}

void MetafilePlayer::SetPolyFillMode(const Record& record)
{
    constexpr int kWinding = 2;
    state_.fillRule = record.Value() == kWinding ? FillRule::NonZero : FillRule::EvenOdd;
}

void MetafilePlayer::SetTextCharExtra(const Record& record)
{
    state_.charExtra = record.Value();
}

void MetafilePlayer::SetTextAlign(const Record& record)
{
    state_.textAlign = record.Value();
}

void MetafilePlayer::SetBkColor(const Record& record)
{
    state_.bkColour = record.Colour();
}

void MetafilePlayer::SetTextColor(const Record& record)
{
    state_.textColour = record.Colour();
}

void MetafilePlayer::SetWindowOrg(const Record& record)
{
    SetOrigin(record, state_.window);
}

void MetafilePlayer::SetWindowExt(const Record& record)
{
    SetExtent(record, state_.window);
}

void MetafilePlayer::OffsetWindowOrg(const Record& record)
{
    constexpr int kMax = 1'000'000;
    state_.window.left = std::clamp(state_.window.left + record[metafile::point::kX], -kMax, kMax);
    state_.window.top = std::clamp(state_.window.top + record[metafile::point::kY], -kMax, kMax);
}

void MetafilePlayer::ScaleWindowExt(const Record& record)
{
    namespace at = metafile::scale;
    const auto scaled = [](int units, int times, int through) {
        const std::int64_t result = through == 0 ? 0 : std::int64_t{units} * times / through;
        return result == 0 || std::abs(result) > 1'000'000 ? units : static_cast<int>(result);
    };
    state_.window.height =
        scaled(state_.window.height, record[at::kYFactor], record[at::kYDivisor]);
    state_.window.width = scaled(state_.window.width, record[at::kXFactor], record[at::kXDivisor]);
}

void MetafilePlayer::SelectClipRegion(const Record& record)
{
    state_.clip = {.bounds = raster_.Target().clip, .holes = {}};
    // Number 0 is that of an object too; where it is no region, there is no clip any more.
    const MetafileObject* object = objects_.Find(record.Count());
    if (const MetafileRegion* region = object ? object->region.get() : nullptr)
        state_.clip.bounds =
            Intersect(state_.clip.bounds,
                      PixelsOf(Rect(region->left, region->top, region->right, region->bottom)));
}

void MetafilePlayer::IntersectClipRect(const Record& record)
{
    state_.clip.bounds = Intersect(state_.clip.bounds, PixelsOf(RectAt(record, 0)));
}

void MetafilePlayer::ExcludeClipRect(const Record& record)
{
    if (state_.clip.holes.size() < kMaxHoles)
        state_.clip.holes.push_back(PixelsOf(RectAt(record, 0)));
}

void MetafilePlayer::OffsetClipRgn(const Record& record)
{
    const FinePoint origin = Place(0, 0);
    const FinePoint moved = Place(record[metafile::point::kX], record[metafile::point::kY]);
    PixelRect& bounds = state_.clip.bounds;
    const int across = (moved.x - origin.x) / kFine;
    const int down = (moved.y - origin.y) / kFine;
    bounds = Intersect(
        {bounds.left + across, bounds.top + down, bounds.right + across, bounds.bottom + down},
        raster_.Target().clip);
}

} // namespace quillon
