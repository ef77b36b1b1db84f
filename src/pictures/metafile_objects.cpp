// The records that make and choose pens, brushes and fonts.
#include "helpers/ansi_text.h"
#include "pictures/metafile_player.h"

#include <algorithm>
#include <cstdlib>

namespace quillon {

namespace {

// Patterns are small; what is larger is painted as one colour.
constexpr std::int64_t kMaxTile = 256 * 256;
constexpr std::int64_t kMaxTiles = 4'000'000;
constexpr Colour kGrey = 0x808080;

} // namespace

void MetafilePlayer::SelectObject(const Record& record)
{
    const MetafileObject* object = objects_.Find(record.Count());
    if (!object)
        return;
    if (object->pen)
        state_.pen = *object->pen;
    else if (object->brush)
        state_.brush = *object->brush;
    else if (object->font)
        state_.font = *object->font;
}

void MetafilePlayer::DeleteObject(const Record& record)
{
    objects_.Remove(record.Count());
}

void MetafilePlayer::CreatePenIndirect(const Record& record)
{
    namespace at = metafile::pen;
    const int style = record[at::kStyle] & 0xF;
    const bool isKnown = style <= static_cast<int>(PenStyle::InsideFrame);
    const MetafilePen pen{.style = isKnown ? static_cast<PenStyle>(style) : PenStyle::Solid,
                          .width = std::abs(int{record[at::kWidth]}),
                          .colour = record.given.SignedLong(at::kColourAtByte)};
    objects_.Add({.pen = std::make_unique<const MetafilePen>(pen)});
}

void MetafilePlayer::AddBrush(const MetafileBrush& brush)
{
    objects_.Add({.brush = std::make_unique<const MetafileBrush>(brush)});
}

void MetafilePlayer::CreateBrushIndirect(const Record& record)
{
    namespace at = metafile::brush;
    const int style = record[at::kStyle];
    const bool isKnown = style >= 0 && style <= static_cast<int>(BrushStyle::Hatched);
    AddBrush({.style = isKnown ? static_cast<BrushStyle>(style) : BrushStyle::Solid,
              .colour = record.given.SignedLong(at::kColourAtByte),
              .hatch = record[at::kHatch]});
}

void MetafilePlayer::CreateFontObject(const Record& record)
{
    namespace at = metafile::font;
    constexpr int kBold = 600;
    MetafileFont font{.height = record[at::kHeight],
                      .isBold = record[at::kWeight] >= kBold,
                      .isItalic = record.given.Byte(at::kItalicAtByte) != 0,
                      .isUnderlined = record.given.Byte(at::kUnderlineAtByte) != 0,
                      .isStrikeOut = record.given.Byte(at::kStrikeOutAtByte) != 0};
    const std::string_view name = record.given.Part(at::kNameAtByte, at::kNameBytes).View();
    font.name = AnsiText::FromBytes(name.substr(0, name.find('\0')));
    objects_.Add({.font = std::make_unique<const MetafileFont>(std::move(font))});
}

void MetafilePlayer::CreateRegion(const Record& record)
{
    namespace at = metafile::region;
    if (!record.given.Has(0, at::kWords * 2)) {
        objects_.Add({});
        return;
    }
    const MetafileRegion region{.left = record[at::kLeft],
                                .top = record[at::kTop],
                                .right = record[at::kRight],
                                .bottom = record[at::kBottom]};
    objects_.Add({.region = std::make_unique<const MetafileRegion>(region)});
}

void MetafilePlayer::CreateUnused(const Record&)
{
    objects_.Add({});
}

void MetafilePlayer::CreatePatternBrush(const Record&)
{
    // Its pixels depend on a device that no longer exists.
    AddBrush({.colour = kGrey});
}

void MetafilePlayer::DIBCreatePatternBrush(const Record& record)
{
    MetafileBrush brush{.colour = kGrey};
    brush.tile = DecodeDib(record.given.Part(metafile::brush::kPatternAtByte),
                           std::min(kMaxTile, kMaxTiles - tilePixels_));
    if (brush.tile)
        tilePixels_ += static_cast<std::int64_t>(brush.tile->pixels.size());
    AddBrush(brush);
}

} // namespace quillon
